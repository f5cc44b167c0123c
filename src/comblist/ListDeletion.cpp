#include "comblist/ListDeletion.h"

#include "core/ColumnFile.h"

namespace karvenis {

void deleteListColumn(SharedState& state, Files& files, std::int32_t number, std::int32_t count) {
  files.copy(combinationList, listBackup);
  if (count == 1) {
    files.remove(combinationList);
    return;
  }
  ColumnFile& list = state.FileNo.emplace(files, combinationList, state.Record);
  ColumnFile YlsFileNo(files, ylsScratch, state.Record);
  copyColumnsWithout(number, count, list, YlsFileNo);
  state.closeFile();
  YlsFileNo.close();
  files.rename(ylsScratch, combinationList);  // one step: nothing of the scratch file stays behind
}

}  // namespace karvenis
