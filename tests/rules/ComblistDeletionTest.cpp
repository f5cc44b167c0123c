#include <gtest/gtest.h>

#include "comblist/ListDeletion.h"
#include "doubles/Doubles.h"
#include "doubles/RefusingFiles.h"

namespace karvenis {
namespace {

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

struct Deletion {
  const char* name;
  int count;
  int number;
};

class DeleteListColumn : public testing::TestWithParam<Deletion> {};

TEST_P(DeleteListColumn, LeavesTheOthersWithTheirWordsAndTheOldListInTheBackup) {
  const auto [name, count, number] = GetParam();
  World world;
  const Bytes before = columnBytes(listOf(count));
  world.files.folder[combinationList] = before;
  world.files.folder[listBackup] = hex("01 02 03");
  deleteListColumn(world.state, world.files, number, count);
  EXPECT_EQ(world.files.bytes(combinationList), columnBytes(without(listOf(count), number)));
  EXPECT_EQ(world.files.bytes(listBackup), before);
  EXPECT_FALSE(world.files.exists(ylsScratch));
  EXPECT_EQ(world.state.FileNo, 0);
}

INSTANTIATE_TEST_SUITE_P(Places, DeleteListColumn,
                         testing::Values(Deletion{"FirstOfMany", 5, 1},
                                         Deletion{"MiddleOfMany", 5, 3},
                                         Deletion{"LastOfMany", 5, 5}, Deletion{"FirstOfTwo", 2, 1},
                                         Deletion{"LastOfTwo", 2, 2},
                                         Deletion{"BeyondOneBlock", 9000, 4500}),
                         [](const auto& deletion) { return deletion.param.name; });

TEST(DeleteListColumn, DeletesAListOfOneWithItsBackupTakenAndNoScratchFile) {
  World world;
  world.files.folder[combinationList] = columnBytes(listOf(1));
  world.files.folder[ylsScratch] = hex("AA");
  deleteListColumn(world.state, world.files, 1, 1);
  EXPECT_FALSE(world.files.exists(combinationList));
  EXPECT_EQ(world.files.bytes(listBackup), columnBytes(listOf(1)));
  EXPECT_EQ(world.files.bytes(ylsScratch), hex("AA")) << "the scratch file is not touched";
}

TEST(DeleteListColumn, KeepsTheTailOfALeftOverScratchFile) {
  World world;
  world.files.folder[combinationList] = columnBytes(listOf(3));
  world.files.folder[ylsScratch] = columnBytes(listOf(4));
  deleteListColumn(world.state, world.files, 2, 3);
  auto expected = without(listOf(3), 2);
  expected.push_back(listOf(4)[2]);
  expected.push_back(listOf(4)[3]);
  EXPECT_EQ(world.files.bytes(combinationList), columnBytes(expected));
  EXPECT_FALSE(world.files.exists(ylsScratch));
}

TEST(DeleteListColumn, FillsARaggedLastRecordWithZeros) {
  World world;
  world.files.folder[combinationList] = columnBytes(listOf(3));
  world.files.folder[combinationList].resize(44);
  deleteListColumn(world.state, world.files, 1, 3);
  auto expected = listOf(3);
  ballAt(expected[2].Balls, 5) = ballAt(expected[2].Balls, 6) = 0;
  EXPECT_EQ(world.files.bytes(combinationList), columnBytes(without(expected, 1)));
}

TEST(DeleteListColumn, ARefusalAtAnyStepLeavesTheOldListOrTheNewOne) {
  const Bytes before = columnBytes(listOf(3));
  const Bytes after = columnBytes(without(listOf(3), 2));
  int refusals = 0;
  for (int failing = 1;; ++failing) {
    World world;
    world.files.folder[combinationList] = before;
    RefusingFiles files(world.files);
    files.refuses = [&](Fault, const std::string&) { return files.calls == failing; };
    try {
      deleteListColumn(world.state, files, 2, 3);
      break;
    } catch (const RunTimeError&) {
      ++refusals;
    }
    const Bytes left = world.files.bytes(combinationList);
    EXPECT_TRUE(left == before || left == after) << "refused call " << failing;
    if (failing > 1) {
      EXPECT_EQ(world.files.bytes(listBackup), before);
    }
  }
  EXPECT_GE(refusals, 8);
}

}  // namespace
}  // namespace karvenis
