#include <gtest/gtest.h>

#include "comblist/CombinationList.h"
#include "doubles/Doubles.h"
#include "doubles/RecordingSurface.h"

namespace karvenis {
namespace {

constexpr char emptyList[] = "Kombinasyon listesi dosyası 'KARVENIS.LST' boş!";
constexpr char numberPrompt[] = "Silmek istediğiniz kolon numarasını girin.";
constexpr char copyQuestion[] =
    "'KARVENIS.LST' dosyasını 'KARVENIS.RND' dosyası olarak kopyelemek istiyormusunuz?\r\r"
    "(Mevcut 'KARVENIS.RND' dosyası silinecek!)";
constexpr char copied[] = "Kombinasyon Listesi Yasak Kombinasyonlar Listesi'ne eklendi.";
constexpr char deleteQuestion[] = "'KARVENIS.LST' dosyasını silmek istiyormusunuz ?";

struct ListWorld : World {
  ListPage page;
  RecordingSurface surface;
  void redraw() { ShowPage(around, page, surface, title); }
  void hold(std::int32_t count) { files.folder[combinationList] = countedColumns(count); }
};

// --- the redraw

TEST(ShowPage, WithoutAListTouchesNothing) {
  ListWorld world;
  world.page.PageStart = 7;
  world.redraw();
  EXPECT_TRUE(world.files.folder.empty()) << "the file is not created";
  EXPECT_TRUE(world.captions().empty());
  EXPECT_EQ(world.surface.cleared, 0);
  EXPECT_EQ(world.page.PageStart, 7);
}

TEST(ShowPage, TellsOfAnEmptyListEachTimeAndKeepsThePage) {
  ListWorld world;
  world.hold(3);
  world.redraw();
  const auto shown = world.surface.lines();
  world.hold(0);
  world.boxes.expectWarning(emptyList).expectWarning(emptyList);
  world.redraw();
  world.redraw();
  EXPECT_EQ(world.surface.lines(), shown);
  EXPECT_EQ(world.captions().size(), 1U);
  EXPECT_EQ(world.page.RecordCount, 0);
  EXPECT_EQ(world.state.FileNo, 0);
}

TEST(ShowPage, HalfARecordCountsAsNone) {
  ListWorld world;
  world.files.folder[combinationList].resize(8);
  world.boxes.expectWarning(emptyList);
  world.redraw();
}

struct Page {
  const char* name;
  std::int32_t count;
  std::int32_t from;
  std::int32_t corrected;
  std::size_t rows;
  const char* caption;
};

class ShownPage : public testing::TestWithParam<Page> {};

TEST_P(ShownPage, IsTitledAndCorrected) {
  const Page& row = GetParam();
  ListWorld world;
  world.hold(row.count);
  world.page.PageStart = row.from;
  world.redraw();
  EXPECT_EQ(world.page.PageStart, row.corrected);
  ASSERT_EQ(world.surface.lines().size(), row.rows);
  EXPECT_TRUE(world.surface.lines().front().starts_with("Kolon - " +
                                                        std::to_string(row.corrected + 1) + " : "));
  EXPECT_EQ(world.captions(), std::vector<std::string>{row.caption});
  EXPECT_EQ(world.state.FileNo, 0);
}

INSTANTIATE_TEST_SUITE_P(
    Pages, ShownPage,
    testing::Values(
        Page{"First", 60, 0, 0, 25, " Kombinasyon Listesi - Sayfa 1  [ F10= Yardım ]"},
        Page{"SecondColumn", 60, 1, 1, 25, " Kombinasyon Listesi - Sayfa 2  [ F10= Yardım ]"},
        Page{"Last", 60, 50, 50, 10, " Kombinasyon Listesi - Sayfa 3  [ F10= Yardım ]"},
        Page{"BeyondTheEnd", 30, 30, 5, 25, " Kombinasyon Listesi - Sayfa 2  [ F10= Yardım ]"},
        Page{"FarBeyondAShortList", 9, 2147483647, 0, 9,
             " Kombinasyon Listesi - Sayfa 1  [ F10= Yardım ]"},
        Page{"SecondColumnOfOne", 1, 1, 0, 1, " Kombinasyon Listesi - Sayfa 1  [ F10= Yardım ]"},
        Page{"Negative", 60, -5, 0, 25, " Kombinasyon Listesi - Sayfa 1  [ F10= Yardım ]"}),
    [](const auto& row) { return row.param.name; });

// --- F1, F2, F4, F10

TEST(OpenListing, OpensTheDialogOnlyOverAWholeRecord) {
  World world;
  world.boxes.expectBeep(3);
  openListing(world.around);
  world.files.folder[combinationList].resize(15);
  openListing(world.around);
  EXPECT_TRUE(world.shown().empty());
  world.files.folder[combinationList].resize(16);
  openListing(world.around);
  EXPECT_EQ(world.shown(), std::vector<std::string>{"frmCLPrint"});
}

TEST(CopyToRandomColumns, OnlyBeepsWithoutAWholeRecord) {
  World world;
  world.boxes.expectBeep(2);
  EXPECT_TRUE(copyToRandomColumns(world.around));
  world.files.folder[combinationList].resize(15);
  EXPECT_TRUE(copyToRandomColumns(world.around));
  EXPECT_FALSE(world.files.exists(randomColumns));
}

TEST(CopyToRandomColumns, CopiesWithoutAQuestionWhereThereIsNoFile) {
  ListWorld world;
  world.hold(3);
  world.boxes.expectBeep().expectMessage(copied);
  EXPECT_TRUE(copyToRandomColumns(world.around));
  EXPECT_EQ(world.files.bytes(randomColumns), countedColumns(3));
  EXPECT_EQ(world.files.folder.size(), 2U);
}

TEST(CopyToRandomColumns, AsksBeforeItReplacesAFileAndTakesNoBackup) {
  ListWorld world;
  world.hold(3);
  world.files.folder[randomColumns] = hex("01");
  world.boxes.expectBeep().expectQuestion(copyQuestion, false);
  EXPECT_FALSE(copyToRandomColumns(world.around));
  EXPECT_EQ(world.files.bytes(randomColumns), hex("01"));
  world.boxes.expectBeep().expectQuestion(copyQuestion, true).expectMessage(copied);
  EXPECT_TRUE(copyToRandomColumns(world.around));
  EXPECT_EQ(world.files.bytes(randomColumns), countedColumns(3));
  EXPECT_EQ(world.files.bytes(combinationList), countedColumns(3));
  EXPECT_EQ(world.files.folder.size(), 2U);
}

TEST(DeleteList, OnlyBeepsWithoutAList) {
  World world;
  world.boxes.expectBeep();
  deleteList(world.around);
}

TEST(DeleteList, DeletesAfterAYesWithoutABackup) {
  ListWorld world;
  world.hold(3);
  world.boxes.expectBeep().expectQuestion(deleteQuestion, false);
  deleteList(world.around);
  EXPECT_TRUE(world.files.exists(combinationList));
  world.boxes.expectBeep()
      .expectQuestion(deleteQuestion, true)
      .expectBeep()
      .expectMessage("'KARVENIS.LST' silindi...");
  deleteList(world.around);
  EXPECT_TRUE(world.files.folder.empty());
}

TEST(FindList, TellsWhereThereIsNone) {
  ListWorld world;
  world.boxes.expectWarning("Kombinasyon listesi dosyası 'KARVENIS.LST' bulunamadı!");
  EXPECT_FALSE(findList(world.around));
  world.hold(0);
  EXPECT_TRUE(findList(world.around));
}

TEST(ShowListKeys, NamesEveryKeyAndTheCompanionProgram) {
  World world;
  world.boxes.expectBeep().expectMessage(
      "F1= Kombinasyon listesini bas (Text yap)\r"
      "F2= Kombinasyon listesini 'KARVENIS.RND' dosyasına kayıtla\r"
      "F3= Bir kolon sil\r"
      "F4= Kombinasyon listesini (KARVENIS.LST dosyasını) sil\r"
      "F5= Kombinasyon listesini istenmeyen sayılar girişine göre ele\r"
      "F6= Kombinasyon listesini istenen sayılar girişine göre ele\r"
      "F7= Kombinasyon listesini istenmeyen ikililer girişine göre ele\r"
      "F8= Kombinasyon listesini istenen ikililer girişine göre ele\r"
      "\rF10= Fonksiyon Tuşları (Yardım)\r\r"
      "Not: Tam formüllü listeler için kardeş programımızı öneririz.\r\r"
      "HOME= İlk Sayfa\rEND= Son Sayfa\rPAGEDOWN= Sonraki Sayfa\rPAGEUP= Önceki Sayfa\r\r"
      "ESC= Kapat",
      " Kombinasyon Listesi FONKSİYON TUŞLARI");
  showListKeys(world.boxes);
}

// --- F3

TEST(DeleteColumn, OnlyBeepsWithoutAColumn) {
  World world;
  ListPage page{.PageStart = 4};
  world.boxes.expectBeep(2);
  DeleteColumn(world.around, page);
  world.files.folder[combinationList].resize(8);
  DeleteColumn(world.around, page);
  EXPECT_EQ(page.PageStart, 4);
}

struct Entry {
  const char* name;
  const char* typed;
  std::int32_t pageStart;
  bool deleted;
};

class DeletedColumn : public testing::TestWithParam<Entry> {};

TEST_P(DeletedColumn, IsTheOneOfTheTypedNumber) {
  const Entry& entry = GetParam();
  ListWorld world;
  world.hold(30);
  world.page.PageStart = 25;
  world.boxes.expectBeep().expectInput(numberPrompt, "Kolon SİLME", "0", entry.typed);
  DeleteColumn(world.around, world.page);
  EXPECT_EQ(world.page.PageStart, entry.pageStart);
  EXPECT_EQ(columnsOf(world.files.bytes(combinationList)).size(), entry.deleted ? 29U : 30U);
  EXPECT_EQ(world.files.exists(listBackup), entry.deleted);
}

TEST(DeleteColumn, TheOldListIsInItsBackup) {
  ListWorld world;
  world.hold(3);
  const Bytes before = world.files.bytes(combinationList);
  world.files.folder[listBackup] = hex("01 02 03");
  world.boxes.expectBeep().expectInput(numberPrompt, "Kolon SİLME", "0", "2");
  DeleteColumn(world.around, world.page);
  EXPECT_EQ(world.files.bytes(listBackup), before);
  EXPECT_FALSE(world.files.exists(ylsScratch));
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, DeletedColumn,
    testing::Values(Entry{"First", "1", 0, true}, Entry{"Last", "30", 29, true},
                    Entry{"HalfRoundsToEven", "2.5", 1, true},
                    Entry{"BlanksInside", " 1 2 ", 11, true}, Entry{"Cancelled", "", 0, false},
                    Entry{"NoNumber", "abc", 0, false}, Entry{"Zero", "0", 0, false},
                    Entry{"Negative", "-3", -3, false}, Entry{"TooLarge", "31", 31, false},
                    Entry{"Beyond32Bits", "99999999999", 2147483647, false}),
    [](const auto& entry) { return entry.param.name; });

/// A ragged list counts as recordCount() tells; the last record's missing bytes are 0.
TEST(DeleteColumn, OfARaggedListTakesTheLastRecordThatCounts) {
  ListWorld one;
  one.files.folder[combinationList] = Bytes(9, std::byte{7});
  one.boxes.expectBeep().expectInput(numberPrompt, "Kolon SİLME", "0", "1");
  DeleteColumn(one.around, one.page);
  EXPECT_EQ(one.files.folder,
            (std::map<std::string, Bytes>{{"KARVENIS.OLD", Bytes(9, std::byte{7})}}));

  ListWorld three;
  three.hold(3);
  Bytes& ragged = three.files.folder[combinationList];
  ragged.resize(44);
  const Bytes before = ragged;
  three.boxes.expectBeep().expectInput(numberPrompt, "Kolon SİLME", "0", "3");
  DeleteColumn(three.around, three.page);
  EXPECT_EQ(three.files.folder, (std::map<std::string, Bytes>{{"KARVENIS.LST", countedColumns(2)},
                                                              {"KARVENIS.OLD", before}}));
}

TEST(DeleteColumn, TakesTheCountAsItIsAfterTheBox) {
  ListWorld world;
  world.hold(3);
  world.boxes.whileOpen = [&] { world.hold(5); };
  world.boxes.expectBeep().expectInput(numberPrompt, "Kolon SİLME", "0", "1");
  DeleteColumn(world.around, world.page);
  EXPECT_EQ(columnsOf(world.files.bytes(combinationList)).size(), 4U) << "none is lost";
}

TEST(DeleteColumn, AListThatVanishedIsAFaultOnlyForANumber) {
  ListWorld world;
  world.hold(3);
  world.boxes.whileOpen = [&] { world.files.folder.clear(); };
  world.boxes.expectBeep().expectInput(numberPrompt, "Kolon SİLME", "0", "");
  DeleteColumn(world.around, world.page);
  world.hold(3);
  world.boxes.expectBeep().expectInput(numberPrompt, "Kolon SİLME", "0", "2");
  EXPECT_THROW(DeleteColumn(world.around, world.page), RunTimeError);
}

}  // namespace
}  // namespace karvenis
