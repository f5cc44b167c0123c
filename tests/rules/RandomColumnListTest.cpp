#include "randomlist/RandomColumnList.h"

#include <gtest/gtest.h>

#include "doubles/Doubles.h"
#include "doubles/RecordingSurface.h"
#include "doubles/RefusingFiles.h"
#include "randomlist/RandomColumnFile.h"

namespace karvenis {
namespace {

constexpr char appendQuestion[] =
    "Rastgele Kolon Listesi'ni Kombinasyon Listesi'ne eklemek istiyormusunuz ?";
constexpr char appended[] = "Rastgele Kolon Listesi Kombinasyon Listesi'ne eklendi.";
constexpr char saveQuestion[] =
    "Rastgele Kolon Listesi'ni (KARVENIS.RND) Kombinasyon Listesi (KARVENIS.LST) olarak "
    "kayıtlamak istiyormusunuz?";
constexpr char deleteQuestion[] = "'KARVENIS.RND' dosyasını silmek istiyormusunuz ?";

using Folder = std::map<std::string, Bytes>;

struct ListWorld : World {
  ListPage page;
  RecordingSurface surface;
  void redraw() { ShowRndPage(around, page, surface, title); }
};

// --- the redraw

TEST(ShowRndPage, CreatesAMissingFileAndShowsPage0) {
  ListWorld world;
  world.redraw();
  EXPECT_EQ(world.files.folder, (Folder{{"KARVENIS.RND", {}}}));
  EXPECT_EQ(world.captions().back(), " Rastgele Kolon Listesi - Sayfa 0  [ F10= Yardım ]");
  EXPECT_TRUE(world.surface.runs.empty());
  EXPECT_EQ(world.state.FileNo, 0);
}

TEST(ShowRndPage, ShowsTheFileAsItIsNow) {
  ListWorld world;
  world.files.folder["KARVENIS.RND"] = countedColumns(26);
  world.redraw();
  EXPECT_EQ(world.surface.lines().size(), 25U);
  EXPECT_EQ(world.captions().back(), " Rastgele Kolon Listesi - Sayfa 1  [ F10= Yardım ]");
  world.page.PageStart = 25;
  world.redraw();
  EXPECT_EQ(world.surface.lines(),
            std::vector<std::string>{"Kolon - 26 :  1   2   3   4   5   31  [ 046 ]"});
  EXPECT_EQ(world.captions().back(), " Rastgele Kolon Listesi - Sayfa 2  [ F10= Yardım ]");
  world.files.folder["KARVENIS.RND"] = countedColumns(3);
  world.redraw();
  EXPECT_EQ(world.surface.lines().size(), 3U);
  EXPECT_EQ(world.page.PageStart, 0);
}

// --- append to the combination list

struct Append {
  const char* name;
  std::size_t listBytes;
  std::int32_t start;  // of the page behind it
};

class AppendBehind : public testing::TestWithParam<Append> {};

TEST_P(AppendBehind, AListOfAnyLength) {
  ListWorld world;
  const Bytes list(GetParam().listBytes, std::byte{5});
  const auto start = static_cast<std::size_t>(GetParam().start);
  world.files.folder = {{"KARVENIS.RND", countedColumns(3)}, {"KARVENIS.LST", list}};
  world.boxes.expectBeep()
      .expectQuestion(appendQuestion, true)
      .expectBeep()
      .expectMessage(appended);
  appendToCombinationList(world.around, world.page);
  EXPECT_EQ(world.page.PageStart, GetParam().start);
  EXPECT_EQ(world.page.RecordCount, 3);
  Bytes expected = list;
  expected.resize(start * 16);
  EXPECT_EQ(world.files.folder, (Folder{{"KARVENIS.RND", countedColumns(3)},
                                        {"KARVENIS.LST", joined(expected, countedColumns(3))}}))
      << "words copied, no backup, no scratch file";
}

INSTANTIATE_TEST_SUITE_P(Lists, AppendBehind,
                         testing::Values(Append{"Empty", 0, 0}, Append{"TwoColumns", 32, 2},
                                         Append{"RestRoundedOff", 40, 2},
                                         Append{"RestRoundedUp", 41, 3},
                                         Append{"Full", 32767U * 16, 32767}),
                         [](const auto& append) { return append.param.name; });

TEST(AppendToCombinationList, MakesAMissingListAndIgnoresAStaleScratchFile) {
  ListWorld world;
  world.files.folder = {{"KARVENIS.RND", countedColumns(2)}, {"KARVENIS.YND", countedColumns(9)}};
  world.boxes.expectBeep()
      .expectQuestion(appendQuestion, true)
      .expectBeep()
      .expectMessage(appended);
  appendToCombinationList(world.around, world.page);
  EXPECT_EQ(world.files.folder,
            (Folder{{"KARVENIS.RND", countedColumns(2)}, {"KARVENIS.LST", countedColumns(2)}}));
}

TEST(AppendToCombinationList, TheNextRedrawShowsThePageBehindTheOldList) {
  ListWorld world;
  world.files.folder = {{"KARVENIS.RND", countedColumns(60)}, {"KARVENIS.LST", countedColumns(7)}};
  world.boxes.expectBeep()
      .expectQuestion(appendQuestion, true)
      .expectBeep()
      .expectMessage(appended);
  appendToCombinationList(world.around, world.page);
  world.redraw();
  EXPECT_EQ(world.page.PageStart, 7);
  world.page.PageStart = 67;
  world.redraw();
  EXPECT_EQ(world.page.PageStart, 35) << "clamped to the last full page";
}

TEST(AppendToCombinationList, NoChangesNothing) {
  ListWorld world;
  world.page.PageStart = 4;
  world.files.folder["KARVENIS.RND"] = countedColumns(2);
  world.boxes.expectBeep().expectQuestion(appendQuestion, false);
  appendToCombinationList(world.around, world.page);
  EXPECT_EQ(world.files.folder, (Folder{{"KARVENIS.RND", countedColumns(2)}}));
  EXPECT_EQ(world.page.PageStart, 4);
}

TEST(AppendToCombinationList, OnlyBeepsWithoutAWholeColumn) {
  for (const int bytes : {-1, 0, 15}) {
    ListWorld world;
    if (bytes >= 0) world.files.folder["KARVENIS.RND"] = Bytes(static_cast<std::size_t>(bytes));
    world.boxes.expectBeep();
    appendToCombinationList(world.around, world.page);
  }
}

/// Appends with the `refusedCall`-th call refused (0: none); returns how many calls there were.
int appendRefusing(ListWorld& world, int refusedCall) {
  RefusingFiles files(world.files);
  files.refuses = [&](Fault, const std::string&) { return files.calls == refusedCall; };
  Surroundings around = world.over(files);
  appendToCombinationList(around, world.page);
  return files.calls;
}

TEST(AppendToCombinationList, AFaultAtAnyCallLeavesTheOldList) {
  const Bytes random = countedColumns(9000);  // more than one block
  const Bytes old = countedColumns(5000);
  int calls = 0;
  {
    ListWorld world;
    world.files.folder = {{"KARVENIS.RND", random}, {"KARVENIS.LST", old}};
    world.boxes.expectBeep()
        .expectQuestion(appendQuestion, true)
        .expectBeep()
        .expectMessage(appended);
    calls = appendRefusing(world, 0);
    EXPECT_EQ(world.files.bytes("KARVENIS.LST"), joined(old, random));
  }
  for (int refusedCall = 1; refusedCall <= calls; ++refusedCall) {
    ListWorld world;
    world.files.folder = {{"KARVENIS.RND", random}, {"KARVENIS.LST", old}};
    world.boxes.expectBeep();
    if (refusedCall > 1) world.boxes.expectQuestion(appendQuestion, true);
    EXPECT_THROW(appendRefusing(world, refusedCall), RunTimeError) << refusedCall;
    EXPECT_EQ(world.files.bytes("KARVENIS.LST"), old) << refusedCall;
    EXPECT_EQ(world.files.bytes("KARVENIS.RND"), random) << refusedCall;
    EXPECT_FALSE(world.files.exists(yndScratch)) << refusedCall;
  }
}

// --- save as the combination list

TEST(SaveAsCombinationList, CopiesAndTakesTheBackup) {
  ListWorld world;
  world.files.folder = {{"KARVENIS.RND", countedColumns(3)},
                        {"KARVENIS.LST", countedColumns(5, 100)},
                        {"KARVENIS.OLD", countedColumns(9, 200)}};
  world.boxes.expectBeep()
      .expectQuestion(saveQuestion, true)
      .expectBeep()
      .expectMessage(" 3 kolon 'KARVENIS.LST' dosyasına kayıtlandı.");
  saveAsCombinationList(world.around);
  EXPECT_EQ(world.files.folder, (Folder{{"KARVENIS.RND", countedColumns(3)},
                                        {"KARVENIS.LST", countedColumns(3)},
                                        {"KARVENIS.OLD", countedColumns(5, 100)}}));
}

TEST(SaveAsCombinationList, TheFirstListTakesNoBackup) {
  ListWorld world;
  world.files.folder["KARVENIS.RND"] = countedColumns(3);
  world.boxes.expectBeep()
      .expectQuestion(saveQuestion, true)
      .expectBeep()
      .expectMessage(" 3 kolon 'KARVENIS.LST' dosyasına kayıtlandı.");
  saveAsCombinationList(world.around);
  EXPECT_EQ(world.files.folder,
            (Folder{{"KARVENIS.RND", countedColumns(3)}, {"KARVENIS.LST", countedColumns(3)}}));
}

TEST(SaveAsCombinationList, AnEmptyFileMakesAnEmptyList) {
  ListWorld world;
  world.files.folder = {{"KARVENIS.RND", {}}, {"KARVENIS.LST", countedColumns(5)}};
  world.boxes.expectBeep()
      .expectQuestion(saveQuestion, true)
      .expectBeep()
      .expectMessage(" 0 kolon 'KARVENIS.LST' dosyasına kayıtlandı.");
  saveAsCombinationList(world.around);
  EXPECT_EQ(
      world.files.folder,
      (Folder{{"KARVENIS.RND", {}}, {"KARVENIS.LST", {}}, {"KARVENIS.OLD", countedColumns(5)}}));
}

TEST(SaveAsCombinationList, NoChangesNothing) {
  ListWorld world;
  world.files.folder["KARVENIS.RND"] = countedColumns(3);
  world.boxes.expectBeep().expectQuestion(saveQuestion, false);
  saveAsCombinationList(world.around);
  EXPECT_EQ(world.files.folder, (Folder{{"KARVENIS.RND", countedColumns(3)}}));
}

TEST(SaveAsCombinationList, AFileThatVanishedIsAFault) {
  ListWorld world;
  world.files.folder["KARVENIS.LST"] = countedColumns(3);
  world.boxes.expectBeep().expectQuestion(saveQuestion, true);
  EXPECT_THROW(saveAsCombinationList(world.around), RunTimeError);
  EXPECT_EQ(world.files.bytes("KARVENIS.LST"), countedColumns(3));
}

// --- the commands that only open a dialog

struct Opens {
  const char* name;
  int bytes;  // -1: no file
  bool deletion;
  bool listing;
};

class DialogOver : public testing::TestWithParam<Opens> {};

TEST_P(DialogOver, AFileOfAnyLength) {
  ListWorld world;
  if (GetParam().bytes >= 0) {
    world.files.folder["KARVENIS.RND"] = Bytes(static_cast<std::size_t>(GetParam().bytes));
  }
  std::vector<std::string> expected;
  world.boxes.expectBeep();
  DeleteOneColumn(world.around, world.page);
  if (GetParam().deletion) expected.emplace_back("frmRndDel");
  EXPECT_EQ(world.shown(), expected);
  world.boxes.expectBeep();
  openRndListing(world.around);
  if (GetParam().listing) expected.emplace_back("frmRLPrint");
  EXPECT_EQ(world.shown(), expected);
}

INSTANTIATE_TEST_SUITE_P(Files, DialogOver,
                         testing::Values(Opens{"Missing", -1, false, false},
                                         Opens{"Empty", 0, false, false},
                                         Opens{"HalfARecordCountsAsNone", 8, false, false},
                                         Opens{"FifteenBytesCountAsOne", 15, true, false},
                                         Opens{"OneRecord", 16, true, true}),
                         [](const auto& opens) { return opens.param.name; });

TEST(DeleteOneColumn, StoresTheCount) {
  ListWorld world;
  world.files.folder["KARVENIS.RND"] = countedColumns(31);
  world.boxes.expectBeep();
  DeleteOneColumn(world.around, world.page);
  EXPECT_EQ(world.page.RecordCount, 31);
}

// --- delete the file

TEST(DeleteRndList, YesDeletesWithoutAConfirmation) {
  ListWorld world;
  world.files.folder["KARVENIS.RND"] = countedColumns(3);
  world.boxes.expectBeep().expectQuestion(deleteQuestion, true);
  askAndDeleteRndFile(world.around);
  EXPECT_TRUE(world.files.folder.empty());
}

TEST(DeleteRndList, NoKeepsTheFile) {
  ListWorld world;
  world.files.folder["KARVENIS.RND"] = countedColumns(3);
  world.boxes.expectBeep().expectQuestion(deleteQuestion, false);
  askAndDeleteRndFile(world.around);
  EXPECT_EQ(world.files.bytes("KARVENIS.RND"), countedColumns(3));
}

TEST(DeleteRndList, OnlyBeepsWithoutAFile) {
  ListWorld world;
  world.boxes.expectBeep();
  askAndDeleteRndFile(world.around);
}

TEST(DeleteRndList, AFileThatStaysIsNoFault) {
  ListWorld world;
  world.files.folder["KARVENIS.RND"] = countedColumns(3);
  RefusingFiles files(world.files);
  files.refuses = [](Fault fault, const std::string&) { return fault == Fault::remove; };
  Surroundings around = world.over(files);
  world.boxes.expectBeep().expectQuestion(deleteQuestion, true);
  askAndDeleteRndFile(around);
}

// --- help

TEST(ShowRndListKeys, NamesEveryKey) {
  ListWorld world;
  const std::string text =
      "F1= Rastgele Kolon Listesi'ni Kombinasyon Listesi'ne (KARVENIS.LST'ye) ekle\r"
      "F2= Rastgele Kolon Listesi'ni Kombinasyon Listesi (KARVENIS.LST) olarak kayıtla\r"
      "F3= Bir kolon sil\r"
      "F4= Rastgele Kolon Listesi'ni (KARVENIS.RND dosyasını) sil\r\r"
      "F9= Rastgele Kolon Listesi'ni bas (KARVENIS.TXT dosyasına yaz)\r\r"
      "F10 = Komut Tuşları (Yardım)\r\r"
      "HOME= İlk Sayfa\rEND= Son Sayfa\rPAGEDOWN= Sonraki Sayfa\rPAGEUP= Önceki Sayfa\r\r"
      "ESC= Kapat/Çık";
  EXPECT_EQ(std::ranges::count(text, '\r'), 14);
  world.boxes.expectBeep().expectMessage(text, " FONKSİYON TUŞLARI");
  showRndListKeys(world.boxes);
}

}  // namespace
}  // namespace karvenis
