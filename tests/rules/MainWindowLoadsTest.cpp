#include "bag/MainWindowLoads.h"

#include <gtest/gtest.h>

#include <tuple>

#include "bag/Spoken.h"
#include "doubles/BagWords.h"
#include "doubles/Doubles.h"
#include "doubles/Sets.h"

namespace karvenis {
namespace {

using Words = std::vector<std::string>;

constexpr char question6[] = "Topları KARVENIS.DAT dosyasından yüklemek istiyormusunuz?";
constexpr char question8[] = "Banko seçimini KARVENIS.DAT dosyasından yüklemek istiyormusunuz ?";

struct BagLoad {
  const char* name;
  Bytes file;
  Set banko;
  Set bag;    // afterwards; it was 40, 41 before
  int beeps;  // of the load itself
};

class LoadBag : public testing::TestWithParam<BagLoad> {};

TEST_P(LoadBag, TakesWhatIsUsable) {
  World world;
  setBag(world.state, {40, 41});
  setBanko(world.state, GetParam().banko);
  world.files.folder["KARVENIS.DAT"] = GetParam().file;
  world.boxes.expectBeep().expectQuestion(question6, true).expectBeep(GetParam().beeps);
  loadBagInMainWindow(world.around);
  EXPECT_EQ(bagOf(world.state), GetParam().bag);
  EXPECT_EQ(bankoOf(world.state), GetParam().banko);
  EXPECT_EQ(world.files.bytes("KARVENIS.DAT"), GetParam().file) << "a load writes nothing";
  const bool loaded = GetParam().beeps == 2;
  EXPECT_EQ(world.windows.announced, loaded ? Words{spokenBag(world.state)} : Words{});
}

const Set earlier = {40, 41};

INSTANTIATE_TEST_SUITE_P(
    Files, LoadBag,
    testing::Values(BagLoad{"Whole", words(bagPart({3, 9, 5, 7})), {}, {9, 5, 7}, 2},
                    BagLoad{"FortyNine", words(countAndBalls(49)), {}, allBalls(), 2},
                    BagLoad{"WithoutItsBankos", words({4, 7, 12, 30, 44}), {7, 30}, {12, 44}, 2},
                    BagLoad{"RepeatedBallsStay", words({3, 5, 5, 6}), {}, {5, 5, 6}, 2},
                    BagLoad{"ZeroEndsIt", words({4, 7, 12, 0, 30}), {}, {7, 12}, 2},
                    BagLoad{"FiftyEndsIt", words({3, 7, 50, 9}), {}, {7}, 2},
                    BagLoad{"NegativeEndsIt", words({3, 7, -1, 9}), {}, {7}, 2},
                    BagLoad{"FirstBallBad", words({3, 0, 8, 9}), {}, {}, 2},
                    BagLoad{"OneBall", words({1, 49}), {}, {49}, 2},
                    BagLoad{"OddLengthLosesTheHalfWord", hex("02 00 05 00 06"), {}, {5, 6}, 2},
                    BagLoad{"OddLengthWithHalfABall", hex("01 00 05"), {}, {5}, 2},
                    BagLoad{"CountZero", words(bagPart({0, 5})), {}, earlier, 1},
                    BagLoad{"CountNegative", words(bagPart({-1, 5})), {}, earlier, 1},
                    BagLoad{"CountMostNegative", words(bagPart({-32768, 5})), {}, earlier, 1},
                    BagLoad{"LengthTwiceTheCount", words({2, 5}), {}, earlier, 1},
                    BagLoad{"LengthBelowTwiceTheCount", words({3, 5}), {}, earlier, 1},
                    BagLoad{"Empty", {}, {}, earlier, 1},
                    BagLoad{"OneByte", hex("05"), {}, earlier, 1},
                    BagLoad{"TwoBytes", words({1}), {}, earlier, 1},
                    BagLoad{"CountFiftyTooShort", words({50, 1, 2}), {}, earlier, 1},
                    BagLoad{"CountFiftyLongEnough", words(countAndBalls(50)), {}, {}, 2},
                    BagLoad{"CountSixtyLongEnough", words(countAndBalls(60)), {}, {}, 2},
                    BagLoad{"CountLargestTooShort", words(bagPart({32767, 5})), {}, earlier, 1},
                    BagLoad{"CountLargestLongEnough", words(countAndBalls(32767)), {}, {}, 2}),
    [](const auto& row) { return row.param.name; });

TEST(LoadBag, WithoutAFileThereIsABeepAndNothingElse) {
  World world;
  world.boxes.expectBeep();
  loadBagInMainWindow(world.around);
  EXPECT_TRUE(world.files.folder.empty());
}

TEST(LoadBag, NoLeavesTheBag) {
  World world;
  setBag(world.state, earlier);
  world.files.folder["KARVENIS.DAT"] = words({1, 5});
  world.boxes.expectBeep().expectQuestion(question6, false);
  loadBagInMainWindow(world.around);
  EXPECT_EQ(bagOf(world.state), earlier);
}

TEST(LoadBag, AsksWhateverTheLength) {
  World world;
  world.files.folder["KARVENIS.DAT"] = {};
  world.boxes.expectBeep().expectQuestion(question6, false);
  loadBagInMainWindow(world.around);
}

struct BankoLoad {
  const char* name;
  Bytes file;
  Set bag;
  Set bankoAfter;  // it was 40, 41 before
  Set bagAfter;
};

class LoadBanko : public testing::TestWithParam<BankoLoad> {};

TEST_P(LoadBanko, TakesWhatIsWhole) {
  World world;
  setBag(world.state, GetParam().bag);
  setBanko(world.state, {40, 41});
  world.files.folder["KARVENIS.DAT"] = GetParam().file;
  world.boxes.expectBeep().expectQuestion(question8, true).expectBeep();
  loadBankoInMainWindow(world.around);
  EXPECT_EQ(bankoOf(world.state), GetParam().bankoAfter);
  const bool loaded = GetParam().bankoAfter != earlier;
  EXPECT_EQ(world.windows.announced, loaded ? Words{spokenBanko(world.state)} : Words{});
  EXPECT_EQ(bagOf(world.state), GetParam().bagAfter);
  EXPECT_EQ(world.files.bytes("KARVENIS.DAT"), GetParam().file) << "a load writes nothing";
}

const std::vector<int> six = {6, 1, 2, 3, 4, 5, 6};

INSTANTIATE_TEST_SUITE_P(
    Files, LoadBanko,
    testing::Values(
        BankoLoad{"One", words(withBankoPart({1, 7})), {7, 8}, {7}, {8}},
        BankoLoad{"Five", words(withBankoPart({5, 9, 8, 7, 6, 5})), {}, {9, 8, 7, 6, 5}, {}},
        BankoLoad{"StaleOnesBehind", words(withBankoPart({1, 7, 8})), {7, 8}, {7}, {8}},
        BankoLoad{"NotRangeChecked", words(withBankoPart({2, 77, -3})), {1}, {77, -3}, {1}},
        BankoLoad{"OneMissing", words(withBankoPart({2, 7})), {40, 1}, earlier, {1}},
        BankoLoad{"HalfMissing",
                  [] {
                    Bytes bytes = words(withBankoPart({2, 7, 8}));
                    bytes.pop_back();
                    return bytes;
                  }(),
                  {1},
                  earlier,
                  {1}},
        BankoLoad{"None", words(withBankoPart({0})), {1, 2}, {}, {1, 2}},
        BankoLoad{"Negative", words(withBankoPart({-1})), {1, 2}, {}, {1, 2}},
        BankoLoad{"MostNegative", words(withBankoPart({-32768})), {1, 2}, {}, {1, 2}},
        BankoLoad{"SixWithAllTheirRecords", words(withBankoPart(six)), {1}, {}, {1}},
        BankoLoad{"SevenTooShort", words(withBankoPart({7})), {1}, earlier, {1}},
        BankoLoad{"LargestTooShort", words(withBankoPart({32767})), {1}, earlier, {1}}),
    [](const auto& row) { return row.param.name; });

struct TooShort {
  const char* name;
  std::size_t length;
};

class LoadBankoShort : public testing::TestWithParam<TooShort> {};

TEST_P(LoadBankoShort, StopsBeforeTheQuestion) {
  World world;
  setBanko(world.state, earlier);
  world.files.folder["KARVENIS.DAT"] = Bytes(GetParam().length, std::byte{1});
  world.boxes.expectBeep();
  loadBankoInMainWindow(world.around);
  EXPECT_EQ(bankoOf(world.state), earlier);
}

INSTANTIATE_TEST_SUITE_P(Lengths, LoadBankoShort,
                         testing::Values(TooShort{"Empty", 0}, TooShort{"BagPartOnly", 100},
                                         TooShort{"HalfACount", 101}),
                         [](const auto& row) { return row.param.name; });

TEST(LoadBag, AFileThatGoesBehindTheQuestionLeavesTheBag) {
  World world;
  setBag(world.state, earlier);
  setBanko(world.state, {40});  // as the bag window's save may leave it
  world.files.folder["KARVENIS.DAT"] = words({1, 5});
  world.boxes.whileOpen = [&] { world.files.folder.clear(); };
  world.boxes.expectBeep().expectQuestion(question6, true).expectBeep();
  loadBagInMainWindow(world.around);
  EXPECT_EQ(bagOf(world.state), earlier);
  EXPECT_EQ(bankoOf(world.state), Set{40});
  EXPECT_TRUE(world.files.folder.empty()) << "no file is made";
}

TEST(LoadBag, WhatTheFileHoldsWhenItIsOpenedCounts) {
  for (const auto& [meanwhile, bag, beeps] :
       {std::tuple{words({3, 7}), earlier, 1}, std::tuple{words({2, 8, 9}), Set{8, 9}, 2}}) {
    World world;
    setBag(world.state, earlier);
    world.files.folder["KARVENIS.DAT"] = words({1, 5, 6, 7});
    world.boxes.whileOpen = [&, changed = meanwhile] {
      world.files.folder["KARVENIS.DAT"] = changed;
    };
    world.boxes.expectBeep().expectQuestion(question6, true).expectBeep(beeps);
    loadBagInMainWindow(world.around);
    EXPECT_EQ(bagOf(world.state), bag);
  }
}

TEST(LoadBanko, AFileThatGoesBehindTheQuestionLeavesBagAndBankos) {
  World world;
  setBag(world.state, earlier);
  setBanko(world.state, {40});  // as the bag window's save may leave it
  world.files.folder["KARVENIS.DAT"] = words(withBankoPart({1, 7}));
  world.boxes.whileOpen = [&] { world.files.folder.clear(); };
  world.boxes.expectBeep().expectQuestion(question8, true).expectBeep();
  loadBankoInMainWindow(world.around);
  EXPECT_EQ(bankoOf(world.state), Set{40});
  EXPECT_EQ(bagOf(world.state), earlier);
  EXPECT_TRUE(world.files.folder.empty()) << "no file is made";
}

TEST(LoadBanko, WhatTheFileHoldsWhenItIsOpenedCounts) {
  for (const auto& [meanwhile, bankos] :
       {std::tuple{words({1, 5}), earlier}, std::tuple{words(withBankoPart({2, 7})), earlier},
        std::tuple{words(withBankoPart({2, 8, 9})), Set{8, 9}}}) {
    World world;
    setBanko(world.state, earlier);
    world.files.folder["KARVENIS.DAT"] = words(withBankoPart({1, 7}));
    world.boxes.whileOpen = [&, changed = meanwhile] {
      world.files.folder["KARVENIS.DAT"] = changed;
    };
    world.boxes.expectBeep().expectQuestion(question8, true).expectBeep();
    loadBankoInMainWindow(world.around);
    EXPECT_EQ(bankoOf(world.state), bankos);
  }
}

TEST(LoadBanko, WithoutAFileThereIsABeepAndNothingElse) {
  World world;
  world.boxes.expectBeep();
  loadBankoInMainWindow(world.around);
  EXPECT_TRUE(world.files.folder.empty());
}

TEST(LoadBanko, NoLeavesTheBankos) {
  World world;
  setBanko(world.state, earlier);
  world.files.folder["KARVENIS.DAT"] = words(withBankoPart({1, 7}));
  world.boxes.expectBeep().expectQuestion(question8, false);
  loadBankoInMainWindow(world.around);
  EXPECT_EQ(bankoOf(world.state), earlier);
}

TEST(LoadBanko, AShortFileMeanwhileLeavesTheBankos) {
  World world;
  setBanko(world.state, earlier);
  world.files.folder["KARVENIS.DAT"] = words({0});
  world.boxes.expectBeep();
  LoadBankoFromFile(world.around);
  EXPECT_EQ(bankoOf(world.state), earlier);
}

}  // namespace
}  // namespace karvenis
