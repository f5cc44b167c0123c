#include "randomlist/ColumnDeletion.h"

#include <string>

#include "core/ColumnFile.h"
#include "core/IgnoringFaults.h"
#include "core/Numbers.h"

namespace karvenis {

bool ColumnDeletion::load() {
  ignoringFaults([&] {
    if (around_.files.exists(yndScratch)) around_.files.remove(yndScratch);
  });
  ignoringFaults([&] { count(); });
  if (RndCount > 0) around_.boxes.beep();
  return around_.files.exists(randomColumns);
}

void ColumnDeletion::count() {
  countedLength_ = lengthOrNone(around_.files, randomColumns);
  RndCount = recordCount(countedLength_, ColumnRecord::size);
}

bool ColumnDeletion::remove(std::int32_t DelNo) {
  if (lengthOrNone(around_.files, randomColumns) != countedLength_) count();
  if (DelNo < 1 || DelNo > RndCount) {
    around_.boxes.warn(
        "Silinecek kolon numarası geçersiz! En çok" + withBlank(RndCount) + " olabilir.",
        "! DİKKAT ! Geçersiz Kolon Numarası");
    return false;
  }
  if (RndCount == 1) {
    around_.files.remove(randomColumns);
  } else {
    copyWithout(DelNo);
    around_.files.rename(yndScratch, randomColumns);
  }
  return true;
}

/// Returns with the scratch file on disk.
void ColumnDeletion::copyWithout(std::int32_t DelNo) {
  startScratch(around_.files, yndScratch);
  ColumnFile RndFileNo(around_.state, around_.files, randomColumns);
  ColumnFile YndFileNo(around_.state, around_.files, yndScratch);
  copyColumnsWithout(DelNo, RndCount, RndFileNo, YndFileNo);
  RndFileNo.close();
  YndFileNo.close();
}

}  // namespace karvenis
