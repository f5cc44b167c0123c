#include <gtest/gtest.h>

#include "bag/BankoActions.h"

// What stays in a banko box, and what stands over the boxes.

namespace karvenis {
namespace {

struct Typed {
  const char* name;
  const char* typed;
  const char* left;
};

class BankoText : public testing::TestWithParam<Typed> {};

TEST_P(BankoText, KeepsABallOrNothing) { EXPECT_EQ(bankoText(GetParam().typed), GetParam().left); }

INSTANTIATE_TEST_SUITE_P(
    Texts, BankoText,
    testing::Values(Typed{"Ball", "7", "7"}, Typed{"First", "1", "1"}, Typed{"Last", "49", "49"},
                    Typed{"Nothing", "", ""}, Typed{"Zero", "0", ""}, Typed{"Fifty", "50", ""},
                    Typed{"LetterBehind", "7x", "7"}, Typed{"ZeroBefore", "07", "7"},
                    Typed{"ManyZerosBefore", "000000000000000000000000000009", "9"},
                    Typed{"ManyZeros", "000000000000000000000000000000", ""},
                    Typed{"Letters", "abc", ""}, Typed{"LetterBefore", "x7", ""},
                    Typed{"BlankBefore", " 7", ""}, Typed{"BlankBetween", "1 2", "1"},
                    Typed{"Minus", "-5", ""}, Typed{"Plus", "+5", ""}, Typed{"Point", "12.7", "12"},
                    Typed{"PointBefore", ".7", ""}, Typed{"Comma", "3,9", "3"},
                    Typed{"Exponent", "1e1", "1"}, Typed{"Hexadecimal", "0x10", ""},
                    Typed{"Overflows32Bits", "99999999999", ""},
                    Typed{"ThirtyDigits", "123456789012345678901234567890", ""},
                    Typed{"Wraps16BitsToABall", "65543", ""}, Typed{"LineBreak", "7\n8", "7"},
                    Typed{"TabBefore", "\t7", ""}, Typed{"ArabicDigits", "٧", ""},
                    Typed{"WideDigits", "７", ""}, Typed{"DigitThenArabicDigit", "4٧", "4"},
                    Typed{"Sign", "😀", ""}),
    [](const auto& row) { return row.param.name; });

TEST(BankoCaption, FollowsTheCount) {
  EXPECT_STREQ(bankoCaption(0), "");
  EXPECT_STREQ(bankoCaption(1), "Banko Top:");
  for (int count = 2; count <= 5; ++count) EXPECT_STREQ(bankoCaption(count), "Banko Toplar:");
}

}  // namespace
}  // namespace karvenis
