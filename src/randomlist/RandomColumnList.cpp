#include "randomlist/RandomColumnList.h"

#include "core/ColumnFile.h"
#include "core/IgnoringFaults.h"
#include "core/Numbers.h"

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

/// Writes all random columns behind the last record of `list` and says in `page` how many records
/// either file held. Returns with both on disk and closed.
void appendAll(Surroundings& around, ListPage& page) {
  ColumnFile list(around.state, around.files, yndScratch);
  page.PageStart = list.count();
  ColumnFile AppendFileNo(around.state, around.files, randomColumns);
  page.RecordCount = AppendFileNo.count();
  for (std::int64_t AppendIndex = 1; AppendIndex <= page.RecordCount; ++AppendIndex) {
    list.put(page.PageStart + AppendIndex, AppendFileNo.at(AppendIndex));
  }
  AppendFileNo.close();
  list.close();
}

}  // namespace

void ShowRndPage(Surroundings& around, ListPage& page, TextSurface& surface, TitleBar& title) {
  ColumnFile file(around.state, around.files, randomColumns);
  page.fit(file.count());
  title.setCaption(pageTitle("Rastgele Kolon Listesi", page.PageNo));
  drawPage(page, file, surface);
  file.close();
}

void AppendToCombinationList(Surroundings& around, ListPage& page) {
  around.boxes.beep();
  if (!holdsColumns(around.files, randomColumns)) return;
  if (!around.boxes.ask("Rastgele Kolon Listesi'ni Kombinasyon Listesi'ne eklemek "
                        "istiyormusunuz ?")) {
    return;
  }
  // The list grows in a scratch file, so that it holds its old or its new bytes whatever happens.
  copyListTo(around.files, yndScratch);
  appendAll(around, page);
  around.files.rename(yndScratch, combinationList);
  around.boxes.beep();
  around.boxes.message("Rastgele Kolon Listesi Kombinasyon Listesi'ne eklendi.");
}

void SaveAsCombinationList(Surroundings& around) {
  around.boxes.beep();
  if (!around.boxes.ask("Rastgele Kolon Listesi'ni (KARVENIS.RND) Kombinasyon Listesi "
                        "(KARVENIS.LST) olarak kayıtlamak istiyormusunuz?")) {
    return;
  }
  backUpList(around.files);
  around.files.copy(randomColumns, combinationList);
  around.boxes.beep();
  around.boxes.message(withBlank(columnCount(around.files, combinationList)) +
                       " kolon 'KARVENIS.LST' dosyasına kayıtlandı.");
}

void DeleteOneColumn(Surroundings& around, ListPage& page) {
  around.boxes.beep();
  if (!around.files.exists(randomColumns)) return;
  page.RecordCount = columnCount(around.files, randomColumns);
  if (page.RecordCount >= 1) around.windows.show("frmRndDel");
}

void DeleteRndList(Surroundings& around) {
  around.boxes.beep();
  if (!around.files.exists(randomColumns)) return;
  if (!around.boxes.ask("'KARVENIS.RND' dosyasını silmek istiyormusunuz ?")) return;
  ignoringFaults([&] { around.files.remove(randomColumns); });
}

void ListRndColumns(Surroundings& around) {
  around.boxes.beep();
  if (holdsColumns(around.files, randomColumns)) around.windows.show("frmRLPrint");
}

void ShowRndListKeys(Boxes& boxes) {
  boxes.beep();
  boxes.message(keys, " FONKSİYON TUŞLARI");
}

}  // namespace karvenis
