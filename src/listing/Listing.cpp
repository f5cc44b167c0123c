#include "listing/Listing.h"

#include "core/Checked.h"

namespace karvenis {

const Listing randomColumnListing = {
    .source = randomColumns,
    .title = " Rastgele Kolonlar",
    .questionTitle = standardTitle,
    .textQuestion = "Rastgele Kolon Listesi'ni KARVENIS.TXT dosyasına yazdırmak istiyormusunuz ?",
    .printerQuestion = "Rastgele Kolon Listesi'ni printere bastırmak istiyormusunuz ?",
    .startTitle = " Dosyaya yazılıyor...",
    .progress = " BYTE=",
    .heading = "Rastgele Kolon Listesi [ ",
    .headingEnd = " ] ",
};

const Listing combinationListing = {
    .source = combinationList,
    .title = "Kombinasyon Listesi",
    .questionTitle = "KARVENIS 2005 Randomizer",
    .textQuestion = "Kombinasyon Listesi'ni KARVENIS.TXT dosyasına yazdırmak istiyormusunuz ?",
    .printerQuestion = "Kombinasyon Listesi'ni printere bastırmak istiyormusunuz ?",
    .startTitle = "Dosyaya yazılıyor...",
    .progress = "BYTE=",
    .heading = "SAYISAL LOTO Kombinasyon Listesi [ ",
    .headingEnd = " ]",
};

namespace {

bool askToList(Boxes& boxes, const Listing& listing, Output output) {
  boxes.beep();
  return boxes.ask(output == Output::text ? listing.textQuestion : listing.printerQuestion,
                   listing.questionTitle);
}

/// Any fault while printing, also one of the list's file, is reported as a printer that is not
/// ready.
void printTrapped(Surroundings& around, ColumnFile& list, const Listing& listing, ListRange range) {
  try {
    PrintList(around, list, listing, range);
  } catch (const RunTimeError&) {
    around.printer.killDocument();
    around.boxes.beep();
    around.boxes.message("Printer hazır değil !", errorTitle);
  }
}

void listRange(Surroundings& around, TitleBar& title, const Listing& listing, Output output,
               ListRange range) {
  around.windows.dropInput();
  ColumnFile list(around.state, around.files, listing.source);
  if (output == Output::text) {
    WriteListText(around, title, list, listing, range);
  } else {
    printTrapped(around, list, listing, range);
  }
  list.close();
}

}  // namespace

void listRandomColumns(Surroundings& around, TitleBar& title, Output output) {
  const Listing& listing = randomColumnListing;
  if (!askToList(around.boxes, listing, output)) return;
  const auto count = checked<std::int16_t>(columnCountOrNone(around.files, randomColumns));
  if (count < 1) {
    around.boxes.warn("KARVENIS.RND dosyasında kayıt yok !", errorTitle);
    return;
  }
  listRange(around, title, listing, output, {1, count});
}

RangeRefusal listCombinations(Surroundings& around, TitleBar& title, Output output,
                              ListRange range) {
  const Listing& listing = combinationListing;
  if (!askToList(around.boxes, listing, output)) return RangeRefusal::none;
  const std::int32_t count = columnCountOrNone(around.files, combinationList);
  if (range.first < 1 || range.first > count) {
    around.boxes.warn("Başlangıç numarası GEÇERSİZ !", errorTitle);
    return RangeRefusal::first;
  }
  if (range.last < range.first || range.last > count) {
    around.boxes.warn("Bitiş Numarası GEÇERSİZ !", errorTitle);
    return RangeRefusal::last;
  }
  listRange(around, title, listing, output, range);
  return RangeRefusal::none;
}

}  // namespace karvenis
