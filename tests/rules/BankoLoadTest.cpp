#include <gtest/gtest.h>

#include "bag/BankoActions.h"
#include "bag/Spoken.h"
#include "doubles/BagWords.h"
#include "doubles/Doubles.h"
#include "doubles/PlainFields.h"
#include "doubles/Sets.h"

// The load of the banko window.

namespace karvenis {
namespace {

constexpr char loadQuestion[] = "Banko topları KARVENIS.DAT dosyasından yüklemek istiyormusunuz ?";
constexpr char broken[] = "'KARVENIS.DAT' dosyası bozuk !";

using Words = std::vector<std::string>;
using Texts = PlainFields::Texts;

struct Load {
  const char* name;
  std::vector<int> bankoPart;
  Set banko;
  Texts shown;
  Set bag;  // it was 7, 12, 30, 44 before
};

class LoadBankoInWindow : public testing::TestWithParam<Load> {};

TEST_P(LoadBankoInWindow, TakesAndShowsTheFile) {
  World world;
  PlainFields fields;
  setBag(world.state, bagOfFour);
  setBanko(world.state, {48, 49});
  fields.chosen = 5;
  fields.texts = {"1", "2", "3", "4", "5"};
  const Bytes file = words(withBankoPart(GetParam().bankoPart));
  world.files.folder["KARVENIS.DAT"] = file;
  world.boxes.expectBeep().expectQuestion(loadQuestion, true);
  loadBankoInBankoWindow(world.around, fields);
  EXPECT_EQ(bankoOf(world.state), GetParam().banko);
  EXPECT_EQ(fields.chosen, static_cast<int>(GetParam().banko.size()));
  EXPECT_EQ(fields.texts, GetParam().shown);
  EXPECT_EQ(bagOf(world.state), GetParam().bag);
  EXPECT_EQ(world.files.bytes("KARVENIS.DAT"), file) << "a load writes nothing";
  EXPECT_EQ(world.windows.announced, Words{spokenBanko(world.state)});
}

INSTANTIATE_TEST_SUITE_P(
    Files, LoadBankoInWindow,
    testing::Values(
        Load{"Two", {2, 30, 7}, {30, 7}, {"30", "7"}, {12, 44}},
        Load{"Five", {5, 1, 2, 3, 4, 5}, {1, 2, 3, 4, 5}, {"1", "2", "3", "4", "5"}, bagOfFour},
        Load{"StaleOnesBehind", {1, 7, 12}, {7}, {"7"}, {12, 30, 44}},
        Load{"NotRangeChecked", {2, 77, 7}, {77, 7}, {"", "7"}, {12, 30, 44}},
        Load{"None", {0}, {}, {}, bagOfFour}, Load{"Negative", {-1}, {}, {}, bagOfFour},
        Load{"MostNegative", {-32768}, {}, {}, bagOfFour},
        Load{"Six", {6, 1, 2, 3, 4, 5, 6}, {}, {}, bagOfFour},
        Load{"SevenIn118Bytes", {7, 1, 2, 3, 4, 5, 6, 7, 8}, {}, {}, bagOfFour}),
    [](const auto& row) { return row.param.name; });

struct Broken {
  const char* name;
  std::vector<int> bankoPart;
};

class LoadBrokenBanko : public testing::TestWithParam<Broken> {};

TEST_P(LoadBrokenBanko, SaysSoAndLeavesTheBankos) {
  World world;
  PlainFields fields;
  setBag(world.state, {7, 12});
  setBanko(world.state, {12, 49});
  fields.chosen = 3;
  fields.texts = {"1", "2", "3"};
  world.files.folder["KARVENIS.DAT"] = words(withBankoPart(GetParam().bankoPart));
  world.boxes.expectBeep().expectQuestion(loadQuestion, true).expectWarning(broken, "! HATA !");
  loadBankoInBankoWindow(world.around, fields);
  EXPECT_EQ(bankoOf(world.state), (Set{12, 49}));
  EXPECT_EQ(fields.chosen, 3);
  EXPECT_EQ(fields.texts, (Texts{"1", "2", "3"}));
  EXPECT_EQ(bagOf(world.state), Set{7}) << "the bankos still leave the bag";
  EXPECT_EQ(world.windows.announced, Words{});
}

INSTANTIATE_TEST_SUITE_P(Files, LoadBrokenBanko,
                         testing::Values(Broken{"SevenIn102Bytes", {7}},
                                         Broken{"OneMissing", {2, 7}},
                                         Broken{"SixOneMissing", {6, 1, 2, 3, 4, 5}},
                                         Broken{"Largest", {32767}}),
                         [](const auto& row) { return row.param.name; });

class LoadBankoTooShort : public testing::TestWithParam<int> {};

TEST_P(LoadBankoTooShort, StopsBeforeTheQuestion) {
  World world;
  PlainFields fields;
  world.files.folder["KARVENIS.DAT"] = Bytes(static_cast<std::size_t>(GetParam()), std::byte{1});
  world.boxes.expectBeep();
  loadBankoInBankoWindow(world.around, fields);
  EXPECT_EQ(bankoOf(world.state), Set{});
}

INSTANTIATE_TEST_SUITE_P(Lengths, LoadBankoTooShort, testing::Values(0, 2, 100, 101));

TEST(LoadBankoInWindow, WithoutAFileThereIsABeepAndNothingElse) {
  World world;
  PlainFields fields;
  world.boxes.expectBeep();
  loadBankoInBankoWindow(world.around, fields);
  EXPECT_TRUE(world.files.folder.empty());
}

TEST(LoadBankoInWindow, NoLeavesAllAsItWas) {
  World world;
  PlainFields fields;
  fields.texts = {"1"};
  setBanko(world.state, {48});
  world.files.folder["KARVENIS.DAT"] = words(withBankoPart({1, 7}));
  world.boxes.expectBeep().expectQuestion(loadQuestion, false);
  loadBankoInBankoWindow(world.around, fields);
  EXPECT_EQ(bankoOf(world.state), Set{48});
  EXPECT_EQ(fields.texts, Texts{"1"});
}

TEST(LoadBankoInWindow, AFileThatGoesBehindTheQuestionLeavesAllAsItWas) {
  World world;
  PlainFields fields;
  fields.texts = {"1"};
  setBag(world.state, {48, 49});  // as the bag window's save may leave it
  setBanko(world.state, {48});
  world.files.folder["KARVENIS.DAT"] = words(withBankoPart({1, 7}));
  world.boxes.whileOpen = [&] { world.files.folder.clear(); };
  world.boxes.expectBeep().expectQuestion(loadQuestion, true);
  loadBankoInBankoWindow(world.around, fields);
  EXPECT_EQ(bankoOf(world.state), Set{48});
  EXPECT_EQ(bagOf(world.state), (Set{48, 49}));
  EXPECT_EQ(fields.texts, Texts{"1"});
  EXPECT_TRUE(world.files.folder.empty()) << "no file is made";
}

/// The length was taken before the question, the words are read behind it.
TEST(LoadBankoInWindow, AFileThatWasShortenedMeanwhileReadsAsZeros) {
  World world;
  PlainFields fields;
  setBanko(world.state, {48});
  world.files.folder["KARVENIS.DAT"] = words(withBankoPart({2, 7, 8}));
  world.boxes.whileOpen = [&] {
    world.files.folder["KARVENIS.DAT"] = words(withBankoPart({2, 7}));
  };
  world.boxes.expectBeep().expectQuestion(loadQuestion, true);
  loadBankoInBankoWindow(world.around, fields);
  EXPECT_EQ(bankoOf(world.state), (Set{7, 0}));
}

TEST(LoadBankoInWindow, AFileThatGrewMeanwhileIsBrokenByItsOldLength) {
  World world;
  PlainFields fields;
  setBanko(world.state, {48});
  world.files.folder["KARVENIS.DAT"] = words(withBankoPart({1, 7}));
  world.boxes.whileOpen = [&] {
    world.files.folder["KARVENIS.DAT"] = words(withBankoPart({2, 7, 8}));
  };
  world.boxes.expectBeep().expectQuestion(loadQuestion, true).expectWarning(broken, "! HATA !");
  loadBankoInBankoWindow(world.around, fields);
  EXPECT_EQ(bankoOf(world.state), Set{48});
}

}  // namespace
}  // namespace karvenis
