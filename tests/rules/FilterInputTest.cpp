#include "rules/Filtering.h"

// What the filters ask, and what they make of the answers.

namespace karvenis {
namespace {

using enum Filter;

struct Asked {
  const char* name;
  Filter filter;
  const char* typed;
  std::string question;
};

class FilterQuestion : public testing::TestWithParam<Asked> {};

TEST_P(FilterQuestion, ShowsWhatTheInputMeansAndNoChangesNothing) {
  const Asked& asked = GetParam();
  World world;
  putList(world, fourColumns());
  const auto before = world.files.folder;
  expectInput(world, asked.filter, asked.typed);
  world.boxes.expectQuestion(asked.question, false);
  EXPECT_FALSE(run(asked.filter, world));
  EXPECT_EQ(world.files.folder, before) << "no backup either";
  EXPECT_TRUE(world.captions().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, FilterQuestion,
    testing::Values(
        Asked{"OneDigit", FilterUnwantedNumbers, "5", unwantedOne("5")},
        Asked{"OneOfTwoDigits", FilterUnwantedNumbers, "12", unwantedOne("12")},
        Asked{"TwoOfOneDigitArePlural", FilterUnwantedNumbers, "5,7", unwantedSeveral("5,7")},
        Asked{"BlanksAreSkipped", FilterUnwantedNumbers, "5, 12,30", unwantedSeveral("5,12,30")},
        Asked{"ShownAscending", FilterUnwantedNumbers, "30,5", unwantedSeveral("5,30")},
        Asked{"RepeatsMerge", FilterUnwantedNumbers, "7,7,7", unwantedOne("7")},
        Asked{"BlanksInsideNumbersToo", FilterUnwantedNumbers, "1 2,5", unwantedSeveral("5,12")},
        Asked{"LaterInvalidOnesArePassedOver", FilterUnwantedNumbers, "5,0,60", unwantedOne("5")},
        Asked{"LaterWordsArePassedOver", FilterUnwantedNumbers, "5,x,-3,6", unwantedSeveral("5,6")},
        Asked{"ADoubledCommaHidesTheNumber", FilterUnwantedNumbers, "5,,7", unwantedOne("5")},
        Asked{"ATripledCommaDoesNot", FilterUnwantedNumbers, "5,,,7", unwantedSeveral("5,7")},
        Asked{"AFourfoldOneDoes", FilterUnwantedNumbers, "5,,,,7", unwantedOne("5")},
        Asked{"ACommaAtTheEnd", FilterUnwantedNumbers, "5,7,", unwantedSeveral("5,7")},
        Asked{"WordsBehindANumber", FilterUnwantedNumbers, "5x,7y", unwantedSeveral("5,7")},
        Asked{"TwoAndAHalfIsTwo", FilterUnwantedNumbers, "2.5,3.5", unwantedSeveral("2,4")},
        Asked{"AlmostFiftyRoundsDown", FilterUnwantedNumbers, "49.4", unwantedOne("49")},
        Asked{"LettersOutsideAsciiAreSkippedWhole", FilterUnwantedNumbers, "5,ş,7",
              unwantedSeveral("5,7")},
        Asked{"WantedOne", FilterWantedNumbers, "7", wantedOne("7")},
        Asked{"WantedSeveral", FilterWantedNumbers, "49,1", wantedSeveral("1,49")}),
    [](const auto& asked) { return asked.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Pair, FilterQuestion,
    testing::Values(
        Asked{"Ascending", FilterUnwantedPair, "12-5", unwantedPair("5-12")},
        Asked{"BlanksAreSkipped", FilterUnwantedPair, " 5 - 12 ", unwantedPair("5-12")},
        Asked{"AnInvalidSecondGivesWayToALaterOne", FilterUnwantedPair, "5-0-12",
              unwantedPair("5-12")},
        Asked{"ADoubledDash", FilterUnwantedPair, "5--12", unwantedPair("5-12")},
        Asked{"TheFirstValidSecondWins", FilterUnwantedPair, "5-12-30", unwantedPair("5-12")},
        Asked{"CommasEndTheFirst", FilterUnwantedPair, "5,9-12", unwantedPair("5-12")},
        Asked{"TwiceTheSameShowsTheTypedText", FilterUnwantedPair, "7-7", unwantedPair("7-7")},
        Asked{"TwiceTheSameWithWords", FilterUnwantedPair, "7 -07<b>", unwantedPair("7 -07<b>")}),
    [](const auto& asked) { return asked.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Pairs, FilterQuestion,
    testing::Values(
        Asked{"One", FilterWantedPairs, "2-1", wantedPairs("1-2")},
        Asked{"Two", FilterWantedPairs, "40-12,3-7", wantedPairs("3-7, 12-40")},
        Asked{"RepeatsMerge", FilterWantedPairs, "1-2,2-1", wantedPairs("1-2")},
        Asked{"TheFirstBadOneEndsTheReading", FilterWantedPairs, "1-2,3-x,5-6", wantedPairs("1-2")},
        Asked{"ACommaAtTheEnd", FilterWantedPairs, "1-2,3-4,", wantedPairs("1-2, 3-4")},
        Asked{"TooShortARest", FilterWantedPairs, "1-2,3-", wantedPairs("1-2")},
        Asked{"TheLeftSideUpToItsComma", FilterWantedPairs, "1,2-3", wantedPairs("1-3")},
        Asked{"ADoubledCommaReadsOn", FilterWantedPairs, "1-2,,3-4", wantedPairs("1-2")},
        Asked{"ASecondDashEndsItsPair", FilterWantedPairs, "1-2-9,3-4", wantedPairs("1-2, 3-4")},
        Asked{"APairOfOneBallIsNotShown", FilterWantedPairs, "7-7,1-2", wantedPairs("1-2")},
        Asked{"BlanksAreSkipped", FilterWantedPairs, " 1 - 2 , 3 - 4 ", wantedPairs("1-2, 3-4")}),
    [](const auto& asked) { return asked.param.name; });

// --- inputs that ask for nothing

struct Void {
  Filter filter;
  const char* typed;
};

TEST(FilterInput, ThatAsksForNothingEndsSilently) {
  const Void inputs[] = {{FilterUnwantedNumbers, ""},
                         {FilterUnwantedNumbers, "0,5"},
                         {FilterUnwantedNumbers, "50"},
                         {FilterUnwantedNumbers, "abc"},
                         {FilterUnwantedNumbers, "5 7"},
                         {FilterUnwantedNumbers, ",5"},
                         {FilterUnwantedNumbers, "-5"},
                         {FilterUnwantedNumbers, "99999999999,5"},
                         {FilterUnwantedNumbers, "0.5"},
                         {FilterUnwantedNumbers, "49.6"},
                         {FilterWantedNumbers, ""},
                         {FilterWantedNumbers, "0,5"},
                         {FilterUnwantedPair, ""},
                         {FilterUnwantedPair, "5"},
                         {FilterUnwantedPair, "5-"},
                         {FilterUnwantedPair, "5-x"},
                         {FilterUnwantedPair, "-5-12"},
                         {FilterUnwantedPair, "0-12"},
                         {FilterUnwantedPair, "5,12"},
                         {FilterUnwantedPair, "5-50-60-"},
                         {FilterWantedPairs, ""},
                         {FilterWantedPairs, "1"},
                         {FilterWantedPairs, "1-"},
                         {FilterWantedPairs, "-12"},
                         {FilterWantedPairs, "1,2"},
                         {FilterWantedPairs, "7-7"},
                         {FilterWantedPairs, "0-5,1-2"},
                         {FilterWantedPairs, "x-5"},
                         {FilterWantedPairs, "1-50,1-2"},
                         {FilterWantedPairs, "99999999999-2"},
                         {FilterUnwantedPair, "5-99999999999"}};
  for (const auto& [filter, typed] : inputs) {
    SCOPED_TRACE(typed);
    World world;
    putList(world, fourColumns());
    const auto before = world.files.folder;
    expectInput(world, filter, typed);
    EXPECT_FALSE(run(filter, world));
    EXPECT_EQ(world.files.folder, before);
  }
}

TEST(FilterInput, IsNotAskedForWithoutAColumn) {
  for (const Filter filter :
       {FilterUnwantedNumbers, FilterWantedNumbers, FilterUnwantedPair, FilterWantedPairs}) {
    World world;
    world.boxes.expectBeep(2);
    EXPECT_FALSE(run(filter, world));
    world.files.folder[combinationList].resize(8);  // rounds to no record
    EXPECT_FALSE(run(filter, world));
    EXPECT_EQ(world.files.folder.size(), 1U);
  }
}

}  // namespace
}  // namespace karvenis
