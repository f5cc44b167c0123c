#include "core/ReplaceList.h"

#include <gtest/gtest.h>

#include "doubles/Doubles.h"
#include "doubles/RefusingFiles.h"

namespace karvenis {
namespace {

constexpr ListAndScratch emptyAtFirst{combinationList, tmpScratch, ScratchStart::empty};
constexpr ListAndScratch copyAtFirst{combinationList, tmpScratch, ScratchStart::copyOfList};
constexpr ListAndScratch leftOver{combinationList, ylsScratch, ScratchStart::leftOver};

/// A list whose words are 100, 200, ... and whose first balls are 1, 2, ...
std::vector<ColumnRecord> listOf(int count) {
  std::vector<ColumnRecord> records;
  for (int n = 1; n <= count; ++n) {
    const auto first = static_cast<std::int16_t>(n);
    records.push_back({.Word = 100 * n, .Balls = column(first, 8, 9, 10, 11, 49)});
  }
  return records;
}

std::vector<ColumnRecord> without(std::vector<ColumnRecord> records, int number) {
  records.erase(records.begin() + number - 1);
  return records;
}

using Folder = std::map<std::string, Bytes>;

// --- the replacement

TEST(ReplaceList, TheScratchFileTakesTheListsPlace) {
  World world;
  world.files.folder = {{combinationList, columnBytes(listOf(3))}, {tmpScratch, hex("AA BB")}};
  replaceList(world.around, emptyAtFirst, [](ColumnFile& scratch) {
    EXPECT_EQ(scratch.count(), 0) << "what was left over is gone";
    scratch.put(1, listOf(1)[0]);
  });
  EXPECT_EQ(world.files.folder, (Folder{{combinationList, columnBytes(listOf(1))}}));
  EXPECT_EQ(world.state.FileNo, 0);
}

TEST(ReplaceList, TheScratchFileMayBeginAsACopyOfTheList) {
  World world;
  Bytes ragged = columnBytes(listOf(3));
  ragged.resize(44);
  world.files.folder = {{combinationList, ragged}, {tmpScratch, columnBytes(listOf(9))}};
  replaceList(world.around, copyAtFirst, [](ColumnFile&) {});
  EXPECT_EQ(world.files.folder, (Folder{{combinationList, ragged}}));
  world.files.folder = {{tmpScratch, columnBytes(listOf(9))}};
  replaceList(world.around, copyAtFirst, [](ColumnFile&) {});
  EXPECT_EQ(world.files.folder, (Folder{{combinationList, {}}})) << "there was no list to copy";
}

TEST(ReplaceList, AProtectedListIsRefusedBeforeAnythingIsDone) {
  World world;
  world.files.folder[combinationList] = columnBytes(listOf(3));
  const Folder before = world.files.folder;
  RefusingFiles files(world.files);
  files.refuses = [](Fault fault, const std::string& name) {
    return fault == Fault::write && name == combinationList;
  };
  bool filled = false;
  Surroundings around = world.over(files);
  EXPECT_THROW(replaceList(around, emptyAtFirst, [&](ColumnFile&) { filled = true; }),
               RunTimeError);
  EXPECT_FALSE(filled);
  EXPECT_THROW(backUpList(around), RunTimeError);
  EXPECT_EQ(world.files.folder, before);
  EXPECT_EQ(files.calls, 2);
}

TEST(ReplaceList, WhatFailsInTheMiddleLeavesTheListAndNoScratchFile) {
  for (const ListAndScratch& names : {emptyAtFirst, copyAtFirst, leftOver}) {
    World world;
    world.files.folder[combinationList] = columnBytes(listOf(3));
    const Folder before = world.files.folder;
    const auto fail = [](ColumnFile& scratch) {
      scratch.put(9000, listOf(1)[0]);
      throw RunTimeError(Fault::overflow, "32768", "too large");
    };
    EXPECT_THROW(replaceList(world.around, names, fail), RunTimeError);
    EXPECT_EQ(world.files.folder, before) << names.scratch;
  }
}

TEST(BackUpList, NeedsAListUnlessToldOtherwise) {
  World world;
  EXPECT_THROW(backUpList(world.around), RunTimeError);
  backUpAnyList(world.around);
  EXPECT_TRUE(world.files.folder.empty());
  world.files.folder[combinationList] = hex("01 02 03");
  backUpAnyList(world.around);
  EXPECT_EQ(world.files.bytes(listBackup), hex("01 02 03"));
}

// --- the deletion of one column

struct Deletion {
  const char* name;
  int count;
  int number;
};

class RemoveColumn : public testing::TestWithParam<Deletion> {};

TEST_P(RemoveColumn, LeavesTheOthersWithTheirWords) {
  const auto [name, count, number] = GetParam();
  World world;
  const Bytes before = columnBytes(listOf(count));
  world.files.folder[combinationList] = before;
  removeColumn(world.around, leftOver, number, count);
  EXPECT_EQ(world.files.bytes(combinationList), columnBytes(without(listOf(count), number)));
  EXPECT_EQ(world.files.folder.size(), 1U) << "neither scratch file nor backup";
  EXPECT_EQ(world.state.FileNo, 0);
}

INSTANTIATE_TEST_SUITE_P(Places, RemoveColumn,
                         testing::Values(Deletion{"FirstOfMany", 5, 1},
                                         Deletion{"MiddleOfMany", 5, 3},
                                         Deletion{"LastOfMany", 5, 5}, Deletion{"FirstOfTwo", 2, 1},
                                         Deletion{"LastOfTwo", 2, 2},
                                         Deletion{"BeyondOneBlock", 9000, 4500}),
                         [](const auto& deletion) { return deletion.param.name; });

TEST(RemoveColumn, RemovesAListOfOneAndTouchesNoScratchFile) {
  World world;
  world.files.folder[combinationList] = columnBytes(listOf(1));
  world.files.folder[ylsScratch] = hex("AA");
  removeColumn(world.around, leftOver, 1, 1);
  EXPECT_FALSE(world.files.exists(combinationList));
  EXPECT_EQ(world.files.bytes(ylsScratch), hex("AA"));
}

TEST(RemoveColumn, KeepsTheTailOfALeftOverScratchFile) {
  World world;
  world.files.folder[combinationList] = columnBytes(listOf(3));
  world.files.folder[ylsScratch] = columnBytes(listOf(4));
  removeColumn(world.around, leftOver, 2, 3);
  auto expected = without(listOf(3), 2);
  expected.push_back(listOf(4)[2]);
  expected.push_back(listOf(4)[3]);
  EXPECT_EQ(world.files.bytes(combinationList), columnBytes(expected));
  EXPECT_FALSE(world.files.exists(ylsScratch));
}

TEST(RemoveColumn, FillsARaggedLastRecordWithZeros) {
  World world;
  world.files.folder[combinationList] = columnBytes(listOf(3));
  world.files.folder[combinationList].resize(44);
  removeColumn(world.around, leftOver, 1, 3);
  auto expected = listOf(3);
  ballAt(expected[2].Balls, 5) = ballAt(expected[2].Balls, 6) = 0;
  EXPECT_EQ(world.files.bytes(combinationList), columnBytes(without(expected, 1)));
}

TEST(RemoveColumn, ARefusalAtAnyStepLeavesTheOldListOrTheNewOne) {
  const Bytes before = columnBytes(listOf(3));
  const Bytes after = columnBytes(without(listOf(3), 2));
  int refusals = 0;
  for (int failing = 1;; ++failing) {
    World world;
    world.files.folder[combinationList] = before;
    RefusingFiles files(world.files);
    files.refuses = [&](Fault, const std::string&) { return files.calls == failing; };
    try {
      Surroundings around = world.over(files);
      removeColumn(around, leftOver, 2, 3);
      break;
    } catch (const RunTimeError&) {
      ++refusals;
    }
    const Bytes left = world.files.bytes(combinationList);
    EXPECT_TRUE(left == before || left == after) << "refused call " << failing;
    EXPECT_FALSE(world.files.exists(ylsScratch)) << "refused call " << failing;
  }
  EXPECT_GE(refusals, 8);
}

}  // namespace
}  // namespace karvenis
