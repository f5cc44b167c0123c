#include "comblist/ListDeletion.h"

#include "core/ColumnFile.h"

namespace karvenis {

void deleteListColumn(SharedState& state, Files& files, std::int32_t number, std::int32_t count) {
  files.copy(combinationList, listBackup);
  if (count == 1) {
    files.remove(combinationList);
    return;
  }
  ColumnFile list(state, files, combinationList);
  ColumnFile YlsFileNo(state, files, ylsScratch);
  copyColumnsWithout(number, count, list, YlsFileNo);
  list.close();
  YlsFileNo.close();
  files.rename(ylsScratch, combinationList);  // one step: nothing of the scratch file stays behind
}

}  // namespace karvenis
