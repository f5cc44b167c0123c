#include "randomlist/RandomColumnList.h"

#include "core/ReplaceList.h"
#include "randomlist/RandomColumnFile.h"

namespace karvenis {
namespace {

constexpr char keys[] =
    "F1= Rastgele Kolon Listesi'ni Kombinasyon Listesi'ne (KARVENIS.LST'ye) ekle\r"
    "F2= Rastgele Kolon Listesi'ni Kombinasyon Listesi (KARVENIS.LST) olarak kayıtla\r"
    "F3= Bir kolon sil\r"
    "F4= Rastgele Kolon Listesi'ni (KARVENIS.RND dosyasını) sil\r"
    "\r"
    "F9= Rastgele Kolon Listesi'ni bas (KARVENIS.TXT dosyasına yaz)\r"
    "\r"
    "F10 = Komut Tuşları (Yardım)\r"
    "\r"
    "HOME= İlk Sayfa\r"
    "END= Son Sayfa\r"
    "PAGEDOWN= Sonraki Sayfa\r"
    "PAGEUP= Önceki Sayfa\r"
    "\r"
    "ESC= Kapat/Çık";

}  // namespace

void ShowRndPage(Surroundings& around, ListPage& page, TextSurface& surface, TitleBar& title) {
  ColumnFile file(around.state, around.files, randomColumns);
  page.fit(file.count());
  title.setCaption(pageTitle("Rastgele Kolon Listesi", page.PageNo));
  drawPage(page, file, surface);
  file.close();
}

void appendToCombinationList(Surroundings& around, ListPage& page) {
  around.boxes.beep();
  if (!holdsColumns(around.files, randomColumns)) return;
  if (!around.boxes.ask("Rastgele Kolon Listesi'ni Kombinasyon Listesi'ne eklemek "
                        "istiyormusunuz ?")) {
    return;
  }
  const ListAndScratch names{combinationList, yndScratch, ScratchStart::copyOfList};
  replaceList(around, names, [&](ColumnFile& list) {
    page.PageStart = list.count();
    ColumnFile AppendFileNo(around.state, around.files, randomColumns);
    page.RecordCount = AppendFileNo.count();
    for (std::int64_t AppendIndex = 1; AppendIndex <= page.RecordCount; ++AppendIndex) {
      list.put(page.PageStart + AppendIndex, AppendFileNo.at(AppendIndex));
    }
    AppendFileNo.close();
  });
  around.boxes.beep();
  around.boxes.message("Rastgele Kolon Listesi Kombinasyon Listesi'ne eklendi.");
}

void saveAsCombinationList(Surroundings& around) {
  around.boxes.beep();
  if (!around.boxes.ask("Rastgele Kolon Listesi'ni (KARVENIS.RND) Kombinasyon Listesi "
                        "(KARVENIS.LST) olarak kayıtlamak istiyormusunuz?")) {
    return;
  }
  backUpAnyList(around);
  copyList(around, randomColumns, combinationList);
  reportNewList(around);
}

void DeleteOneColumn(Surroundings& around, ListPage& page) {
  around.boxes.beep();
  if (!around.files.exists(randomColumns)) return;
  page.RecordCount = columnCount(around.files, randomColumns);
  if (page.RecordCount >= 1) around.windows.show("frmRndDel");
}

void openRndListing(Surroundings& around) {
  around.boxes.beep();
  if (holdsColumns(around.files, randomColumns)) around.windows.show("frmRLPrint");
}

void showRndListKeys(Boxes& boxes) {
  boxes.beep();
  boxes.message(keys, functionKeysTitle);
}

}  // namespace karvenis
