#include "core/ColumnFile.h"

namespace karvenis {

void ColumnFile::get(std::int64_t number) {
  std::array<std::byte, ColumnRecord::size> bytes{};
  file_.read(number, bytes);
  buffer_ = decodeColumn(bytes);
}

void ColumnFile::put(std::int64_t number) {
  std::array<std::byte, ColumnRecord::size> bytes{};
  encode(buffer_, bytes);
  file_.write(number, bytes);
}

std::int32_t columnCount(Files& files, const std::string& name) {
  return recordCount(files.length(name), ColumnRecord::size);
}

bool holdsColumns(Files& files, const std::string& name) {
  return files.exists(name) && files.length(name) >= ColumnRecord::size;
}

void copyColumnsWithout(std::int32_t leftOut, std::int32_t count, ColumnFile& from,
                        ColumnFile& to) {
  std::int64_t next = 1;
  for (std::int64_t number = 1; number <= count; ++number) {
    if (number == leftOut) continue;
    from.get(number);
    to.put(next);
    ++next;
  }
}

void copyListTo(Files& files, const std::string& scratch) {
  if (files.exists(combinationList)) {
    files.copy(combinationList, scratch);
  } else if (files.exists(scratch)) {
    files.remove(scratch);
  }
}

void backUpList(Files& files) {
  if (files.exists(combinationList)) files.copy(combinationList, listBackup);
}

}  // namespace karvenis
