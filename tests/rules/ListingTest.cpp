#include "listing/Listing.h"

#include <gtest/gtest.h>

#include "core/Numbers.h"
#include "doubles/Doubles.h"
#include "doubles/RefusingFiles.h"

namespace karvenis {
namespace {

using Folder = std::map<std::string, Bytes>;

constexpr char listingTitle[] = "KARVENIS 2005 Randomizer";
constexpr char textQuestionR[] =
    "Rastgele Kolon Listesi'ni KARVENIS.TXT dosyasına yazdırmak istiyormusunuz ?";
constexpr char printQuestionR[] = "Rastgele Kolon Listesi'ni printere bastırmak istiyormusunuz ?";
constexpr char textQuestionC[] =
    "Kombinasyon Listesi'ni KARVENIS.TXT dosyasına yazdırmak istiyormusunuz ?";
constexpr char printQuestionC[] = "Kombinasyon Listesi'ni printere bastırmak istiyormusunuz ?";

std::string told(std::size_t bytes) {
  return " " + std::to_string(bytes) + " byte \"KARVENIS.TXT\" dosyasına yazıldı.";
}

/// Equal columns with the sum 139.
Bytes columns139(std::size_t count) {
  return columnBytes(std::vector<ColumnRecord>(count, {417, column(3, 11, 17, 25, 38, 45)}));
}

struct ListingWorld : World {
  void listRandom(Output output) { listRandomColumns(around, title, output); }
  RangeRefusal listRange(Output output, std::int32_t first, std::int32_t last) {
    return listCombinations(around, title, output, {first, last});
  }
  std::string text() const { return files.text("KARVENIS.TXT"); }
};

// --- the text file

TEST(ListText, OfRandomColumnsByteByByte) {
  ListingWorld world;
  world.files.folder["KARVENIS.RND"] =
      columnBytes({{0, column(3, 11, 17, 25, 38, 45)}, {0, column(1, 2, 3, 4, 40, 49)}});
  const std::string expected =
      "< KARVENIS 2005 Randomizer >\r\n"
      "Rastgele Kolon Listesi [ 21.11.2026 ] \r\n"
      "\r\n"
      "Kolon 1 - 03, 11, 17, 25, 38, 45  [139]\r\n"
      "Kolon 2 - 01, 02, 03, 04, 40, 49  [099]\r\n"
      "\r\n"
      "< Toplam 2 kolon. >\r\n";
  world.boxes.expectBeep()
      .expectQuestion(textQuestionR, true)
      .expectBeep()
      .expectMessage(told(expected.size()), listingTitle);
  world.listRandom(Output::text);
  EXPECT_EQ(world.text(), expected);
  EXPECT_EQ(world.files.folder.size(), 2U);
  EXPECT_EQ(world.state.FileNo, 0);
}

TEST(ListText, OfARangeOfCombinationsByteByByte) {
  ListingWorld world;
  world.files.folder["KARVENIS.LST"] = columns139(105);
  std::string expected =
      "< KARVENIS 2005 Randomizer >\r\n"
      "SAYISAL LOTO Kombinasyon Listesi [ 21.11.2026 ]\r\n"
      "\r\n";
  for (int number = 95; number <= 105; ++number) {
    expected += "Kolon " + padded(number, 3) + " - 03, 11, 17, 25, 38, 45  [139]\r\n";
  }
  expected += "\r\n< Toplam 11 kolon. >\r\n";
  world.boxes.expectBeep()
      .expectQuestion(textQuestionC, true, listingTitle)
      .expectBeep()
      .expectMessage(told(expected.size()), listingTitle);
  EXPECT_EQ(world.listRange(Output::text, 95, 105), RangeRefusal::none);
  EXPECT_EQ(world.text(), expected);
}

TEST(ListText, OfOneColumn) {
  ListingWorld world;
  world.files.folder["KARVENIS.LST"] = columns139(105);
  world.boxes.expectBeep()
      .expectQuestion(textQuestionC, true, listingTitle)
      .expectBeep()
      .expectMessage(told(30 + 49 + 2 + 41 + 2 + 21), listingTitle);
  world.listRange(Output::text, 7, 7);
  EXPECT_NE(world.text().find("\r\n\r\nKolon 7 - "), std::string::npos);
  EXPECT_TRUE(world.text().ends_with("[139]\r\n\r\n< Toplam 1 kolon. >\r\n"));
}

struct Padding {
  std::size_t count;
  const char* firstLine;
};

TEST(ListText, NumbersAreAsLongAsTheLargest) {
  for (const Padding& row : {Padding{9, "\nKolon 1 - "}, Padding{10, "\nKolon 01 - "},
                             Padding{250, "\nKolon 001 - "}, Padding{32767, "\nKolon 00001 - "}}) {
    ListingWorld world;
    world.files.folder["KARVENIS.RND"] = columns139(row.count);
    const std::size_t digits = std::to_string(row.count).size();
    const std::size_t bytes = 30 + 40 + 2 + row.count * (40 + digits) + 2 + (20 + digits);
    world.boxes.expectBeep()
        .expectQuestion(textQuestionR, true)
        .expectBeep()
        .expectMessage(told(bytes), listingTitle);
    world.listRandom(Output::text);
    EXPECT_NE(world.text().find(row.firstLine), std::string::npos) << row.count;
    EXPECT_EQ(world.text().size(), bytes);
  }
}

TEST(ListText, ADateBeyondAsciiKeepsOneByteACharacter) {
  ListingWorld world;
  world.clock.today = "21 Şub 2026";
  world.files.folder["KARVENIS.RND"] = columns139(1);
  world.boxes.expectBeep()
      .expectQuestion(textQuestionR, true)
      .expectBeep()
      .expectMessage(told(30 + 41 + 2 + 41 + 2 + 21), listingTitle);
  world.listRandom(Output::text);
  EXPECT_NE(world.text().find("[ 21 ?ub 2026 ] \r\n"), std::string::npos);
}

TEST(ListText, ASecondRunReplacesTheFirst) {
  ListingWorld world;
  world.files.folder = {{"KARVENIS.RND", columns139(1)}, {"KARVENIS.TXT", Bytes(5000)}};
  world.boxes.expectBeep()
      .expectQuestion(textQuestionR, true)
      .expectBeep()
      .expectMessage(told(136), listingTitle);
  world.listRandom(Output::text);
  EXPECT_EQ(world.text().size(), 136U);
}

TEST(ListText, TheTitleTellsTheByteOfEachCharacterAndLine) {
  const auto check = [](const std::string& blank, std::size_t headBytes, ListingWorld& world) {
    const auto& captions = world.captions();
    std::vector<std::string> expected = {blank.empty() ? "Dosyaya yazılıyor..."
                                                       : " Dosyaya yazılıyor..."};
    for (std::size_t k = 1; k <= headBytes; ++k) {
      expected.push_back(blank + "BYTE= " + std::to_string(k));
    }
    expected.push_back(blank + "BYTE= " + std::to_string(headBytes + 41 + 1));
    expected.push_back(blank + "BYTE= " + std::to_string(headBytes + 82 + 1));
    for (std::size_t k = 1; k <= 23; ++k) {
      expected.push_back("BYTE= " + std::to_string(headBytes + 82 + k));
    }
    expected.push_back(blank.empty() ? "Kombinasyon Listesi" : " Rastgele Kolonlar");
    EXPECT_EQ(captions, expected);
  };
  ListingWorld random;
  random.files.folder["KARVENIS.RND"] = columns139(2);
  random.boxes.expectBeep()
      .expectQuestion(textQuestionR, true)
      .expectBeep()
      .expectMessage(told(177), listingTitle);
  random.listRandom(Output::text);
  check(" ", 72, random);

  ListingWorld combinations;
  combinations.files.folder["KARVENIS.LST"] = columns139(2);
  combinations.boxes.expectBeep()
      .expectQuestion(textQuestionC, true, listingTitle)
      .expectBeep()
      .expectMessage(told(186), listingTitle);
  combinations.listRange(Output::text, 1, 2);
  check("", 81, combinations);
}

TEST(ListText, TheLastBoxFindsTheTitleBackAndTheSourceOpen) {
  ListingWorld world;
  world.files.folder["KARVENIS.RND"] = columns139(1);
  world.boxes.expectBeep()
      .expectQuestion(textQuestionR, true)
      .expectBeep()
      .expectMessage(told(136), listingTitle);
  world.boxes.whileOpen = [&] {
    if (!world.boxes.finished()) return;
    EXPECT_EQ(world.captions().back(), " Rastgele Kolonlar");
    EXPECT_EQ(world.state.FileNo, 1);
  };
  world.listRandom(Output::text);
}

TEST(ListText, EveryFailingCallIsAFault) {
  const auto run = [](ListingWorld& world, int refusedCall) {
    world.files.folder = {{"KARVENIS.RND", columns139(3000)}, {"KARVENIS.TXT", Bytes(9)}};
    RefusingFiles files(world.files);
    files.refuses = [&](Fault, const std::string&) { return files.calls == refusedCall; };
    Surroundings around = world.over(files);
    listRandomColumns(around, world.title, Output::text);
    return files.calls;
  };
  const std::string lastBox = told(30 + 40 + 2 + 3000 * 44 + 2 + 24);
  ListingWorld whole;
  whole.boxes.expectBeep()
      .expectQuestion(textQuestionR, true)
      .expectBeep()
      .expectMessage(lastBox, listingTitle);
  const int calls = run(whole, 0);
  EXPECT_GE(calls, 7);
  for (int refusedCall = 1; refusedCall <= calls; ++refusedCall) {
    ListingWorld world;
    world.boxes.expectBeep().expectQuestion(textQuestionR, true);
    if (refusedCall >= calls - 1) world.boxes.expectBeep();  // the box's length is asked for
    if (refusedCall == calls)
      world.boxes.expectMessage(lastBox, listingTitle);  // the source is closed
    EXPECT_THROW(run(world, refusedCall), RunTimeError) << refusedCall;
    EXPECT_EQ(world.files.bytes("KARVENIS.RND"), columns139(3000));
  }
}

// --- the printer

TEST(ListPrinter, RandomColumns) {
  ListingWorld world;
  world.files.folder["KARVENIS.RND"] = columns139(10);
  world.boxes.expectBeep().expectQuestion(printQuestionR, true);
  world.listRandom(Output::printer);
  std::vector<std::string> expected = {"font 11", "y 500",
                                       "x 1000",  "line < KARVENIS 2005 Randomizer >",
                                       "x 1000",  "line Rastgele Kolon Listesi [ 21.11.2026 ] ",
                                       "line "};
  for (int number = 1; number <= 10; ++number) {
    expected.emplace_back("x 1000");
    expected.push_back("line Kolon " + padded(number, 2) + " - 03, 11, 17, 25, 38, 45  [139]");
  }
  expected.insert(expected.end(), {"line ", "x 1000", "line < Toplam 10 kolon. >", "end"});
  EXPECT_EQ(world.printed(), expected);
  EXPECT_TRUE(world.captions().empty());
  EXPECT_EQ(world.files.folder.size(), 1U);
}

TEST(ListPrinter, ARangeOfCombinations) {
  ListingWorld world;
  world.files.folder["KARVENIS.LST"] = columns139(12);
  world.boxes.expectBeep().expectQuestion(printQuestionC, true, listingTitle);
  EXPECT_EQ(world.listRange(Output::printer, 9, 10), RangeRefusal::none);
  EXPECT_EQ(world.printed().at(5), "line SAYISAL LOTO Kombinasyon Listesi [ 21.11.2026 ] ");
  EXPECT_EQ(world.printed().at(8), "line Kolon 09 - 03, 11, 17, 25, 38, 45  [139]");
  EXPECT_EQ(world.printed().at(13), "line < Toplam 2 kolon. >");
}

TEST(ListPrinter, ARefusalIsToldAndTheSourceClosed) {
  ListingWorld world;
  world.files.folder["KARVENIS.RND"] = columns139(2);
  world.printer.refuses = true;
  world.boxes.expectBeep()
      .expectQuestion(printQuestionR, true)
      .expectBeep()
      .expectMessage("Printer hazır değil !", errorTitle, Icon::none);
  world.listRandom(Output::printer);
  EXPECT_TRUE(world.printer.killed);
  EXPECT_EQ(world.state.FileNo, 0);
}

TEST(ListPrinter, AnyOtherFaultIsToldAsThePrintersToo) {
  ListingWorld world;
  world.files.folder["KARVENIS.LST"] = columnBytes({{0, column(32767, 1, 0, 0, 0, 0)}});
  world.boxes.expectBeep()
      .expectQuestion(printQuestionC, true, listingTitle)
      .expectBeep()
      .expectMessage("Printer hazır değil !", errorTitle, Icon::none);
  world.listRange(Output::printer, 1, 1);
  EXPECT_TRUE(world.printer.killed) << "half a document must not wait for the next one";
}

// --- what is asked and refused before anything is touched

TEST(ListRandomColumns, NoStops) {
  ListingWorld world;
  world.boxes.expectBeep().expectQuestion(textQuestionR, false);
  world.listRandom(Output::text);
  world.boxes.expectBeep().expectQuestion(printQuestionR, false);
  world.listRandom(Output::printer);
  EXPECT_TRUE(world.files.folder.empty());
}

TEST(ListRandomColumns, AnEmptyFileIsRefusedBehindTheQuestion) {
  for (const int bytes : {-1, 0, 8}) {
    ListingWorld world;
    if (bytes >= 0) world.files.folder["KARVENIS.RND"] = Bytes(static_cast<std::size_t>(bytes));
    const Folder before = world.files.folder;
    world.boxes.expectBeep()
        .expectQuestion(textQuestionR, true)
        .expectWarning("KARVENIS.RND dosyasında kayıt yok !", errorTitle);
    world.listRandom(Output::text);
    EXPECT_EQ(world.files.folder, before);
    EXPECT_TRUE(world.captions().empty());
  }
}

TEST(ListRandomColumns, ACountBeyond16BitsIsAFault) {
  ListingWorld world;
  world.files.folder["KARVENIS.RND"] = columns139(32768);
  world.boxes.expectBeep().expectQuestion(textQuestionR, true);
  EXPECT_THROW(world.listRandom(Output::text), RunTimeError);
  EXPECT_FALSE(world.files.exists("KARVENIS.TXT"));
}

TEST(ListCombinations, NoStopsBeforeTheRangeIsLookedAt) {
  ListingWorld world;
  world.boxes.expectBeep().expectQuestion(textQuestionC, false, listingTitle);
  EXPECT_EQ(world.listRange(Output::text, -5, -9), RangeRefusal::none);
}

TEST(ListCombinations, ACountBeyond16BitsIsNone) {
  ListingWorld world;
  world.files.folder["KARVENIS.LST"] = columns139(40000);
  world.boxes.expectBeep()
      .expectQuestion(textQuestionC, true, listingTitle)
      .expectBeep()
      .expectMessage(told(30 + 49 + 2 + 2 * 45 + 2 + 21), listingTitle);
  world.listRange(Output::text, 39999, 40000);
}

struct BadRange {
  const char* name;
  int records;  // -1: no file
  std::int32_t first;
  std::int32_t last;
  RangeRefusal refused;
};

class RefusedRange : public testing::TestWithParam<BadRange> {};

TEST_P(RefusedRange, TouchesNothing) {
  ListingWorld world;
  if (GetParam().records >= 0) {
    world.files.folder["KARVENIS.LST"] = columns139(static_cast<std::size_t>(GetParam().records));
  }
  const Folder before = world.files.folder;
  world.boxes.expectBeep()
      .expectQuestion(textQuestionC, true, listingTitle)
      .expectWarning(GetParam().refused == RangeRefusal::first ? "Başlangıç numarası GEÇERSİZ !"
                                                               : "Bitiş Numarası GEÇERSİZ !",
                     errorTitle);
  EXPECT_EQ(world.listRange(Output::text, GetParam().first, GetParam().last), GetParam().refused);
  EXPECT_EQ(world.files.folder, before);
}

INSTANTIATE_TEST_SUITE_P(
    Ranges, RefusedRange,
    testing::Values(BadRange{"FirstBelow1", 9, 0, 5, RangeRefusal::first},
                    BadRange{"FirstNegative", 9, -3, 5, RangeRefusal::first},
                    BadRange{"FirstBeyondTheEnd", 9, 10, 10, RangeRefusal::first},
                    BadRange{"FirstComesBeforeLast", 9, 0, 99, RangeRefusal::first},
                    BadRange{"LastBeforeFirst", 9, 5, 4, RangeRefusal::last},
                    BadRange{"LastBeyondTheEnd", 9, 5, 10, RangeRefusal::last},
                    BadRange{"LastFarOut", 9, 1, 2147483647, RangeRefusal::last},
                    BadRange{"NoFile", -1, 1, 1, RangeRefusal::first},
                    BadRange{"EmptyFile", 0, 1, 1, RangeRefusal::first}),
    [](const auto& range) { return range.param.name; });

}  // namespace
}  // namespace karvenis
