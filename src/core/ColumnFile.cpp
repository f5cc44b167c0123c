#include "core/ColumnFile.h"

#include <array>
#include <memory>
#include <vector>

namespace karvenis {

ColumnFile::ColumnFile(SharedState& state, Files& files, const std::string& name)
    : state_(state), file_(files, name, ColumnRecord::size) {
  ++state_.FileNo;
}

ColumnFile::~ColumnFile() { --state_.FileNo; }

ColumnRecord ColumnFile::at(std::int64_t number) {
  std::array<std::byte, ColumnRecord::size> bytes{};
  file_.read(number, bytes);
  state_.Record = decodeColumn(bytes);
  return state_.Record;
}

void ColumnFile::put(std::int64_t number, const ColumnRecord& record) {
  state_.Record = record;
  std::array<std::byte, ColumnRecord::size> bytes{};
  encode(state_.Record, bytes);
  file_.write(number, bytes);
}

std::int32_t columnCount(Files& files, const std::string& name) {
  return recordCount(files.length(name), ColumnRecord::size);
}

std::int32_t columnCountOrNone(Files& files, const std::string& name) {
  return recordCount(lengthOrNone(files, name), ColumnRecord::size);
}

bool holdsColumns(Files& files, const std::string& name) {
  return lengthOrNone(files, name) >= ColumnRecord::size;
}

void copyColumnsWithout(std::int32_t leftOut, std::int32_t count, ColumnFile& from,
                        ColumnFile& to) {
  std::int64_t next = 1;
  for (std::int64_t number = 1; number <= count; ++number) {
    if (number == leftOut) continue;
    to.put(next, from.at(number));
    ++next;
  }
}

void startScratch(Files& files, const std::string& scratch) {
  if (files.exists(scratch)) files.discard(scratch);
  files.open(scratch)->close();
}

void copyListTo(Files& files, const std::string& scratch) {
  startScratch(files, scratch);
  if (!files.exists(combinationList)) return;
  const std::unique_ptr<File> from = files.open(combinationList);
  const std::unique_ptr<File> to = files.open(scratch);
  std::vector<std::byte> block(std::size_t{1} << 16);
  std::uint64_t offset = 0;
  while (const std::size_t got = from->read(offset, block)) {
    to->write(offset, std::span(block).first(got));
    offset += got;
  }
  from->close();
  to->close();
}

void backUpList(Files& files) {
  if (files.exists(combinationList)) files.copy(combinationList, listBackup);
}

}  // namespace karvenis
