#include "core/Numbers.h"

#include <gtest/gtest.h>

#include <limits>

namespace karvenis {
namespace {

TEST(Numbers, ABlankStandsForThePlusSign) {
  EXPECT_EQ(withBlank(1), " 1");
  EXPECT_EQ(withBlank(0), " 0");
  EXPECT_EQ(withBlank(-5), "-5");
  EXPECT_EQ(withBlank(32767), " 32767");
}

TEST(Numbers, PaddingAddsZerosAndNeverCuts) {
  EXPECT_EQ(padded(7, 2), "07");
  EXPECT_EQ(padded(49, 2), "49");
  EXPECT_EQ(padded(139, 2), "139");
  EXPECT_EQ(padded(9, 1), "9");
}

struct Typed {
  const char* text;
  std::int32_t number;
};

class TypedNumber : public testing::TestWithParam<Typed> {};

TEST_P(TypedNumber, IsTheLeadingOneRounded) {
  EXPECT_EQ(typedNumber32(GetParam().text), GetParam().number) << "[" << GetParam().text << "]";
}

TEST(Listed, EnumeratesNumbers) {
  const auto listedOf = [](std::vector<std::int16_t> numbers) { return listed(numbers); };
  EXPECT_EQ(listedOf({}), "");
  EXPECT_EQ(listedOf({7}), "7");
  EXPECT_EQ(listedOf({49, 3, 27}), "49, 3, 27");
}

INSTANTIATE_TEST_SUITE_P(Good, TypedNumber,
                         testing::Values(Typed{"12", 12}, Typed{"  12", 12}, Typed{"1 2", 12},
                                         Typed{"12abc", 12}, Typed{"12,5", 12}, Typed{"2.6", 3},
                                         Typed{"2.5", 2}, Typed{"3.5", 4}, Typed{"-2.5", -2},
                                         Typed{"-3", -3}, Typed{"+3", 3}, Typed{"- 3", -3},
                                         Typed{".5", 0}, Typed{"1.5", 2}, Typed{"0.51", 1},
                                         Typed{"1.2.3", 1}, Typed{"\t7", 7}, Typed{"007", 7},
                                         Typed{"5.", 5}));

INSTANTIATE_TEST_SUITE_P(
    Bad, TypedNumber,
    testing::Values(Typed{"", 0}, Typed{"abc", 0}, Typed{"-", 0}, Typed{"+", 0}, Typed{".", 0},
                    Typed{"--5", 0}, Typed{"+-5", 0}, Typed{"x5", 0}, Typed{"٣", 0},
                    Typed{"1e3", 1}, Typed{"&H10", 0}, Typed{"99999999999", 2147483647},
                    Typed{"-99999999999", -2147483647 - 1}, Typed{"2147483647", 2147483647},
                    Typed{"2147483648", 2147483647}));

TEST(TypedNumber, ThousandsOfDigitsAreMerelyTooLarge) {
  EXPECT_EQ(typedNumber32(std::string(5000, '9')), std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(typedNumber32("-" + std::string(5000, '9')), std::numeric_limits<std::int32_t>::min());
}

TEST(TypedNumber, ThousandsOfZerosBehindThePointAreNothing) {
  EXPECT_EQ(typedNumber32("0." + std::string(5000, '0') + "1"), 0);
  EXPECT_EQ(typedNumber32("-." + std::string(5000, '0') + "1"), 0);
  EXPECT_EQ(typedNumber32("7." + std::string(5000, '0') + "1"), 7);
}

TEST(TypedNumber, SixteenBitsStopAtTheirOwnBounds) {
  EXPECT_EQ(typedNumber16("32767"), 32767);
  EXPECT_EQ(typedNumber16("32768"), 32767);
  EXPECT_EQ(typedNumber16("-32769"), -32768);
  EXPECT_EQ(typedNumber16("49.5"), 50);
  EXPECT_EQ(typedNumber16("48.5"), 48);
}

}  // namespace
}  // namespace karvenis
