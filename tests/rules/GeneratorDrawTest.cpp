#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <set>

#include "comblist/GeneratorDraw.h"
#include "doubles/Doubles.h"
#include "doubles/Sets.h"

namespace karvenis {
namespace {

constexpr float largest = 1.0F - 1.0F / (1U << 24U);

/// The drawing rule step by step as it was first written down: tables cleared, filled and compacted
/// anew for every column. Slow, and kept apart from the program's own way.
class WrittenRule {
 public:
  Column draw(const SharedState& state, Chance& chance) {
    fill(state);
    takeBankos(state);
    compactAll();
    for (int p = static_cast<int>(Column_[0]) + 1; p <= 6; ++p) pick(p, chance);
    sortByPresence();
    Column drawn{};
    for (int i = 1; i <= 6; ++i) ballAt(drawn, i) = static_cast<std::int16_t>(Column_[i]);
    return drawn;
  }

 private:
  static bool inTable(int n) { return n >= 0 && n <= 49; }

  void fill(const SharedState& state) {
    if (state.Bag.empty()) {
      for (int n = 1; n <= 49; ++n) Pool_[n] = n;
      return;
    }
    for (int n = 1; n <= 49; ++n) Pool_[n] = 0;
    for (const std::int16_t b : state.Bag.balls()) {
      if (inTable(b)) Pool_[b] = b;
    }
  }
  void takeBankos(const SharedState& state) {
    Column_[0] = 0;
    for (const std::int16_t banko : state.Banko.balls()) {
      const int i = ++Column_[0];
      Column_[i] = banko;
      if (inTable(Column_[i])) Pool_[Column_[i]] = 0;
    }
  }
  void compactAll() {
    Pool_[0] = 0;
    for (int n = 1; n <= 49; ++n) {
      if (Pool_[n] > 0) {
        Pool_[0] += 1;
        Pool_[Pool_[0]] = n;
      }
    }
  }
  void pick(int p, Chance& chance) {
    const double r = static_cast<double>(chance.next());
    const int j = static_cast<int>(r * Pool_[0] + 1);
    Column_[p] = Pool_[j];
    Pool_[j] = 0;
    int c = 0;
    const int last = Pool_[0];
    for (int i = 1; i <= last; ++i) {
      if (Pool_[i] < 1) {
        Pool_[0] = Pool_[0] - 1;
      } else {
        c += 1;
        Pool_[0] = c;
        Pool_[c] = Pool_[i];
      }
    }
  }
  void sortByPresence() {
    for (int n = 1; n <= 49; ++n) Pool_[n] = 0;
    for (int i = 1; i <= 6; ++i) {
      if (inTable(Column_[i])) Pool_[Column_[i]] = Column_[i];
    }
    Column_[0] = 0;
    for (int n = 1; n <= 49; ++n) {
      if (Pool_[n] > 0) {
        Column_[0] += 1;
        Column_[Column_[0]] = n;
      }
    }
  }

  int Pool_[50] = {};
  int Column_[7] = {};
};

/// Pseudo-random numbers with the two extremes strewn in; two made alike give the same numbers.
class EdgyChance final : public Chance {
 public:
  explicit EdgyChance(unsigned sequence) : generator_(sequence) {}
  void seed(std::int64_t) override {}
  float next() override {
    const auto bits = static_cast<std::uint32_t>(generator_());
    if (bits % 16 == 0) return largest;
    if (bits % 16 == 1) return 0.0F;
    return static_cast<float>(bits >> 8U) / (1U << 24U);
  }

 private:
  std::mt19937 generator_;
};

/// Bags and bankos as windows make them, and as a damaged file may bring them.
class RandomSets {
 public:
  void choose(SharedState& state) {
    const bool damaged = upTo(4) == 0;
    state.Bag.clear();
    state.Banko.clear();
    if (upTo(5) > 0) setBag(state, numbers(static_cast<std::size_t>(upTo(49)), damaged));
    if (upTo(2) > 0) setBanko(state, numbers(static_cast<std::size_t>(upTo(5)), damaged));
  }
  int upTo(int most) { return static_cast<int>(generator_() % static_cast<unsigned>(most + 1)); }

 private:
  Set numbers(std::size_t count, bool damaged) {
    Set set = allBalls();
    std::shuffle(set.begin(), set.end(), generator_);
    set.resize(count);
    if (damaged && count > 0) {
      for (std::int16_t& ball : set) {
        if (upTo(5) == 0) ball = static_cast<std::int16_t>(upTo(200) - 100);
      }
      set.back() = set.front();
    }
    return set;
  }

  std::mt19937 generator_{649};
};

TEST(GeneratorDraw, GivesNumberByNumberWhatTheWrittenRuleGives) {
  SharedState state;
  RandomSets sets;
  EdgyChance chance(7);
  EdgyChance sameChance(7);
  int compared = 0;
  while (compared < 1'000'000) {
    sets.choose(state);
    GeneratorDraw random(state);
    WrittenRule rule;
    for (int more = sets.upTo(60); more >= 0; --more, ++compared) {
      const Column drawn = random.draw(chance);
      ASSERT_EQ(drawn, rule.draw(state, sameChance))
          << "column " << compared << ", bag " << testing::PrintToString(bagOf(state))
          << ", bankos " << testing::PrintToString(bankoOf(state));
    }
  }
  RecordProperty("columns", compared);
}

Column drawn(World& world) { return GeneratorDraw(world.state).draw(world.chance); }

/// The scripted number that picks entry `j` of a pool of `count`.
float picks(int j, int count) { return (static_cast<float>(j) - 0.5F) / static_cast<float>(count); }

TEST(GeneratorDraw, LeavesTheBagAsItIs) {
  World world;
  drawn(world);
  EXPECT_TRUE(world.state.Bag.empty());
}

TEST(GeneratorDraw, HoldsEveryBankoAmongBallsOfTheBagAscending) {
  World world;
  setBag(world.state, {1, 2, 3, 4, 30, 31, 32, 33, 34, 35, 36, 49});
  setBanko(world.state, {40, 5});
  GeneratorDraw random(world.state);
  for (int i = 0; i < 1000; ++i) {
    const Column column = random.draw(world.chance);
    ASSERT_TRUE(std::is_sorted(column.begin(), column.end()));
    const std::set<std::int16_t> balls(column.begin(), column.end());
    ASSERT_EQ(balls.size(), 6U);
    ASSERT_TRUE(balls.contains(5) && balls.contains(40));
  }
}

TEST(GeneratorDraw, ABankoInTheBagIsHarmless) {
  World world;
  setBag(world.state, {7, 1, 2, 3, 4, 5, 6, 8, 9, 10, 11, 12, 13});
  setBanko(world.state, {7});
  GeneratorDraw random(world.state);
  for (int i = 0; i < 1000; ++i) {
    const Column column = random.draw(world.chance);
    ASSERT_EQ(std::count(column.begin(), column.end(), 7), 1);
  }
}

TEST(GeneratorDraw, DrawingTheLastBallTakesTheNextLowerOneOutOfTheColumn) {
  World world;
  world.chance.script = {largest, largest, largest, largest, largest, largest};
  EXPECT_EQ(drawn(world), column(39, 41, 43, 45, 47, 49));
}

TEST(GeneratorDraw, DrawingAnyOtherBallTakesOnlyThatOne) {
  World world;
  world.chance.script = {picks(48, 49), picks(47, 48), picks(46, 47),
                         picks(45, 46), picks(44, 45), picks(43, 44)};
  EXPECT_EQ(drawn(world), column(43, 44, 45, 46, 47, 48));
}

TEST(GeneratorDraw, ThePoolIsWholeAgainForTheNextColumn) {
  World world;
  GeneratorDraw random(world.state);
  for (int i = 0; i < 3; ++i) {
    world.chance.script = {largest, largest, largest, largest, largest, largest};
    EXPECT_EQ(random.draw(world.chance), column(39, 41, 43, 45, 47, 49));
  }
}

TEST(GeneratorDraw, TheIndexStaysInsidePoolsWhoseSizeIsAPowerOfTwo) {
  for (const std::size_t size : {1U, 2U, 4U, 8U, 16U, 32U}) {
    World world;
    Set balls = allBalls();
    balls.resize(size);
    setBag(world.state, balls);
    setBanko(world.state, {45, 46, 47, 48, 49});
    world.chance.script = {largest};
    EXPECT_EQ(drawn(world).front(), balls.back());
  }
}

TEST(GeneratorDraw, APoolOfOneEndsEmptyAndThenGivesZeros) {
  World world;
  setBag(world.state, {6});
  setBanko(world.state, {1, 2, 3});
  // Positions 4, 5, 6 draw 6, 0, 0; sorted by presence 1 2 3 6 stand first, the rest as drawn.
  EXPECT_EQ(drawn(world), column(1, 2, 3, 6, 0, 0));
}

TEST(GeneratorDraw, AnExhaustedPoolStillGivesItsStaleFirstEntryOnce) {
  World world;
  setBag(world.state, {10, 20});
  setBanko(world.state, {1, 2, 3});
  world.chance.script = {largest};  // 20 takes 10 with it, which then stands stale in front
  EXPECT_EQ(drawn(world), column(1, 2, 3, 10, 20, 0));
}

TEST(GeneratorDraw, RepeatedNumbersLeaveTheLastPositionsAsTheyWereDrawn) {
  World world;
  setBag(world.state, {30});
  setBanko(world.state, {9, 9, 9, 9, 9});
  EXPECT_EQ(drawn(world), column(9, 30, 9, 9, 9, 30));
}

TEST(GeneratorDraw, BankosThatAreNoBallsTouchNoTable) {
  World world;
  setBag(world.state, {10, 11, 12, 13});
  setBanko(world.state, {32767, -32768, 50, 0});
  world.chance.script = {picks(1, 4), picks(1, 3)};
  EXPECT_EQ(drawn(world), column(10, 11, 50, 0, 10, 11));
}

TEST(GeneratorDraw, BagNumbersThatAreNoBallsAreNeverDrawn) {
  World world;
  setBag(world.state, {-5, 0, 50, 32767, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11});
  GeneratorDraw random(world.state);
  for (int i = 0; i < 1000; ++i) {
    const Column column = random.draw(world.chance);
    ASSERT_GE(*std::min_element(column.begin(), column.end()), 1);
    ASSERT_LE(*std::max_element(column.begin(), column.end()), 11);
  }
}

/// The share of columns from a bag of `balls` balls that hold a 0 or a ball twice.
double spoiltShare(std::size_t balls) {
  World world;
  Set bag = allBalls();
  bag.resize(balls);
  setBag(world.state, bag);
  GeneratorDraw random(world.state);
  constexpr int columns = 50'000;
  int spoilt = 0;
  for (int i = 0; i < columns; ++i) {
    const Column column = random.draw(world.chance);
    const std::set<std::int16_t> distinct(column.begin(), column.end());
    if (distinct.size() < 6 || distinct.contains(0)) ++spoilt;
  }
  return static_cast<double>(spoilt) / columns;
}

TEST(GeneratorDraw, SixBallsAreOftenTooFewAndElevenAlwaysEnough) {
  EXPECT_NEAR(spoiltShare(6), 2.0 / 3, 0.05);
  EXPECT_GT(spoiltShare(9), 0);
  EXPECT_EQ(spoiltShare(11), 0);
  EXPECT_EQ(spoiltShare(49), 0);
}

/// The chance that `draws` more draws take the ball at place `place` of a pool of `size`.
double chanceOf(int size, int place, int draws) {
  if (draws == 0) return 0;
  const double one = 1.0 / size;
  double sum = one;                                                     // the ball itself
  sum += (place - 1) * one * chanceOf(size - 1, place - 1, draws - 1);  // one below it
  if (place < size) {
    sum += (size - 1 - place) * one * chanceOf(size - 1, place, draws - 1);   // one above it
    if (place < size - 1) sum += one * chanceOf(size - 2, place, draws - 1);  // the last
  }
  return sum;
}

TEST(GeneratorDraw, BallsComeAsOftenOverAMillionColumnsAsTheRuleMakesThem) {
  constexpr double columns = 1'000'000;
  World world;
  GeneratorDraw random(world.state);
  std::array<int, 50> came{};
  for (int i = 0; i < static_cast<int>(columns); ++i) {
    const Column column = random.draw(world.chance);
    for (const std::int16_t ball : column) ++came.at(static_cast<std::size_t>(ball));
  }
  EXPECT_EQ(came[0], 0);
  double all = 0;
  for (int ball = 1; ball <= 49; ++ball) {
    const double p = chanceOf(49, ball, 6);
    all += p;
    const double deviation = std::sqrt(columns * p * (1 - p));
    EXPECT_NEAR(came.at(static_cast<std::size_t>(ball)), columns * p, 4 * deviation)
        << "ball " << ball;
  }
  EXPECT_NEAR(all, 6, 1e-9);
  EXPECT_LT(chanceOf(49, 48, 6), chanceOf(49, 1, 6)) << "the rule favours no ball below the last";
}

}  // namespace
}  // namespace karvenis
