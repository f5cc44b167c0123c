#include "main/NewColumn.h"

#include "core/ColumnFile.h"
#include "core/Numbers.h"

namespace karvenis {
namespace {

void takeRecord(Surroundings& around, std::int32_t number) {
  SharedState& state = around.state;
  state.FileNo.emplace(around.files, combinationList, state.Record);
  if (state.FileNo->length() / ColumnRecord::size >= static_cast<std::uint64_t>(number)) {
    state.FileNo->get(number);
    state.Drawn = state.Record.Balls;
  }
  state.closeFile();
}

}  // namespace

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
