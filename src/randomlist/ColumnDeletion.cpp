#include "randomlist/ColumnDeletion.h"

#include <string>

#include "core/IgnoringFaults.h"
#include "core/Numbers.h"
#include "core/ReplaceList.h"

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
  removeColumn(around_, {randomColumns, yndScratch, ScratchStart::empty}, DelNo, RndCount);
  return true;
}

}  // namespace karvenis
