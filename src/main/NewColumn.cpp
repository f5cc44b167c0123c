#include "main/NewColumn.h"

#include "core/ColumnFile.h"
#include "core/Draw.h"
#include "core/Numbers.h"

namespace karvenis {
namespace {

void takeRecord(Surroundings& around, std::int32_t number) {
  ColumnFile list(around.state, around.files, combinationList);
  if (list.holdsWhole(number)) around.state.Drawn = list.at(number).Balls;
  list.close();
}

}  // namespace

bool drawFromBag(Surroundings& around, bool sorted) {
  if (!canDraw(around.state)) {
    around.boxes.warn(tooFewBalls, tooFewBallsTitle);
    return false;
  }
  DrawColumn(around.state, around.chance, around.clock, sorted);
  return true;
}

std::optional<ListPick> PickFromList(Surroundings& around) {
  if (!around.files.exists(combinationList)) {
    around.boxes.warn("Kombinasyon Listesi dosyası yok!", " ! KARVENIS.LST bulunamadı !");
    return std::nullopt;
  }
  const std::int32_t count = columnCount(around.files, combinationList);
  if (count < 1) {
    around.boxes.warn("Kombinasyon Listesi dosyası boş!", " ! KARVENIS.LST geçersiz !");
    return std::nullopt;
  }
  around.chance.seedFrom(around.clock);
  const std::int32_t picked = around.chance.index(count);
  takeRecord(around, picked);
  around.boxes.beep();
  return ListPick{picked, count};
}

std::string pickTitle(const ListPick& pick) {
  return " KARVENIS.LST  Kayıt =" + withBlank(pick.record) + " [" + withBlank(pick.count) + " ]";
}

}  // namespace karvenis
