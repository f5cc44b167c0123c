#include "core/ListPage.h"

#include <gtest/gtest.h>

#include <limits>
#include <tuple>

#include "doubles/Doubles.h"
#include "doubles/RecordingSurface.h"
#include "platform/Keys.h"

namespace karvenis {
namespace {

// --- where the keys lead

struct Move {
  const char* name;
  std::int32_t count;
  std::int32_t from;
  int code;
  std::int32_t start;  // behind the key and the redraw
  std::int32_t rows;
  std::int32_t page;
};

class PagingKey : public testing::TestWithParam<Move> {};

TEST_P(PagingKey, LeadsTo) {
  ListPage page;
  page.PageStart = GetParam().from;
  page.fit(GetParam().count);
  page.key(GetParam().code);
  page.fit(GetParam().count);
  EXPECT_EQ(page.PageStart, GetParam().start);
  EXPECT_EQ(page.PageRows, GetParam().rows);
  EXPECT_EQ(page.PageNo, GetParam().page);
  EXPECT_EQ(page.RecordCount, GetParam().count);
}

TEST(ListPage, NoKeyLeavesAnEmptyList) {
  for (const int code : {keyDown, keyUp, keyPageDown, keyPageUp, keyEnd, keyHome}) {
    ListPage page;
    page.key(code);
    EXPECT_EQ(page.PageStart, 0) << code;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Keys, PagingKey,
    testing::Values(
        Move{"HomeOfNone", 0, 0, keyHome, 0, 0, 0}, Move{"DownInNone", 0, 0, keyDown, 0, 0, 0},
        Move{"EndOfNone", 0, 0, keyEnd, 0, 0, 0},
        Move{"DownInTwentyFour", 24, 0, keyDown, 1, 23, 1},
        Move{"DownToTheLastOfTwentyFour", 24, 22, keyDown, 23, 1, 1},
        Move{"DownPastTheLastOfTwentyFour", 24, 23, keyDown, 0, 24, 1},
        Move{"DownOnTheLastPageOfThirty", 30, 5, keyDown, 6, 24, 2},
        Move{"DownPastTheLastOfThirty", 30, 29, keyDown, 5, 25, 2},
        Move{"DownOfFiftyOne", 51, 25, keyDown, 26, 25, 3}, Move{"Up", 30, 5, keyUp, 4, 25, 2},
        Move{"UpToTheTop", 30, 1, keyUp, 0, 25, 1}, Move{"UpAtTheTop", 30, 0, keyUp, 0, 25, 1},
        Move{"PageUpFrom24", 60, 24, keyPageUp, 0, 25, 1},
        Move{"PageUpFrom25", 60, 25, keyPageUp, 0, 25, 1},
        Move{"PageUpFrom26", 60, 26, keyPageUp, 1, 25, 2},
        Move{"PageDownOf24", 24, 0, keyPageDown, 0, 24, 1},
        Move{"PageDownOf25", 25, 0, keyPageDown, 0, 25, 1},
        Move{"PageDownOf26", 26, 0, keyPageDown, 25, 1, 2},
        Move{"PageDownWith24Left", 49, 25, keyPageDown, 25, 24, 2},
        Move{"PageDownWith25Left", 50, 25, keyPageDown, 25, 25, 2},
        Move{"PageDownWith26Left", 51, 25, keyPageDown, 50, 1, 3},
        Move{"SpaceIsPageDown", 26, 0, keySpace, 25, 1, 2},
        Move{"EnterIsPageDown", 26, 0, keyEnter, 25, 1, 2},
        Move{"EndOf24Stays", 24, 3, keyEnd, 3, 21, 1}, Move{"EndOf25", 25, 3, keyEnd, 0, 25, 1},
        Move{"EndOf26", 26, 0, keyEnd, 1, 25, 2}, Move{"EndOf100", 100, 0, keyEnd, 75, 25, 4},
        Move{"Home", 100, 61, keyHome, 0, 25, 1},
        Move{"LeftIsNoPagingKey", 100, 61, keyLeft, 61, 25, 4},
        Move{"F5IsNoPagingKey", 100, 61, keyF5, 61, 25, 4},
        Move{"NegativeStartIsTheTop", 100, -5, keyOther, 0, 25, 1},
        Move{"NegativeStartOfNone", 0, -5, keyOther, 0, 0, 0},
        Move{"StartBeyondTheEnd", 30, 2'000'000'000, keyOther, 5, 25, 2},
        Move{"StartAtTheEnd", 30, 30, keyOther, 5, 25, 2},
        Move{"StartBeyondAShortList", 24, 24, keyOther, 0, 24, 1},
        Move{"ThreeMillion", 3'000'000, 0, keyEnd, 2'999'975, 25, 120'000},
        Move{"TheLongestList", std::numeric_limits<std::int32_t>::max(), 0, keyEnd,
             std::numeric_limits<std::int32_t>::max() - 25, 25, 85'899'346}),
    [](const auto& move) { return move.param.name; });

TEST(ListPage, AClickPagesOnAndEndsOnTheLastFullPage) {
  ListPage page;
  page.fit(30);
  page.click();
  page.fit(30);
  EXPECT_EQ(page.PageStart, 25);
  EXPECT_EQ(page.PageRows, 5);
  page.click();
  page.fit(30);
  EXPECT_EQ(page.PageStart, 5);
  EXPECT_EQ(page.PageRows, 25);
}

TEST(ListPage, AClickOnAShortListStaysAtItsTop) {
  ListPage page;
  page.fit(7);
  page.click();
  page.fit(7);
  EXPECT_EQ(page.PageStart, 0);
  EXPECT_EQ(page.PageRows, 7);
}

TEST(ListPage, AClickBeyond32BitsIsAFault) {
  ListPage page;
  page.PageStart = std::numeric_limits<std::int32_t>::max() - 24;
  EXPECT_THROW(page.click(), RunTimeError);
}

TEST(ListPage, AShrunkListMovesThePage) {
  ListPage page;
  page.PageStart = 60;
  page.fit(100);
  EXPECT_EQ(page.PageStart, 60);
  page.fit(40);
  EXPECT_EQ(page.PageStart, 15);
  page.fit(10);
  EXPECT_EQ(page.PageStart, 0);
  EXPECT_EQ(page.PageRows, 10);
}

TEST(ListPage, KeysOnAStartThatWasNeverFittedStayInRange) {
  for (const int code : {keyPageDown, keyPageUp, keyUp, keyDown, keyEnd, keyHome}) {
    ListPage page;
    page.fit(100);
    page.PageStart = std::numeric_limits<std::int32_t>::min();
    page.key(code);
    page.fit(100);
    EXPECT_GE(page.PageStart, 0) << code;
  }
}

TEST(PageTitle, TellsListAndPage) {
  EXPECT_EQ(pageTitle("Rastgele Kolon Listesi", 12),
            " Rastgele Kolon Listesi - Sayfa 12  [ F10= Yardım ]");
  EXPECT_EQ(pageTitle("Kombinasyon Listesi", 0), " Kombinasyon Listesi - Sayfa 0  [ F10= Yardım ]");
}

// --- what a page looks like

struct PageWorld : World {
  RecordingSurface surface;

  /// Draws the page of `records` that starts behind `start`.
  void draw(const std::vector<ColumnRecord>& records, std::int32_t start = 0) {
    files.folder["L"] = columnBytes(records);
    ColumnFile file(state, files, "L");
    ListPage page;
    page.PageStart = start;
    page.fit(file.count());
    drawPage(page, file, surface);
  }
};

std::vector<ColumnRecord> equalRecords(std::size_t count, const Column& balls) {
  return std::vector<ColumnRecord>(count, {417, balls});
}

TEST(DrawPage, PrintsLabelBallsAndSumInTheirPlacesAndColours) {
  PageWorld world;
  world.draw(equalRecords(2, column(1, 2, 13, 24, 35, 46)), 1);
  using Run = RecordingSurface::Run;
  const std::vector<Run> expected = {
      {200, 200, QBColor::lightRed, "Kolon - 2 : "},  // 12 characters: ends at 1400
      {1600, 200, QBColor::lightBlue, " 1  "},       {2000, 200, QBColor::lightBlue, " 2  "},
      {2400, 200, QBColor::lightBlue, " 13  "},      {2800, 200, QBColor::lightBlue, " 24  "},
      {3200, 200, QBColor::lightBlue, " 35  "},      {3600, 200, QBColor::lightBlue, " 46  "},
      {4100, 200, QBColor::lightBlue, "[ 121 ]"},
  };
  EXPECT_EQ(world.surface.runs, expected);
  EXPECT_EQ(world.surface.cleared, 1);
}

TEST(DrawPage, PrintsAtMost25RowsEachOnItsLine) {
  PageWorld world;
  world.draw(equalRecords(40, column(1, 2, 3, 4, 5, 6)), 3);
  const auto lines = world.surface.lines();
  ASSERT_EQ(lines.size(), 25U);
  EXPECT_EQ(lines.front(), "Kolon - 4 :  1   2   3   4   5   6  [ 021 ]");
  EXPECT_EQ(lines.back(), "Kolon - 28 :  1   2   3   4   5   6  [ 021 ]");
}

TEST(DrawPage, AnEmptyListClearsTheSurface) {
  PageWorld world;
  world.surface.print("old");
  world.draw({});
  EXPECT_TRUE(world.surface.runs.empty());
}

struct LabelEnd {
  const char* name;
  double charWidth;  // of 12 characters behind 200
  double firstBall;
};

class BallColumn : public testing::TestWithParam<LabelEnd> {};

TEST_P(BallColumn, StartsBehindTheLabel) {
  PageWorld world;
  world.surface.charWidth = GetParam().charWidth;
  world.draw(equalRecords(1, column(1, 2, 3, 4, 5, 6)));
  EXPECT_DOUBLE_EQ(world.surface.runs.at(1).x, GetParam().firstBall);
  EXPECT_DOUBLE_EQ(world.surface.runs.at(6).x, GetParam().firstBall + 2000);
  EXPECT_DOUBLE_EQ(world.surface.runs.at(7).x, GetParam().firstBall + 2500);
}

INSTANTIATE_TEST_SUITE_P(Labels, BallColumn,
                         testing::Values(LabelEnd{"Short", 10, 1600},
                                         LabelEnd{"JustBelow1600", 1399.0 / 12, 1600},
                                         LabelEnd{"At1600", 1400.0 / 12, 1700},
                                         LabelEnd{"JustBelow1700", 1499.0 / 12, 1700},
                                         LabelEnd{"At1700", 1500.0 / 12, 1775},
                                         LabelEnd{"Long", 200, 2675}),
                         [](const auto& label) { return label.param.name; });

struct Sum {
  const char* name;
  Column balls;
  const char* shown;
};

class SumInBrackets : public testing::TestWithParam<Sum> {};

TEST_P(SumInBrackets, ShowsThreeDigits) {
  PageWorld world;
  world.draw(equalRecords(1, GetParam().balls));
  EXPECT_EQ(world.surface.runs.back().text, GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(Sums, SumInBrackets,
                         testing::Values(Sum{"Smallest", column(1, 2, 3, 4, 5, 6), "[ 021 ]"},
                                         Sum{"NinetyNine", column(1, 2, 3, 4, 40, 49), "[ 099 ]"},
                                         Sum{"Hundred", column(1, 2, 3, 5, 40, 49), "[ 100 ]"},
                                         Sum{"Largest", column(44, 45, 46, 47, 48, 49), "[ 279 ]"},
                                         Sum{"Damaged", column(-300, 0, 0, 0, 0, 0), "[ 0-300 ]"},
                                         Sum{"Damaged16Bit", column(32767, 0, 0, 0, 0, 0),
                                             "[ 32767 ]"}),
                         [](const auto& sum) { return sum.param.name; });

TEST(DrawPage, ADamagedBallIsShownAsItIs) {
  PageWorld world;
  world.draw(equalRecords(1, column(-7, 0, 50, 1, 2, 3)));
  EXPECT_EQ(world.surface.runs.at(1).text, "-7  ");
  EXPECT_EQ(world.surface.runs.at(3).text, " 50  ");
}

TEST(DrawPage, ASumBeyond16BitsIsAFault) {
  PageWorld world;
  EXPECT_THROW(world.draw(equalRecords(1, column(32767, 1, 0, 0, 0, 0))), RunTimeError);
}

TEST(DrawPage, BytesMissingFromTheLastRecordAre0) {
  PageWorld world;
  world.files.folder["L"] = Bytes(16 + 10, std::byte{1});
  ColumnFile file(world.state, world.files, "L");
  ListPage page;
  page.fit(file.count());
  drawPage(page, file, world.surface);
  EXPECT_EQ(world.surface.lines().back(), "Kolon - 2 :  257   257   257   0   0   0  [ 771 ]");
}

TEST(FitRows, LeavesLettersAsTheyAreThatKeepTheBallsInOneColumn) {
  RecordingSurface surface;
  surface.charWidth = 93;  // "Kolon - 8888 : " is 15 characters: 200 + 15 x 93 < 1600
  std::ignore = fitRows(surface);
  EXPECT_EQ(surface.percent, 100);
}

TEST(FitRows, NarrowsWiderLettersUntilFourDigitsKeepTheBallsInOneColumn) {
  RecordingSurface surface;
  std::ignore = fitRows(surface);
  EXPECT_EQ(surface.percent, 93) << "200 + 1500 x 93 % < 1600";
}

TEST(FitRows, LeavesLettersReadable) {
  RecordingSurface surface;
  surface.charWidth = 300;
  std::ignore = fitRows(surface);
  EXPECT_EQ(surface.percent, 75);
}

TEST(FitRows, HaveRoomForNumbersOfSixDigits) {
  RecordingSurface surface;
  surface.charWidth = 200;  // of which 75 % are left
  // "Kolon - 888888 : " is 17 characters, "[ 888 ]" is 7.
  EXPECT_DOUBLE_EQ(fitRows(surface), 200 + 17 * 150 + 75 + 2500 + 7 * 150);
  EXPECT_TRUE(surface.runs.empty());
}

}  // namespace
}  // namespace karvenis
