#include "randomlist/RandomColumnFile.h"

#include <algorithm>

#include "core/ColumnFile.h"
#include "core/Draw.h"
#include "core/IgnoringFaults.h"
#include "core/Numbers.h"
#include "core/ReplaceList.h"

namespace karvenis {
namespace {

bool isComplete(const Column& column) {
  return std::ranges::all_of(column, [](std::int16_t ball) { return ball >= 1; });
}

/// Writes the drawn column as record `number` of the random column file.
void writeDrawn(SharedState& state, Files& files, std::int32_t number) {
  ColumnFile file(state, files, randomColumns);
  file.put(number, {.Word = 0, .Balls = state.Drawn});
  file.close();
}

}  // namespace

void saveRndColumn(Surroundings& around, TitleBar& title, bool sorted) {
  const std::int32_t count = columnCountOrNone(around.files, randomColumns);
  if (count >= recordLimit) {
    around.boxes.beep();
    return;
  }
  if (!isComplete(around.state.Drawn)) return;

  title.setCaption(" Kolon kayıtlanıyor...");
  around.boxes.pointer(Pointer::hourglass);
  if (!sorted) SortColumn(around.state.Drawn);
  writeDrawn(around.state, around.files, count + 1);
  around.boxes.beep();
  around.boxes.pointer(Pointer::normal);
  const std::string kept = " KARVENIS.RND Kayıt No=" + withBlank(count + 1);
  title.setCaption(kept);
  around.windows.announce(kept);
}

void showRndList(Surroundings& around, TitleBar& title) {
  if (!holdsColumns(around.files, randomColumns)) {
    around.boxes.warn("Listelenecek (kayıtlı) Rastgele Kolon yok !");
    return;
  }
  around.windows.show("frmRndLst");
  title.setCaption(standardTitle);
}

void changeRndFile(Surroundings& around, TitleBar& title) {
  Files& files = around.files;
  if (!files.exists(randomColumns)) return;
  std::int32_t count = 0;
  // A file that cannot be counted must not be taken for an empty one: an empty file is deleted.
  if (!ignoringFaults([&] { count = columnCount(files, randomColumns); })) return;
  if (count > 0) {
    around.boxes.beep();
    if (!around.boxes.ask(
            "KARVENIS.RND dosyasının adını KARVENIS.LST olarak değiştirmek istiyormusunuz?")) {
      return;
    }
    ignoringFaults([&] { backUpAnyList(around); });
    ignoringFaults([&] { copyList(around, randomColumns, combinationList); });
  }
  ignoringFaults([&] { files.remove(randomColumns); });
  title.setCaption(standardTitle);
  ignoringFaults([&] { reportNewList(around); });
}

bool askAndDeleteRndFile(Surroundings& around) {
  around.boxes.beep();
  if (!around.files.exists(randomColumns)) return false;
  if (!around.boxes.ask("'KARVENIS.RND' dosyasını silmek istiyormusunuz ?")) return false;
  ignoringFaults([&] { around.files.remove(randomColumns); });
  return true;
}

void reportNewList(Surroundings& around) {
  around.boxes.beep();
  around.boxes.message(savedInList(columnCount(around.files, combinationList)));
}

void deleteRndFile(Surroundings& around, TitleBar& title) {
  if (!askAndDeleteRndFile(around)) return;
  around.boxes.beep();
  around.boxes.message("KARVENIS.RND dosyası silindi.", bareTitle);
  title.setCaption(standardTitle);
}

}  // namespace karvenis
