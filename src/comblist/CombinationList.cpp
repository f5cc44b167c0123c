#include "comblist/CombinationList.h"

#include "core/Numbers.h"
#include "core/ReplaceList.h"

namespace karvenis {
namespace {

constexpr char keys[] =
    "F1= Kombinasyon listesini bas (Text yap)\r"
    "F2= Kombinasyon listesini 'KARVENIS.RND' dosyasına kayıtla\r"
    "F3= Bir kolon sil\r"
    "F4= Kombinasyon listesini (KARVENIS.LST dosyasını) sil\r"
    "F5= Kombinasyon listesini istenmeyen sayılar girişine göre ele\r"
    "F6= Kombinasyon listesini istenen sayılar girişine göre ele\r"
    "F7= Kombinasyon listesini istenmeyen ikililer girişine göre ele\r"
    "F8= Kombinasyon listesini istenen ikililer girişine göre ele\r"
    "\r"
    "F10= Fonksiyon Tuşları (Yardım)\r"
    "\r"
    "Not: Tam formüllü listeler için kardeş programımızı öneririz.\r"
    "\r"
    "HOME= İlk Sayfa\r"
    "END= Son Sayfa\r"
    "PAGEDOWN= Sonraki Sayfa\r"
    "PAGEUP= Önceki Sayfa\r"
    "\r"
    "ESC= Kapat";

bool mayReplaceRandomColumns(Surroundings& around) {
  if (!around.files.exists(randomColumns)) return true;
  return around.boxes.ask(
      "'KARVENIS.LST' dosyasını 'KARVENIS.RND' dosyası olarak kopyelemek "
      "istiyormusunuz?\r\r(Mevcut 'KARVENIS.RND' dosyası silinecek!)");
}

}  // namespace

void ShowPage(Surroundings& around, ListPage& page, TextSurface& surface, TitleBar& title) {
  if (!around.files.exists(combinationList)) return;
  ColumnFile list(around.state, around.files, combinationList);
  page.fit(list.count());
  if (page.RecordCount < 1) {
    list.close();
    around.boxes.warn("Kombinasyon listesi dosyası 'KARVENIS.LST' boş!");
    return;
  }
  title.setCaption(pageTitle("Kombinasyon Listesi", page.PageNo));
  drawPage(page, list, surface);
  list.close();
}

bool findList(Surroundings& around) {
  if (around.files.exists(combinationList)) return true;
  around.boxes.warn("Kombinasyon listesi dosyası 'KARVENIS.LST' bulunamadı!");
  return false;
}

void openListing(Surroundings& around) {
  around.boxes.beep();
  if (holdsColumns(around.files, combinationList)) around.windows.show("frmCLPrint");
}

bool copyToRandomColumns(Surroundings& around) {
  around.boxes.beep();
  if (!holdsColumns(around.files, combinationList)) return true;
  if (!mayReplaceRandomColumns(around)) return false;
  copyList(around, combinationList, randomColumns);
  around.boxes.message("Kombinasyon Listesi Yasak Kombinasyonlar Listesi'ne eklendi.");
  return true;
}

void DeleteColumn(Surroundings& around, ListPage& page) {
  around.boxes.beep();
  Files& files = around.files;
  if (columnCountOrNone(files, combinationList) < 1) return;
  page.PageStart = typedNumber32(
      around.boxes.input("Silmek istediğiniz kolon numarasını girin.", "Kolon SİLME", "0", ""));
  const std::int32_t number = page.PageStart;
  if (number < 1) return;
  const std::int32_t count = columnCount(files, combinationList);
  if (number > count) return;
  backUpList(around);
  // The scratch file of an interrupted run is not removed first: its records beyond those written
  // here stay in the list. Kept on purpose.
  removeColumn(around, {combinationList, ylsScratch, ScratchStart::leftOver}, number, count);
  page.PageStart = number - 1;
}

void deleteList(Surroundings& around) {
  around.boxes.beep();
  if (!around.files.exists(combinationList)) return;
  if (!around.boxes.ask("'KARVENIS.LST' dosyasını silmek istiyormusunuz ?")) return;
  around.files.remove(combinationList);
  around.boxes.beep();
  around.boxes.message("'KARVENIS.LST' silindi...");
}

void showListKeys(Boxes& boxes) {
  boxes.beep();
  boxes.message(keys, " Kombinasyon Listesi FONKSİYON TUŞLARI");
}

}  // namespace karvenis
