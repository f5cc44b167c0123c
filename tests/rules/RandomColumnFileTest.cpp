#include "randomlist/RandomColumnFile.h"

#include <gtest/gtest.h>

#include "core/IgnoringFaults.h"
#include "doubles/Doubles.h"
#include "doubles/RefusingFiles.h"
#include "rules/Orders.h"

namespace karvenis {
namespace {

constexpr char deleteQuestion[] = "'KARVENIS.RND' dosyasını silmek istiyormusunuz ?";
constexpr char emptyWarning[] = "Listelenecek (kayıtlı) Rastgele Kolon yok !";

using Captions = std::vector<std::string>;

// --- save the drawn column

TEST(SaveRndColumn, MakesTheFileAndItsFirstRecordAscending) {
  World world;
  world.state.Drawn = column(42, 7, 11, 49, 1, 30);
  world.boxes.expectBeep();
  saveRndColumn(world.around, world.title, false);
  EXPECT_EQ(world.files.bytes("KARVENIS.RND"), hex("00000000 0100 0700 0B00 1E00 2A00 3100"));
  EXPECT_EQ(world.state.Drawn, column(1, 7, 11, 30, 42, 49)) << "the array itself is sorted";
  EXPECT_EQ(world.captions(), (Captions{" Kolon kayıtlanıyor...", " KARVENIS.RND Kayıt No= 1"}));
  EXPECT_EQ(world.windows.announced, Captions{" KARVENIS.RND Kayıt No= 1"});
  EXPECT_EQ(world.journal.of("pointer"), (Captions{"hourglass", "normal"}));
  EXPECT_EQ(world.state.FileNo, 0);
}

TEST(SaveRndColumn, WritesTheArrayAsItStandsWhereTheDrawSorts) {
  World world;
  world.state.Drawn = column(42, 7, 11, 49, 1, 30);
  world.boxes.expectBeep();
  saveRndColumn(world.around, world.title, true);
  EXPECT_EQ(columnsOf(world.files.bytes("KARVENIS.RND")).at(0).Balls, column(42, 7, 11, 49, 1, 30));
  EXPECT_EQ(world.state.Drawn, column(42, 7, 11, 49, 1, 30));
}

TEST(SaveRndColumn, WritesWord0WhateverTheBufferHeld) {
  World world;
  world.state.Record.Word = 417;
  world.state.Drawn = column(1, 2, 3, 4, 5, 6);
  world.boxes.expectBeep();
  saveRndColumn(world.around, world.title, false);
  EXPECT_EQ(columnsOf(world.files.bytes("KARVENIS.RND")).at(0).Word, 0);
}

TEST(SaveRndColumn, TwiceSavesTwice) {
  World world;
  world.state.Drawn = column(1, 2, 3, 4, 5, 6);
  world.boxes.expectBeep(2);
  saveRndColumn(world.around, world.title, false);
  saveRndColumn(world.around, world.title, false);
  EXPECT_EQ(columnsOf(world.files.bytes("KARVENIS.RND")).size(), 2U);
  EXPECT_EQ(world.captions().back(), " KARVENIS.RND Kayıt No= 2");
}

struct Length {
  const char* name;
  std::size_t bytes;
  std::int32_t number;  // of the new record; 0 if there is only the beep
};

class SaveBehind : public testing::TestWithParam<Length> {};

TEST_P(SaveBehind, ALengthGivesTheRecordNumber) {
  World world;
  world.files.folder["KARVENIS.RND"] = Bytes(GetParam().bytes, std::byte{7});
  world.state.Drawn = column(1, 2, 3, 4, 5, 6);
  world.boxes.expectBeep();
  saveRndColumn(world.around, world.title, false);
  const std::int32_t number = GetParam().number;
  if (number == 0) {
    EXPECT_EQ(world.files.bytes("KARVENIS.RND"), Bytes(GetParam().bytes, std::byte{7}));
    EXPECT_TRUE(world.captions().empty());
    EXPECT_TRUE(world.journal.of("pointer").empty());
    return;
  }
  const auto written = columnsOf(world.files.bytes("KARVENIS.RND"));
  EXPECT_EQ(written.at(static_cast<std::size_t>(number) - 1).Balls, column(1, 2, 3, 4, 5, 6));
  EXPECT_EQ(world.captions().back(), " KARVENIS.RND Kayıt No= " + std::to_string(number));
}

INSTANTIATE_TEST_SUITE_P(Lengths, SaveBehind,
                         testing::Values(Length{"Empty", 0, 1}, Length{"HalfARecordIsNone", 8, 1},
                                         Length{"MoreThanHalfIsOne", 9, 2},
                                         Length{"OneAndAHalfIsTwo", 24, 3},
                                         Length{"TwoAndAHalfIsTwo", 40, 3},
                                         Length{"TheLastThatFits", 32766U * 16, 32767},
                                         Length{"Full", 32767U * 16, 0},
                                         Length{"FullByRounding", 32766U * 16 + 9, 0},
                                         Length{"MoreThanFull", 40000U * 16, 0}),
                         [](const auto& length) { return length.param.name; });

TEST(SaveRndColumn, DoesNothingWhileTheDrawIsNotComplete) {
  for (int missing = 1; missing <= ballsInColumn; ++missing) {
    World world;
    world.state.Drawn = column(1, 2, 3, 4, 5, 6);
    ballAt(world.state.Drawn, missing) = 0;
    saveRndColumn(world.around, world.title, false);
    EXPECT_TRUE(world.files.folder.empty());
    EXPECT_TRUE(world.captions().empty());
    EXPECT_TRUE(world.windows.announced.empty());
  }
}

TEST(SaveRndColumn, AFullFileBeepsEvenBeforeADraw) {
  World world;
  world.files.folder["KARVENIS.RND"] = Bytes(32767U * 16);
  world.boxes.expectBeep();
  saveRndColumn(world.around, world.title, false);
  EXPECT_TRUE(world.windows.announced.empty()) << "the beep says it";
}

TEST(SaveRndColumn, AFailingWriteIsAFault) {
  World world;
  RefusingFiles files(world.files);
  files.refuses = [](Fault fault, const std::string&) { return fault == Fault::write; };
  Surroundings around = world.over(files);
  world.state.Drawn = column(1, 2, 3, 4, 5, 6);
  EXPECT_THROW(saveRndColumn(around, world.title, false), RunTimeError);
}

// --- show the list

struct ShowRow {
  const char* name;
  int bytes;  // -1: no file
  bool shows;
};

class ShowTheList : public testing::TestWithParam<ShowRow> {};

TEST_P(ShowTheList, NeedsOneWholeRecord) {
  World world;
  if (GetParam().bytes >= 0) {
    world.files.folder["KARVENIS.RND"] = Bytes(static_cast<std::size_t>(GetParam().bytes));
  }
  if (!GetParam().shows) world.boxes.expectWarning(emptyWarning);
  showRndList(world.around, world.title);
  EXPECT_EQ(world.shown(), GetParam().shows ? Captions{"frmRndLst"} : Captions{});
  EXPECT_EQ(world.captions(), GetParam().shows ? Captions{standardTitle} : Captions{});
}

INSTANTIATE_TEST_SUITE_P(Files, ShowTheList,
                         testing::Values(ShowRow{"Missing", -1, false}, ShowRow{"Empty", 0, false},
                                         ShowRow{"FifteenBytes", 15, false},
                                         ShowRow{"OneRecord", 16, true},
                                         ShowRow{"Ragged", 20, true}),
                         [](const auto& row) { return row.param.name; });

TEST(ShowRndList, ANameInOtherLettersIsNoFile) {
  World world;
  world.files.folder["karvenis.rnd"] = countedColumns(1);
  world.boxes.expectWarning(emptyWarning);
  showRndList(world.around, world.title);
}

// --- make the file the combination list

TEST(ChangeRndFile, DoesNothingWithoutAFile) {
  World world;
  changeRndFile(world.around, world.title);
  EXPECT_TRUE(world.captions().empty());
}

TEST(ChangeRndFile, NoStopsAtOnce) {
  World world;
  world.files.folder["KARVENIS.RND"] = countedColumns(3);
  const auto before = world.files.folder;
  world.boxes.expectBeep().expectQuestion(changeQuestion, false);
  changeRndFile(world.around, world.title);
  EXPECT_EQ(world.files.folder, before);
  EXPECT_TRUE(world.captions().empty());
}

TEST(ChangeRndFile, TheFirstListTakesNoBackup) {
  World world;
  world.files.folder["KARVENIS.RND"] = countedColumns(3);
  world.boxes.expectBeep()
      .expectQuestion(changeQuestion, true)
      .expectBeep()
      .expectMessage(" 3 kolon 'KARVENIS.LST' dosyasına kayıtlandı.");
  changeRndFile(world.around, world.title);
  EXPECT_EQ(world.files.folder,
            (std::map<std::string, Bytes>{{"KARVENIS.LST", countedColumns(3)}}));
  EXPECT_EQ(world.captions(), Captions{standardTitle});
}

TEST(ChangeRndFile, TheOldListGoesToItsBackup) {
  World world;
  world.files.folder = {{"KARVENIS.RND", countedColumns(3)},
                        {"KARVENIS.LST", countedColumns(5, 100)},
                        {"KARVENIS.OLD", countedColumns(9, 200)}};
  world.boxes.expectBeep()
      .expectQuestion(changeQuestion, true)
      .expectBeep()
      .expectMessage(" 3 kolon 'KARVENIS.LST' dosyasına kayıtlandı.");
  changeRndFile(world.around, world.title);
  EXPECT_EQ(world.files.folder,
            (std::map<std::string, Bytes>{{"KARVENIS.LST", countedColumns(3)},
                                          {"KARVENIS.OLD", countedColumns(5, 100)}}));
}

TEST(ChangeRndFile, AnEmptyFileIsDeletedUnaskedAndAnyListCounted) {
  for (const std::size_t bytes : {0U, 8U}) {
    World world;
    world.files.folder = {{"KARVENIS.RND", Bytes(bytes)}, {"KARVENIS.LST", countedColumns(5)}};
    world.boxes.expectBeep().expectMessage(" 5 kolon 'KARVENIS.LST' dosyasına kayıtlandı.");
    changeRndFile(world.around, world.title);
    EXPECT_EQ(world.files.folder,
              (std::map<std::string, Bytes>{{"KARVENIS.LST", countedColumns(5)}}));
    EXPECT_EQ(world.captions(), Captions{standardTitle});
  }
}

TEST(ChangeRndFile, AnEmptyFileAndNoListShowNoLastBox) {
  World world;
  world.files.folder["KARVENIS.RND"] = Bytes{};
  world.boxes.expectBeep();
  changeRndFile(world.around, world.title);
  EXPECT_TRUE(world.files.folder.empty());
  EXPECT_EQ(world.captions(), Captions{standardTitle});
}

TEST(ChangeRndFile, MoreRecordsThanTheLimitAreNotRefused) {
  World world;
  world.files.folder["KARVENIS.RND"] = Bytes(40000U * 16);
  world.boxes.expectBeep()
      .expectQuestion(changeQuestion, true)
      .expectBeep()
      .expectMessage(" 40000 kolon 'KARVENIS.LST' dosyasına kayıtlandı.");
  changeRndFile(world.around, world.title);
}

struct Refusal {
  const char* name;
  Fault fault;
  const char* file;
  std::map<std::string, Bytes> after;
  int counted;  // -1: no last box
};

class ChangeDespite : public testing::TestWithParam<Refusal> {};

TEST_P(ChangeDespite, AFailingStepTheNextOneRuns) {
  World world;
  world.files.folder = {{"KARVENIS.RND", countedColumns(3)},
                        {"KARVENIS.LST", countedColumns(5, 100)}};
  RefusingFiles files(world.files);
  files.refuses = [](Fault fault, const std::string& name) {
    return fault == GetParam().fault && name == GetParam().file;
  };
  Surroundings around = world.over(files);
  world.boxes.expectBeep().expectQuestion(changeQuestion, true).expectBeep();
  if (GetParam().counted >= 0) {
    world.boxes.expectMessage(" " + std::to_string(GetParam().counted) +
                              " kolon 'KARVENIS.LST' dosyasına kayıtlandı.");
  }
  changeRndFile(around, world.title);
  EXPECT_EQ(world.files.folder, GetParam().after);
  EXPECT_EQ(world.captions(), Captions{standardTitle});
}

INSTANTIATE_TEST_SUITE_P(
    Refusals, ChangeDespite,
    testing::Values(
        Refusal{
            "BackupFails", Fault::copy, "KARVENIS.OLD", {{"KARVENIS.LST", countedColumns(3)}}, 3},
        Refusal{
            "CopyFails",
            Fault::copy,
            "KARVENIS.LST",
            {{"KARVENIS.LST", countedColumns(5, 100)}, {"KARVENIS.OLD", countedColumns(5, 100)}},
            5},
        Refusal{"DeleteFails",
                Fault::remove,
                "KARVENIS.RND",
                {{"KARVENIS.LST", countedColumns(3)},
                 {"KARVENIS.OLD", countedColumns(5, 100)},
                 {"KARVENIS.RND", countedColumns(3)}},
                3},
        Refusal{"LengthFails",
                Fault::read,
                "KARVENIS.LST",
                {{"KARVENIS.LST", countedColumns(3)}, {"KARVENIS.OLD", countedColumns(5, 100)}},
                -1}),
    [](const auto& refusal) { return refusal.param.name; });

// --- delete the file

TEST(DeleteRndFile, OnlyBeepsWithoutAFile) {
  World world;
  world.boxes.expectBeep();
  deleteRndFile(world.around, world.title);
  EXPECT_TRUE(world.captions().empty());
}

TEST(DeleteRndFile, NoKeepsTheFile) {
  World world;
  world.files.folder["KARVENIS.RND"] = countedColumns(3);
  world.boxes.expectBeep().expectQuestion(deleteQuestion, false);
  deleteRndFile(world.around, world.title);
  EXPECT_EQ(world.files.bytes("KARVENIS.RND"), countedColumns(3));
  EXPECT_TRUE(world.captions().empty());
}

TEST(DeleteRndFile, YesDeletesAndConfirmsUnderTheDefaultTitle) {
  World world;
  world.files.folder["KARVENIS.RND"] = Bytes{};
  world.boxes.expectBeep()
      .expectQuestion(deleteQuestion, true)
      .expectBeep()
      .expectMessage("KARVENIS.RND dosyası silindi.", bareTitle);
  deleteRndFile(world.around, world.title);
  EXPECT_TRUE(world.files.folder.empty());
  EXPECT_EQ(world.captions(), Captions{standardTitle});
}

TEST(DeleteRndFile, GoesOnWhereTheDeletionFails) {
  World world;
  world.files.folder["KARVENIS.RND"] = countedColumns(3);
  RefusingFiles files(world.files);
  files.refuses = [](Fault fault, const std::string&) { return fault == Fault::remove; };
  Surroundings around = world.over(files);
  world.boxes.expectBeep()
      .expectQuestion(deleteQuestion, true)
      .expectBeep()
      .expectMessage("KARVENIS.RND dosyası silindi.", bareTitle);
  deleteRndFile(around, world.title);
  EXPECT_EQ(world.files.bytes("KARVENIS.RND"), countedColumns(3));
  EXPECT_EQ(world.captions(), Captions{standardTitle});
}

}  // namespace
}  // namespace karvenis
