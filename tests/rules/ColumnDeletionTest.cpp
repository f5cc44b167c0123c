#include "randomlist/ColumnDeletion.h"

#include <gtest/gtest.h>

#include "core/Numbers.h"
#include "doubles/Doubles.h"
#include "doubles/RefusingFiles.h"

namespace karvenis {
namespace {

constexpr char invalidTitle[] = "! DİKKAT ! Geçersiz Kolon Numarası";

std::string invalid(std::int32_t count) {
  return "Silinecek kolon numarası geçersiz! En çok" + withBlank(count) + " olabilir.";
}

struct DeletionWorld : World {
  ColumnDeletion deletion{around};

  /// A dialog just loaded over `bytes`.
  explicit DeletionWorld(const Bytes& bytes) {
    files.folder["KARVENIS.RND"] = bytes;
    if (recordCount(bytes.size(), ColumnRecord::size) > 0) boxes.expectBeep();
    EXPECT_TRUE(deletion.load());
  }
  std::vector<std::int32_t> words() const {
    std::vector<std::int32_t> all;
    for (const ColumnRecord& record : columnsOf(files.bytes("KARVENIS.RND"))) {
      all.push_back(record.Word);
    }
    return all;
  }
};

TEST(ColumnDeletionLoad, BeepsOnlyWhereThereAreColumns) {
  const DeletionWorld with(countedColumns(1));
  const DeletionWorld without(Bytes(8));
}

TEST(ColumnDeletionLoad, WithoutAFileThereIsNoDialog) {
  World world;
  EXPECT_FALSE(ColumnDeletion(world.around).load());
  EXPECT_TRUE(world.files.folder.empty());
}

TEST(ColumnDeletionLoad, DeletesAStaleScratchFileSilently) {
  World world;
  world.files.folder["KARVENIS.YND"] = countedColumns(4);
  EXPECT_FALSE(ColumnDeletion(world.around).load());
  EXPECT_TRUE(world.files.folder.empty());
}

TEST(ColumnDeletionLoad, SkipsWhatFails) {
  for (const Fault refused : {Fault::remove, Fault::read}) {
    World world;
    world.files.folder = {{"KARVENIS.YND", countedColumns(4)}, {"KARVENIS.RND", countedColumns(2)}};
    RefusingFiles files(world.files);
    files.refuses = [&](Fault fault, const std::string&) { return fault == refused; };
    Surroundings around = world.over(files);
    if (refused == Fault::remove) world.boxes.expectBeep();
    EXPECT_TRUE(ColumnDeletion(around).load());
  }
}

struct Deleted {
  const char* name;
  std::int32_t count;
  std::int32_t number;
  std::vector<std::int32_t> left;
};

class DeleteColumnOf : public testing::TestWithParam<Deleted> {};

TEST_P(DeleteColumnOf, LeavesTheOthersInOrder) {
  DeletionWorld world(countedColumns(GetParam().count));
  EXPECT_TRUE(world.deletion.remove(GetParam().number));
  EXPECT_EQ(world.words(), GetParam().left);
  EXPECT_EQ(world.files.folder.size(), 1U) << "neither scratch file nor backup";
}

INSTANTIATE_TEST_SUITE_P(Numbers, DeleteColumnOf,
                         testing::Values(Deleted{"FirstOfTwo", 2, 1, {2}},
                                         Deleted{"LastOfTwo", 2, 2, {1}},
                                         Deleted{"FirstOfFive", 5, 1, {2, 3, 4, 5}},
                                         Deleted{"MiddleOfFive", 5, 3, {1, 2, 4, 5}},
                                         Deleted{"LastOfFive", 5, 5, {1, 2, 3, 4}}),
                         [](const auto& deleted) { return deleted.param.name; });

TEST(ColumnDeletion, TheOnlyColumnTakesTheFileWithIt) {
  DeletionWorld world(countedColumns(1));
  EXPECT_TRUE(world.deletion.remove(1));
  EXPECT_TRUE(world.files.folder.empty());
}

struct Wrong {
  const char* name;
  std::size_t bytes;
  std::int32_t number;
  std::int32_t count;
};

class DeleteWrong : public testing::TestWithParam<Wrong> {};

TEST_P(DeleteWrong, NumberIsRefusedAndNothingTouched) {
  const Bytes before(GetParam().bytes, std::byte{3});
  DeletionWorld world(before);
  world.boxes.expectWarning(invalid(GetParam().count), invalidTitle);
  EXPECT_FALSE(world.deletion.remove(GetParam().number));
  EXPECT_EQ(world.files.folder, (std::map<std::string, Bytes>{{"KARVENIS.RND", before}}));
}

INSTANTIATE_TEST_SUITE_P(Numbers, DeleteWrong,
                         testing::Values(Wrong{"Zero", 48, 0, 3}, Wrong{"Negative", 48, -1, 3},
                                         Wrong{"OneTooMany", 48, 4, 3},
                                         Wrong{"Largest", 48, 2'147'483'647, 3},
                                         Wrong{"Smallest", 48, -2'147'483'647 - 1, 3},
                                         Wrong{"OfNone", 0, 1, 0}, Wrong{"OfHalfARecord", 8, 1, 0},
                                         Wrong{"OfTwoAndAHalf", 40, 3, 2}),
                         [](const auto& wrong) { return wrong.param.name; });

TEST(ColumnDeletion, CountsAgainWhereAColumnWasSavedMeanwhile) {
  DeletionWorld world(countedColumns(2));
  world.files.folder["KARVENIS.RND"] = countedColumns(3);
  EXPECT_TRUE(world.deletion.remove(1));
  EXPECT_EQ(world.words(), (std::vector<std::int32_t>{2, 3}));
}

TEST(ColumnDeletion, CountsAgainWhereTheOnlyColumnGotCompany) {
  DeletionWorld world(countedColumns(1));
  world.files.folder["KARVENIS.RND"] = countedColumns(2);
  EXPECT_TRUE(world.deletion.remove(1));
  EXPECT_EQ(world.words(), (std::vector<std::int32_t>{2}));
}

TEST(ColumnDeletion, InventsNoColumnWhereTheFileShrank) {
  DeletionWorld world(countedColumns(5));
  world.files.folder["KARVENIS.RND"] = countedColumns(2);
  world.boxes.expectWarning(invalid(2), invalidTitle);
  EXPECT_FALSE(world.deletion.remove(3));
  EXPECT_TRUE(world.deletion.remove(2));
  EXPECT_EQ(world.words(), (std::vector<std::int32_t>{1}));
}

TEST(ColumnDeletion, AFileThatIsGoneHasNoColumns) {
  DeletionWorld world(countedColumns(5));
  world.files.folder.clear();
  world.boxes.expectWarning(invalid(0), invalidTitle);
  EXPECT_FALSE(world.deletion.remove(1));
  EXPECT_TRUE(world.files.folder.empty());
}

TEST(ColumnDeletion, ALastRecordCutShortIsKeptFilledUp) {
  Bytes bytes = countedColumns(3);
  bytes.resize(2 * 16 + 10);
  DeletionWorld world(bytes);
  EXPECT_TRUE(world.deletion.remove(1));
  const auto left = columnsOf(world.files.bytes("KARVENIS.RND"));
  ASSERT_EQ(left.size(), 2U);
  EXPECT_EQ(left[1].Balls, column(1, 2, 3, 0, 0, 0));
}

TEST(ColumnDeletion, PassesTheRecordLimit) {
  DeletionWorld world(countedColumns(40000));
  EXPECT_TRUE(world.deletion.remove(39999));
  EXPECT_EQ(world.files.bytes("KARVENIS.RND").size(), 39999U * 16);
  EXPECT_EQ(world.words().back(), 40000);
}

TEST(ColumnDeletion, AFaultAtAnyCallLeavesOldOrNewColumns) {
  const Bytes before = countedColumns(9000);  // more than one block
  Bytes after = before;
  after.erase(after.begin() + 16, after.begin() + 32);
  bool done = false;
  for (int refusedCall = 1; !done; ++refusedCall) {
    World world;
    world.files.folder["KARVENIS.RND"] = before;
    RefusingFiles files(world.files);
    Surroundings around = world.over(files);
    world.boxes.expectBeep();
    ColumnDeletion deletion(around);
    ASSERT_TRUE(deletion.load());
    files.calls = 0;
    files.refuses = [&](Fault, const std::string&) { return files.calls == refusedCall; };
    try {
      done = deletion.remove(2);
    } catch (const RunTimeError&) {
      done = false;
    }
    EXPECT_EQ(world.files.bytes("KARVENIS.RND"), done ? after : before);
    ASSERT_LT(refusedCall, 50);
  }
}

}  // namespace
}  // namespace karvenis
