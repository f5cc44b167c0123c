#include "core/ColumnFile.h"

#include <array>

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

}  // namespace karvenis
