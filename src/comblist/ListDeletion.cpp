#include "comblist/ListDeletion.h"

#include "core/ColumnFile.h"

namespace karvenis {
namespace {

/// Copies all records but `number` from the list to the scratch file.
void copyOthers(SharedState& state, Files& files, std::int32_t number, std::int32_t count) {
  ColumnFile& list = state.FileNo.emplace(files, combinationList, state.Record);
  ColumnFile YlsFileNo(files, listScratch, state.Record);
  for (std::int64_t n = 1; n < number; ++n) {
    list.get(n);
    YlsFileNo.put(n);
  }
  for (std::int64_t n = std::int64_t{number} + 1; n <= count; ++n) {
    list.get(n);
    YlsFileNo.put(n - 1);
  }
  list.close();
  state.FileNo.reset();
  YlsFileNo.close();
}

}  // namespace

void deleteListColumn(SharedState& state, Files& files, std::int32_t number, std::int32_t count) {
  files.copy(combinationList, listBackup);
  if (count == 1 && number == 1) {
    files.remove(combinationList);
    return;
  }
  copyOthers(state, files, number, count);
  files.copy(listScratch, combinationList);
  files.remove(listScratch);
}

}  // namespace karvenis
