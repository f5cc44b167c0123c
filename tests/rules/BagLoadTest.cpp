#include <gtest/gtest.h>

#include <algorithm>

#include "bag/BagActions.h"
#include "bag/Spoken.h"
#include "doubles/BagWords.h"
#include "doubles/Doubles.h"
#include "doubles/PlainButtons.h"
#include "doubles/Sets.h"

// The load of the bag window.

namespace karvenis {
namespace {

constexpr char loadQuestion[] = "Topları KARVENIS.DAT dosyasından yüklemek istiyormusunuz ?";
constexpr char broken[] = "'KARVENIS.DAT' dosyası bozuk !";

using Words = std::vector<std::string>;

struct Load {
  const char* name;
  Bytes file;
  Set banko;
  Set bag;    // and marks afterwards
  int beeps;  // after the question
};

class LoadBagInWindow : public testing::TestWithParam<Load> {};

TEST_P(LoadBagInWindow, TakesAndShowsTheFile) {
  World world;
  PlainButtons buttons;
  setBag(world.state, {40, 41});
  setBanko(world.state, GetParam().banko);
  buttons.mark({1, 2});
  world.files.folder["KARVENIS.DAT"] = GetParam().file;
  world.boxes.expectBeep().expectQuestion(loadQuestion, true).expectBeep(GetParam().beeps);
  loadBagInBagWindow(world.around, buttons);
  EXPECT_EQ(bagOf(world.state), GetParam().bag);
  Set sorted = GetParam().bag;
  std::ranges::sort(sorted);
  sorted.erase(std::unique(sorted.begin(), sorted.end()), sorted.end());
  EXPECT_EQ(buttons.marked(), sorted);
  EXPECT_EQ(world.files.bytes("KARVENIS.DAT"), GetParam().file) << "a load writes nothing";
  EXPECT_EQ(world.windows.announced, Words{spokenBag(world.state)});
}

INSTANTIATE_TEST_SUITE_P(
    Files, LoadBagInWindow,
    testing::Values(Load{"Whole", words(bagPart({3, 9, 5, 7})), {}, {9, 5, 7}, 1},
                    Load{"FortyNine", words(countAndBalls(49)), {}, allBalls(), 1},
                    Load{"WithoutItsBankos", words({4, 7, 12, 30, 44}), {7, 30}, {12, 44}, 1},
                    Load{"AllItsBallsAreBankos", words({1, 7}), {7}, {}, 1},
                    Load{"RepeatedBallsStay", words({3, 5, 5, 6}), {}, {5, 5, 6}, 1},
                    Load{"ZeroEndsIt", words({4, 7, 12, 0, 30}), {}, {7, 12}, 1},
                    Load{"FiftyEndsIt", words({2, 7, 50}), {}, {7}, 1},
                    Load{"NegativeEndsIt", words({3, 7, -7, 8}), {}, {7}, 1},
                    Load{"LengthTwiceTheCountLosesTheLastBall", words({3, 7, 8}), {}, {7, 8}, 1},
                    Load{"OneBallInThreeBytes", hex("01 00 09"), {}, {9}, 1},
                    Load{"CountZero", words(bagPart({0, 5})), {}, {}, 0},
                    Load{"CountNegative", words(bagPart({-1, 5})), {}, {}, 0},
                    Load{"CountMostNegative", words(bagPart({-32768, 5})), {}, {}, 0},
                    Load{"CountFifty", words(countAndBalls(50)), {}, {}, 1},
                    Load{"CountFiftyJustLongEnough", words(bagPart({50})), {}, {}, 1},
                    Load{"CountLargestLongEnough", words(countAndBalls(32767)), {}, {}, 1}),
    [](const auto& row) { return row.param.name; });

struct Broken {
  const char* name;
  Bytes file;
};

class LoadBrokenBag : public testing::TestWithParam<Broken> {};

TEST_P(LoadBrokenBag, SaysSoAndLeavesBagAndMarks) {
  World world;
  PlainButtons buttons;
  setBag(world.state, {40, 41});
  buttons.mark({1, 2});
  world.files.folder["KARVENIS.DAT"] = GetParam().file;
  world.boxes.expectBeep().expectQuestion(loadQuestion, true).expectWarning(broken, "! HATA !");
  loadBagInBagWindow(world.around, buttons);
  EXPECT_EQ(bagOf(world.state), (Set{40, 41}));
  EXPECT_EQ(buttons.marked(), (Set{1, 2}));
  EXPECT_EQ(world.windows.announced, Words{});
}

INSTANTIATE_TEST_SUITE_P(Files, LoadBrokenBag,
                         testing::Values(Broken{"OneByteShort", hex("02 00 05")},
                                         Broken{"CountFiftyInNinetyEightBytes",
                                                [] {
                                                  auto all = bagPart({50});
                                                  all.pop_back();
                                                  return words(all);
                                                }()},
                                         Broken{"CountFortyNineOfTwo", words({49, 1, 2})},
                                         Broken{"CountLargest", words(bagPart({32767}))}),
                         [](const auto& row) { return row.param.name; });

class LoadBagTooShort : public testing::TestWithParam<int> {};

TEST_P(LoadBagTooShort, StopsBeforeTheQuestion) {
  World world;
  PlainButtons buttons;
  buttons.mark({1});
  world.files.folder["KARVENIS.DAT"] = Bytes(static_cast<std::size_t>(GetParam()), std::byte{1});
  world.boxes.expectBeep();
  loadBagInBagWindow(world.around, buttons);
  EXPECT_EQ(buttons.marked(), Set{1});
  EXPECT_EQ(world.windows.announced, Words{});
}

INSTANTIATE_TEST_SUITE_P(Lengths, LoadBagTooShort, testing::Values(0, 1, 2));

TEST(LoadBagInWindow, WithoutAFileThereIsABeepAndNothingElse) {
  World world;
  PlainButtons buttons;
  world.boxes.expectBeep();
  loadBagInBagWindow(world.around, buttons);
  EXPECT_TRUE(world.files.folder.empty());
}

TEST(LoadBagInWindow, NoLeavesBagAndMarks) {
  World world;
  PlainButtons buttons;
  setBag(world.state, {40});
  buttons.mark({1});
  world.files.folder["KARVENIS.DAT"] = words({1, 5});
  world.boxes.expectBeep().expectQuestion(loadQuestion, false);
  loadBagInBagWindow(world.around, buttons);
  EXPECT_EQ(bagOf(world.state), Set{40});
  EXPECT_EQ(buttons.marked(), Set{1});
}

TEST(LoadBagInWindow, AFileThatGoesBehindTheQuestionLeavesBagAndMarks) {
  World world;
  PlainButtons buttons;
  setBag(world.state, {40, 41});
  setBanko(world.state, {40});  // as a save may leave it
  buttons.mark({1});
  world.files.folder["KARVENIS.DAT"] = words({1, 5});
  world.boxes.whileOpen = [&] { world.files.folder.clear(); };
  world.boxes.expectBeep().expectQuestion(loadQuestion, true);
  loadBagInBagWindow(world.around, buttons);
  EXPECT_EQ(bagOf(world.state), (Set{40, 41}));
  EXPECT_EQ(buttons.marked(), Set{1});
  EXPECT_TRUE(world.files.folder.empty()) << "no file is made";
}

/// The length was taken before the question, the words are read behind it.
TEST(LoadBagInWindow, AFileThatWasShortenedMeanwhileEndsTheBag) {
  World world;
  PlainButtons buttons;
  setBag(world.state, {40, 41});
  world.files.folder["KARVENIS.DAT"] = words({3, 5, 6, 7});
  world.boxes.whileOpen = [&] { world.files.folder["KARVENIS.DAT"] = words({3, 8}); };
  world.boxes.expectBeep().expectQuestion(loadQuestion, true).expectBeep();
  loadBagInBagWindow(world.around, buttons);
  EXPECT_EQ(bagOf(world.state), Set{8});
  EXPECT_EQ(buttons.marked(), Set{8});
}

TEST(LoadBagInWindow, AFileThatWasEmptiedMeanwhileEmptiesTheBag) {
  World world;
  PlainButtons buttons;
  setBag(world.state, {40, 41});
  buttons.mark({1});
  world.files.folder["KARVENIS.DAT"] = words({3, 5, 6, 7});
  world.boxes.whileOpen = [&] { world.files.folder["KARVENIS.DAT"] = {}; };
  world.boxes.expectBeep().expectQuestion(loadQuestion, true);
  loadBagInBagWindow(world.around, buttons);
  EXPECT_EQ(bagOf(world.state), Set{});
  EXPECT_EQ(buttons.marked(), Set{});
}

TEST(LoadBagInWindow, AFileThatGrewMeanwhileIsBrokenByItsOldLength) {
  World world;
  PlainButtons buttons;
  setBag(world.state, {40, 41});
  world.files.folder["KARVENIS.DAT"] = words({1, 5});
  world.boxes.whileOpen = [&] { world.files.folder["KARVENIS.DAT"] = words({3, 5, 6, 7}); };
  world.boxes.expectBeep().expectQuestion(loadQuestion, true).expectWarning(broken, "! HATA !");
  loadBagInBagWindow(world.around, buttons);
  EXPECT_EQ(bagOf(world.state), (Set{40, 41}));
}

TEST(LoadBagInWindow, ButtonsAreUnmarkedBeforeTheSecondBeep) {
  World world;
  PlainButtons buttons;
  buttons.mark({5, 9});
  world.files.folder["KARVENIS.DAT"] = words({1, 7});
  std::vector<Set> marked;
  world.journal.listener = [&](const std::string& line) {
    if (line == "beep") marked.push_back(buttons.marked());
  };
  world.boxes.expectBeep().expectQuestion(loadQuestion, true).expectBeep();
  loadBagInBagWindow(world.around, buttons);
  EXPECT_EQ(marked, (std::vector<Set>{{5, 9}, {}}));
}

}  // namespace
}  // namespace karvenis
