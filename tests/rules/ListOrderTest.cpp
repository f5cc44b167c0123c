// The steps of what is done with the combination list and of the listings, in their order.
#include "comblist/CombinationList.h"
#include "comblist/Filters.h"
#include "comblist/Generator.h"
#include "doubles/RefusingFiles.h"
#include "listing/Listing.h"
#include "rules/Orders.h"

namespace karvenis {
namespace {

// --- the combination list

TEST(Order, OfANewListHasItInPlaceBeforeTheBoxAndTheTitleBackBehindIt) {
  World world;
  world.files.folder["KARVENIS.LST"] = countedColumns(1);
  Generator random(world.around, world.title);
  constexpr char question[] = "Mevcut kombinasyon listesini yenisi ile değiştirmek istiyormusunuz?";
  world.boxes.expectQuestion(question, true)
      .expectBeep()
      .expectMessage(" 2 kolon 'KARVENIS.LST' dosyasına kayıtlandı.");
  std::ignore = random.start(Generator::Mode::newList, "2");
  EXPECT_EQ(world.journal.lines,
            joined({{"question " + std::string(question) + " Yes", "seed 1000000",
                     "copy KARVENIS.LST KARVENIS.OLD", "copy KARVENIS.LST KARVENIS.TMP"},
                    replaced("KARVENIS.LST", "KARVENIS.TMP",
                             {"title KOLON= 1", "number", "title KOLON= 2", "number"}),
                    {"beep", "message  2 kolon 'KARVENIS.LST' dosyasına kayıtlandı.",
                     "title 6/49 Rastgele Kolon Üreteci"}}));
}

TEST(Order, OfGrowingTheListHasItInPlaceBeforeTheBoxAndTheTitleBackBehindIt) {
  World world;
  world.files.folder["KARVENIS.LST"] = countedColumns(1);
  Generator random(world.around, world.title);
  world.boxes.expectBeep().expectMessage(" 2 kolon 'KARVENIS.LST' dosyasına eklendi.");
  std::ignore = random.start(Generator::Mode::append, "2");
  EXPECT_EQ(world.journal.lines,
            joined({{"seed 1000000", "copy KARVENIS.LST KARVENIS.TMP"},
                    replaced("KARVENIS.LST", "KARVENIS.TMP",
                             {"title KOLON= 2  [1]", "number", "title KOLON= 3  [2]", "number"}),
                    {"beep", "message  2 kolon 'KARVENIS.LST' dosyasına eklendi.",
                     "title 6/49 Rastgele Kolon Üreteci"}}));
}

TEST(Order, OfCopyingTheListIsToldBehindTheCopy) {
  World world;
  world.files.folder = {{"KARVENIS.RND", countedColumns(3)}, {"KARVENIS.LST", countedColumns(5)}};
  constexpr char question[] =
      "'KARVENIS.LST' dosyasını 'KARVENIS.RND' dosyası olarak kopyelemek istiyormusunuz?\r\r"
      "(Mevcut 'KARVENIS.RND' dosyası silinecek!)";
  constexpr char copied[] = "Kombinasyon Listesi Yasak Kombinasyonlar Listesi'ne eklendi.";
  world.boxes.expectBeep().expectQuestion(question, true).expectMessage(copied);
  EXPECT_TRUE(copyToRandomColumns(world.around));
  EXPECT_EQ(world.journal.lines,
            (Lines{"beep", "question " + std::string(question) + " Yes",
                   "copy KARVENIS.LST KARVENIS.RND", "message " + std::string(copied)}));
}

TEST(Order, OfDeletingTheListIsToldBehindTheDeletion) {
  World world;
  world.files.folder["KARVENIS.LST"] = countedColumns(5);
  world.boxes.expectBeep()
      .expectQuestion("'KARVENIS.LST' dosyasını silmek istiyormusunuz ?", true)
      .expectBeep()
      .expectMessage("'KARVENIS.LST' silindi...");
  deleteList(world.around);
  EXPECT_EQ(world.journal.lines,
            (Lines{"beep", "question 'KARVENIS.LST' dosyasını silmek istiyormusunuz ? Yes",
                   "remove KARVENIS.LST", "beep", "message 'KARVENIS.LST' silindi..."}));
}

TEST(Order, OfDeletingOneColumnBacksUpBehindTheInput) {
  World world;
  world.files.folder["KARVENIS.LST"] = countedColumns(3);
  constexpr char prompt[] = "Silmek istediğiniz kolon numarasını girin.";
  world.boxes.expectBeep().expectInput(prompt, "Kolon SİLME", "0", "2");
  ListPage page;
  DeleteColumn(world.around, page);
  EXPECT_EQ(
      world.journal.lines,
      joined(
          {{"beep", "input " + std::string(prompt) + " 2", "copy KARVENIS.LST KARVENIS.OLD"},
           replaced("KARVENIS.LST", "KARVENIS.YLS", {"open KARVENIS.LST", "close KARVENIS.LST"})}));
}

TEST(Order, OfAFilterBacksUpBehindTheQuestion) {
  World world;
  world.files.folder["KARVENIS.LST"] = columnBytes({{1, column(1, 2, 3, 4, 5, 6)}});
  constexpr char prompt[] = "İstemediğiniz sayıları (aralarına virgül koyarak) girin.";
  constexpr char question[] = "'9' numaralı topun yer aldığı kolonları silmek istiyormusunuz?";
  world.boxes.expectBeep()
      .expectInput(prompt, "Kolon SİLME", "", "9", "örnek: 5,12,30")
      .expectQuestion(question, true);
  ListPage page;
  EXPECT_TRUE(filterList(Filter::FilterUnwantedNumbers, world.around, page, world.title));
  EXPECT_EQ(world.journal.lines,
            joined({{"beep", "input " + std::string(prompt) + " 9",
                     "question " + std::string(question) + " Yes", "copy KARVENIS.LST KARVENIS.OLD",
                     "open KARVENIS.LST", "title  FAZ 1 - Kolon : 1 [ 1 ]"},
                    replaced("KARVENIS.LST", "KARVENIS.TMP",
                             {"title  Faz 2 - Kolon : 1 [ 1 ]", "write KARVENIS.LST",
                              "sync KARVENIS.LST", "close KARVENIS.LST"}),
                    {"title  KOMBİNASYON LİSTESİ  [ F10= YARDIM ]"}}));
}

// --- the listings

constexpr char textQuestion[] =
    "Rastgele Kolon Listesi'ni KARVENIS.TXT dosyasına yazdırmak istiyormusunuz ?";
constexpr char printQuestion[] = "Rastgele Kolon Listesi'ni printere bastırmak istiyormusunuz ?";

TEST(Order, OfATextBeginsWithItsFileAndEndsWithItsTitle) {
  World world;
  world.files.folder = {{"KARVENIS.RND", countedColumns(1)}, {"KARVENIS.TXT", Bytes(9)}};
  world.boxes.expectBeep()
      .expectQuestion(textQuestion, true)
      .expectBeep()
      .expectMessage(" 136 byte \"KARVENIS.TXT\" dosyasına yazıldı.", "KARVENIS 2005 Randomizer");
  listRandomColumns(world.around, world.title, Output::text);
  Lines withoutBytes = world.journal.lines;
  std::erase_if(withoutBytes,
                [](const std::string& line) { return line.find("BYTE=") != std::string::npos; });
  EXPECT_EQ(withoutBytes,
            (Lines{"beep", "question " + std::string(textQuestion) + " Yes", "open KARVENIS.RND",
                   "remove KARVENIS.TXT", "open KARVENIS.TXT", "title  Dosyaya yazılıyor...",
                   "write KARVENIS.TXT", "close KARVENIS.TXT", "title  Rastgele Kolonlar", "beep",
                   "message  136 byte \"KARVENIS.TXT\" dosyasına yazıldı.", "close KARVENIS.RND"}));
}

TEST(Order, OfAPrintThatFailsClosesTheSourceBehindTheBox) {
  World world;
  world.files.folder["KARVENIS.RND"] = countedColumns(1);
  world.printer.refuses = true;
  world.boxes.expectBeep()
      .expectQuestion(printQuestion, true)
      .expectBeep()
      .expectMessage("Printer hazır değil !", errorTitle);
  listRandomColumns(world.around, world.title, Output::printer);
  EXPECT_EQ(world.journal.lines,
            (Lines{"beep", "question " + std::string(printQuestion) + " Yes", "open KARVENIS.RND",
                   "beep", "message Printer hazır değil !", "close KARVENIS.RND"}));
}

TEST(Order, OfAPrintOpensTheSourceOutsideThePrintersTrap) {
  World world;
  world.files.folder["KARVENIS.RND"] = countedColumns(1);
  RefusingFiles files(world.files);
  files.refuses = [](Fault fault, const std::string&) { return fault == Fault::open; };
  Surroundings around = world.over(files);
  world.boxes.expectBeep().expectQuestion(printQuestion, true);
  EXPECT_THROW(listRandomColumns(around, world.title, Output::printer), RunTimeError);
}

}  // namespace
}  // namespace karvenis
