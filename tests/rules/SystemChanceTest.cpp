#include "platform/SystemChance.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <cmath>
#include <ctime>
#include <optional>
#include <vector>

namespace {

std::optional<std::time_t> setDate;  // what the system says of the date; its own if empty
bool noEntropy = false;

}  // namespace

// The linker leads the program's calls of these functions here (see tests/CMakeLists.txt).
// NOLINTBEGIN(bugprone-reserved-identifier): the names are the linker's.
extern "C" {

std::time_t __real_time(std::time_t* into);
int __real_getentropy(void* bytes, std::size_t count);

std::time_t __wrap_time(std::time_t* into) { return setDate ? *setDate : __real_time(into); }

int __wrap_getentropy(void* bytes, std::size_t count) {
  if (!noEntropy) return __real_getentropy(bytes, count);
  errno = ENOSYS;
  return -1;
}
}
// NOLINTEND(bugprone-reserved-identifier)

namespace karvenis {
namespace {

class SystemChanceTest : public testing::Test {
 protected:
  ~SystemChanceTest() override {
    setDate.reset();
    noEntropy = false;
  }

  /// The first numbers behind a seeding at one and the same time of the day.
  static std::vector<float> sequence(SystemChance& chance) {
    chance.seed(1'000'000);
    std::vector<float> numbers;
    for (int i = 0; i < 8; ++i) numbers.push_back(chance.next());
    return numbers;
  }
  static std::vector<float> ofAFreshStart() {
    SystemChance chance;
    return sequence(chance);
  }
};

TEST_F(SystemChanceTest, NumbersHaveTwentyFourBits) {
  for (const float number : ofAFreshStart()) {
    EXPECT_GE(number, 0.0F);
    EXPECT_LT(number, 1.0F);
    EXPECT_EQ(number * (1 << 24), std::floor(number * (1 << 24)));
  }
}

TEST_F(SystemChanceTest, TwoSeedingsOfOneMomentGiveTwoSequences) {
  setDate = 1'800'000'000;
  noEntropy = true;
  SystemChance chance;
  EXPECT_NE(sequence(chance), sequence(chance));
}

TEST_F(SystemChanceTest, TwoStartsAtTheSameTimeOfTwoDaysDiffer) {
  noEntropy = true;
  setDate = 1'800'000'000;
  const auto today = ofAFreshStart();
  EXPECT_EQ(ofAFreshStart(), today) << "nothing but the date may differ here";
  *setDate += 24 * 60 * 60;
  EXPECT_NE(ofAFreshStart(), today);
}

TEST_F(SystemChanceTest, TwoStartsAtOneMomentDifferByTheSystemsEntropy) {
  setDate = 1'800'000'000;
  EXPECT_NE(ofAFreshStart(), ofAFreshStart());
}

}  // namespace
}  // namespace karvenis
