#include "doubles/RefusingFiles.h"
#include "rules/Filtering.h"

namespace karvenis {
namespace {

using enum Filter;

// --- which columns stay

struct Kept {
  const char* name;
  Filter filter;
  const char* typed;
  Column balls;
  bool kept;
};

class KeptColumn : public testing::TestWithParam<Kept> {};

TEST_P(KeptColumn, IsTheOneThatTheRuleKeeps) {
  const Kept& row = GetParam();
  QuietWorld world;
  world.boxes.typed = row.typed;
  putList(world, {record(9, row.balls)});
  EXPECT_TRUE(run(row.filter, world));
  EXPECT_EQ(world.files.exists(combinationList), row.kept);
  if (row.kept) {
    EXPECT_EQ(list(world), columnBytes({record(417, row.balls)}));
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, KeptColumn,
    testing::Values(
        Kept{"F5None", FilterUnwantedNumbers, "7,8", column(1, 2, 3, 4, 5, 6), true},
        Kept{"F5First", FilterUnwantedNumbers, "7,1", column(1, 2, 3, 4, 5, 6), false},
        Kept{"F5Third", FilterUnwantedNumbers, "3", column(1, 2, 3, 4, 5, 6), false},
        Kept{"F5Sixth", FilterUnwantedNumbers, "6", column(1, 2, 3, 4, 5, 6), false},
        Kept{"F5NoBalls", FilterUnwantedNumbers, "6", column(0, -1, 50, 32767, -32768, 417), true},
        Kept{"F6None", FilterWantedNumbers, "7", column(1, 2, 3, 4, 5, 6), false},
        Kept{"F6First", FilterWantedNumbers, "7", column(7, 10, 20, 30, 40, 49), true},
        Kept{"F6Second", FilterWantedNumbers, "7", column(1, 7, 20, 30, 40, 49), true},
        Kept{"F6OnlyThird", FilterWantedNumbers, "7", column(1, 3, 7, 20, 30, 40), false},
        Kept{"F6ThirdAndSixth", FilterWantedNumbers, "7,40", column(1, 3, 7, 20, 30, 40), true},
        Kept{"F6Fourth", FilterWantedNumbers, "20", column(1, 3, 7, 20, 30, 40), true},
        Kept{"F6Fifth", FilterWantedNumbers, "30", column(1, 3, 7, 20, 30, 40), true},
        Kept{"F6ThirdIsTheMarkItself", FilterWantedNumbers, "9", column(1, 2, -1, 4, 5, 6), true},
        Kept{"F6NoBalls", FilterWantedNumbers, "6", column(0, -1, 50, 32767, -32768, 417), false},
        Kept{"F7Both", FilterUnwantedPair, "1-6", column(1, 2, 3, 4, 5, 6), false},
        Kept{"F7Neighbours", FilterUnwantedPair, "4-3", column(1, 2, 3, 4, 5, 6), false},
        Kept{"F7OnlyOne", FilterUnwantedPair, "1-7", column(1, 2, 3, 4, 5, 6), true},
        Kept{"F7TwiceTheSame", FilterUnwantedPair, "1-1", column(1, 2, 3, 4, 5, 6), true},
        Kept{"F7ARepeatedBallCountsTwice", FilterUnwantedPair, "1-9", column(1, 1, 3, 4, 5, 6),
             false},
        Kept{"F7NoBalls", FilterUnwantedPair, "1-9", column(0, -1, 50, 32767, -32768, 417), true},
        Kept{"F8Pair", FilterWantedPairs, "1-2", column(1, 2, 3, 4, 5, 6), true},
        Kept{"F8ThirdBallCounts", FilterWantedPairs, "3-6", column(1, 2, 3, 4, 5, 6), true},
        Kept{"F8Unsorted", FilterWantedPairs, "1-6", column(6, 5, 4, 3, 2, 1), true},
        Kept{"F8OneBallOnly", FilterWantedPairs, "1-9", column(1, 2, 3, 4, 5, 6), false},
        Kept{"F8SecondPair", FilterWantedPairs, "1-9,5-6", column(1, 2, 3, 4, 5, 6), true},
        Kept{"F8PairOfOneBall", FilterWantedPairs, "7-7,8-9", column(7, 1, 2, 3, 4, 7), true},
        Kept{"F8NoBalls", FilterWantedPairs, "1-9", column(0, -1, 50, 32767, -32768, 417), false}),
    [](const auto& row) { return row.param.name; });

// --- the rewrite

struct Passes {
  const char* name;
  Filter filter;
  const char* typed;
  std::string question;
  const char* secondPass;
};

class FilterRewrite : public testing::TestWithParam<Passes> {};

TEST_P(FilterRewrite, KeepsTheOrderMarksTheWordsAndShowsItsProgress) {
  const Passes& passes = GetParam();
  World world;
  putList(world, fourColumns());
  world.files.folder[listBackup] = hex("0A");
  world.files.folder[tmpScratch] = columnBytes(Records(9));
  expectInput(world, passes.filter, passes.typed);
  world.boxes.expectQuestion(passes.question, true);
  EXPECT_TRUE(run(passes.filter, world));

  const Records all = fourColumns();
  EXPECT_EQ(list(world), columnBytes({record(417, all[0].Balls), record(417, all[3].Balls)}));
  EXPECT_EQ(world.files.bytes(listBackup), columnBytes(all));
  EXPECT_FALSE(world.files.exists(tmpScratch));
  EXPECT_EQ(world.state.FileNo, 0);
  const std::string second = passes.secondPass;
  EXPECT_EQ(world.captions(), (std::vector<std::string>{
                                  " FAZ 1 - Kolon : 4 [ 1 ]", " FAZ 1 - Kolon : 3 [ 2 ]",
                                  " FAZ 1 - Kolon : 2 [ 3 ]", " FAZ 1 - Kolon : 2 [ 4 ]",
                                  second + " 1 [ 2 ]", second + " 1 [ 2 ]", second + " 1 [ 2 ]",
                                  second + " 2 [ 2 ]", " KOMBİNASYON LİSTESİ  [ F10= YARDIM ]"}));
}

INSTANTIATE_TEST_SUITE_P(Filters, FilterRewrite,
                         testing::Values(Passes{"F5", FilterUnwantedNumbers, "7,13",
                                                unwantedSeveral("7,13"), " Faz 2 - Kolon :"},
                                         Passes{"F6", FilterWantedNumbers, "1,24",
                                                wantedSeveral("1,24"), " FAZ 2 - Kolon :"},
                                         Passes{"F8", FilterWantedPairs, "1-3,23-24",
                                                wantedPairs("1-3, 23-24"), " Faz 2 - Kolon :"}),
                         [](const auto& passes) { return passes.param.name; });

TEST(FilterRewrite, ThePairFilterToo) {
  World world;
  putList(world, fourColumns());
  expectInput(world, FilterUnwantedPair, "8-7");
  world.boxes.expectQuestion(unwantedPair("7-8"), true);
  EXPECT_TRUE(run(FilterUnwantedPair, world));
  Records kept = fourColumns();
  kept.erase(kept.begin() + 1);
  for (ColumnRecord& one : kept) one.Word = 417;
  EXPECT_EQ(list(world), columnBytes(kept));
  EXPECT_EQ(world.files.bytes(listBackup), columnBytes(fourColumns()));
  EXPECT_EQ(world.files.folder.size(), 2U);
  EXPECT_EQ(world.captions()[5], " Faz 2 - Kolon : 1 [ 3 ]");
}

TEST(FilterRewrite, EveryRecordIsMarkedEvenWhereNothingIsDeleted) {
  World world;
  putList(world, fourColumns());
  expectInput(world, FilterUnwantedPair, "7-7");
  world.boxes.expectQuestion(unwantedPair("7-7"), true);
  EXPECT_TRUE(run(FilterUnwantedPair, world));
  Records kept = fourColumns();
  for (ColumnRecord& one : kept) one.Word = 417;
  EXPECT_EQ(list(world), columnBytes(kept));
  EXPECT_EQ(world.files.bytes(listBackup), columnBytes(fourColumns()));
}

TEST(FilterRewrite, AListOfWhichNothingIsKeptIsDeletedWithoutASecondPass) {
  World world;
  putList(world, fourColumns());
  world.files.folder[tmpScratch] = hex("0B");
  expectInput(world, FilterWantedNumbers, "49");
  world.boxes.expectQuestion(wantedOne("49"), true);
  EXPECT_TRUE(run(FilterWantedNumbers, world));
  EXPECT_FALSE(world.files.exists(combinationList));
  EXPECT_EQ(world.files.bytes(listBackup), columnBytes(fourColumns()));
  EXPECT_EQ(world.files.bytes(tmpScratch), hex("0B")) << "the scratch file is not touched";
  EXPECT_EQ(world.captions().size(), 5U);
  EXPECT_EQ(world.captions().back(), " KOMBİNASYON LİSTESİ  [ F10= YARDIM ]");
}

TEST(FilterRewrite, TakesTheListAsItIsAfterTheQuestion) {
  World world;
  putList(world, {fourColumns()[0]});
  expectInput(world, FilterUnwantedNumbers, "7");
  world.boxes.expectQuestion(unwantedOne("7"), true);
  world.boxes.whileOpen = [&] { putList(world, fourColumns()); };
  EXPECT_TRUE(run(FilterUnwantedNumbers, world));
  EXPECT_EQ(columnsOf(list(world)).size(), 3U);
}

TEST(FilterRewrite, AListThatLostItsRecordsIsDeletedByOneFilterAndLeftByTheOthers) {
  const Passes rows[] = {
      {"F5", FilterUnwantedNumbers, "7", unwantedOne("7"), ""},
      {"F6", FilterWantedNumbers, "7", wantedOne("7"), ""},
      {"F7", FilterUnwantedPair, "7-8", unwantedPair("7-8"), ""},
      {"F8", FilterWantedPairs, "7-8", wantedPairs("7-8"), ""},
  };
  for (const Passes& row : rows) {
    SCOPED_TRACE(row.name);
    World world;
    putList(world, fourColumns());
    expectInput(world, row.filter, row.typed);
    world.boxes.expectQuestion(row.question, true);
    world.boxes.whileOpen = [&] { putList(world, {}); };
    const bool deletes = row.filter == FilterWantedPairs;
    EXPECT_EQ(run(row.filter, world), deletes);
    EXPECT_EQ(world.files.exists(combinationList), !deletes);
    EXPECT_EQ(world.captions().size(), deletes ? 1U : 0U);
    EXPECT_TRUE(world.files.exists(listBackup));
  }
}

TEST(FilterRewrite, AListThatVanishedIsAFaultAndLeavesTheOldBackup) {
  World world;
  putList(world, fourColumns());
  world.files.folder[listBackup] = hex("0A");
  expectInput(world, FilterUnwantedNumbers, "7");
  world.boxes.expectQuestion(unwantedOne("7"), true);
  world.boxes.whileOpen = [&] { world.files.folder.erase(combinationList); };
  EXPECT_THROW(run(FilterUnwantedNumbers, world), RunTimeError);
  EXPECT_EQ(world.files.bytes(listBackup), hex("0A"));
}

TEST(FilterRewrite, ThePageThenStartsAtTheSecondColumn) {
  for (const bool says : {true, false}) {
    QuietWorld world;
    putList(world, fourColumns());
    world.boxes.typed = "7";
    world.boxes.says = says;
    ListPage page{.PageStart = 3};
    EXPECT_EQ(filterList(FilterUnwantedNumbers, world.around, page, world.title), says);
    EXPECT_EQ(page.PageStart, says ? 1 : 3);
  }
}

/// The words of the list when phase 2 is about to begin its scratch file: `marks` of four columns.
struct Marks {
  const char* name;
  Filter filter;
  const char* typed;
  std::vector<std::int32_t> words;
};

class BetweenThePhases : public testing::TestWithParam<Marks> {};

TEST_P(BetweenThePhases, EveryRecordIsMarkedAndNothingElseChanged) {
  QuietWorld world;
  putList(world, fourColumns());
  world.boxes.typed = GetParam().typed;
  RefusingFiles files(world.files);
  files.refuses = [](Fault fault, const std::string& name) {
    return fault == Fault::open && name == tmpScratch;
  };
  Surroundings around = world.over(files);
  ListPage page;
  EXPECT_THROW(filterList(GetParam().filter, around, page, world.title), RunTimeError);

  Records marked = fourColumns();
  for (std::size_t i = 0; i < marked.size(); ++i) marked[i].Word = GetParam().words[i];
  EXPECT_EQ(list(world), columnBytes(marked));
  EXPECT_EQ(world.files.bytes(listBackup), columnBytes(fourColumns()));
  EXPECT_EQ(world.captions().back(), " FAZ 1 - Kolon : 2 [ 4 ]");
  EXPECT_EQ(world.files.folder.size(), 2U);
}

INSTANTIATE_TEST_SUITE_P(
    Filters, BetweenThePhases,
    testing::Values(Marks{"F5", FilterUnwantedNumbers, "7,13", {417, -1, -1, 417}},
                    Marks{"F6", FilterWantedNumbers, "1,24", {417, -1, -1, 417}},
                    Marks{"F8", FilterWantedPairs, "8-9,14-13", {-1, 417, 417, -1}}),
    [](const auto& marks) { return marks.param.name; });

/// Refuses the n-th step of a filter for every n: the old list must be in the backup or in place,
/// and no scratch file stays.
void refuseEachStep(Filter filter, const char* typed, const Records& records) {
  const Bytes old = columnBytes(records);
  int refusals = 0;
  for (int failing = 1;; ++failing) {
    SCOPED_TRACE("refused call " + std::to_string(failing));
    QuietWorld world;
    world.boxes.typed = typed;
    world.files.folder[combinationList] = old;
    RefusingFiles files(world.files);
    Surroundings around = world.over(files);
    files.refuses = [&](Fault, const std::string&) { return files.calls == failing; };
    ListPage page;
    try {
      filterList(filter, around, page, world.title);
      break;
    } catch (const RunTimeError&) {
      ++refusals;
    }
    EXPECT_TRUE(isSame(world.files.bytes(listBackup), old) || isSame(list(world), old));
    EXPECT_FALSE(world.files.exists(tmpScratch));
  }
  EXPECT_GE(refusals, 6);
}

TEST(FilterRewrite, ARefusalAtAnyStepLeavesTheOldListInTheBackupOrInPlace) {
  Records records;
  for (int i = 0; i < 3000; ++i) {
    for (const ColumnRecord& one : fourColumns()) records.push_back(one);
  }
  refuseEachStep(FilterUnwantedNumbers, "7", records);
  refuseEachStep(FilterWantedNumbers, "7,1", records);
  refuseEachStep(FilterUnwantedPair, "7-8", records);
  refuseEachStep(FilterWantedPairs, "7-8", records);
  refuseEachStep(FilterUnwantedNumbers, "1,7,13,19", records);
}

}  // namespace
}  // namespace karvenis
