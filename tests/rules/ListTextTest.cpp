#include "listing/ListText.h"

#include <gtest/gtest.h>

#include "doubles/Doubles.h"

namespace karvenis {
namespace {

struct Line {
  const char* name;
  std::int32_t number;
  std::size_t digits;
  Column balls;
  const char* line;
};

class ColumnLine : public testing::TestWithParam<Line> {};

TEST_P(ColumnLine, IsLaidOutAs) {
  EXPECT_EQ(columnLine("F", GetParam().number, GetParam().digits, GetParam().balls),
            GetParam().line);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, ColumnLine,
    testing::Values(Line{"OfTen", 7, 2, column(3, 11, 17, 25, 38, 45),
                         "Kolon 07 - 03, 11, 17, 25, 38, 45  [139]"},
                    Line{"OfNine", 1, 1, column(3, 11, 17, 25, 38, 45),
                         "Kolon 1 - 03, 11, 17, 25, 38, 45  [139]"},
                    Line{"OfManyThousands", 95, 5, column(44, 45, 46, 47, 48, 49),
                         "Kolon 00095 - 44, 45, 46, 47, 48, 49  [279]"},
                    Line{"SumOf99", 105, 3, column(1, 2, 3, 4, 40, 49),
                         "Kolon 105 - 01, 02, 03, 04, 40, 49  [099]"},
                    Line{"SmallestSum", 5, 1, column(1, 2, 3, 4, 5, 6),
                         "Kolon 5 - 01, 02, 03, 04, 05, 06  [021]"},
                    Line{"OneZeroOnlyForAOneDigitSum", 5, 1, column(0, 0, 0, 0, 0, 7),
                         "Kolon 5 - 00, 00, 00, 00, 00, 07  [07]"},
                    Line{"DamagedBalls", 5, 1, column(-7, 100, 0, 0, 0, 0),
                         "Kolon 5 - -7, 100, 00, 00, 00, 00  [093]"},
                    Line{"ShortNegativeSum", 5, 1, column(-7, 0, 0, 0, 0, 0),
                         "Kolon 5 - -7, 00, 00, 00, 00, 00  [0-7]"},
                    Line{"SumOfMinusTen", 5, 1, column(-10, 0, 0, 0, 0, 0),
                         "Kolon 5 - -10, 00, 00, 00, 00, 00  [-10]"},
                    Line{"LongNegativeSum", 5, 1, column(-30, 0, 0, 0, 0, 0),
                         "Kolon 5 - -30, 00, 00, 00, 00, 00  [-30]"}),
    [](const auto& line) { return line.param.name; });

TEST(ColumnLineFault, ASumBeyond16Bits) {
  EXPECT_THROW(std::ignore = columnLine("F", 1, 1, column(32767, 1, 0, 0, 0, 0)), RunTimeError);
}

TEST(TotalLine, TellsTheColumns) { EXPECT_EQ(totalLine(32767), "< Toplam 32767 kolon. >"); }

TEST(SingleBytes, OneByteACharacter) {
  EXPECT_EQ(singleBytes("21.11.2026"), "21.11.2026");
  EXPECT_EQ(singleBytes("21 Şub 26"), "21 ?ub 26");
  EXPECT_EQ(singleBytes("۲۱"), "??");
  EXPECT_EQ(singleBytes("\xF0\x9F\x8E\xB1!"), "?!");
}

}  // namespace
}  // namespace karvenis
