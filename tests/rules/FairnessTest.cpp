// Every column that can be drawn comes as often as every other. The numbers are pseudo-random with
// a fixed seed, so that a run is like the next; what is wrong lies far beyond the bounds.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>

#include "bag/Coupon.h"
#include "core/Draw.h"
#include "doubles/Doubles.h"
#include "doubles/RecordingSurface.h"
#include "doubles/Sets.h"
#include "doubles/YieldingBoxes.h"

namespace karvenis {
namespace {

/// A source of columns, ascending.
struct Drawer {
  const char* name;
  /// Draws `count` columns from the sets of `world` and hands over each.
  void (*draw)(World& world, int count, const std::function<void(const Set&)>& take);
};

Set sorted(const Column& column) {
  Set balls(column.begin(), column.end());
  std::erase(balls, 0);
  std::ranges::sort(balls);
  return balls;
}

void drawInMainWindow(World& world, int count, const std::function<void(const Set&)>& take) {
  for (int i = 0; i < count; ++i) {
    DrawColumn(world.state, world.chance, world.clock, false);
    take(sorted(world.state.Drawn));
  }
}

class NoWindow final : public CouponWindow {
 public:
  void enableTimer1(bool) override {}
  void hideLabel1() override {}
};

void drawOnCoupons(World& world, int count, const std::function<void(const Set&)>& take) {
  YieldingBoxes boxes;
  Surroundings around{world.state, boxes,         world.clock,  world.chance,
                      world.files, world.printer, world.windows};
  RecordingSurface page;
  NoWindow window;
  Coupon coupon(around, page, window);
  coupon.start();
  for (int i = 0; i < count; ++i) {
    coupon.tick();  // the head, and the draw
    take(sorted(world.state.Drawn));
    for (int ball = 1; ball <= 6; ++ball) coupon.tick();
    if (i % 8 != 7) continue;
    coupon.tick();  // the end of the coupon
    coupon.newPage();
  }
}

/// How far `counts` lie from being all the same, as a multiple of what pure chance gives: about 1,
/// and with hundreds of outcomes hardly more.
template <typename Outcome>
double unevenness(const std::map<Outcome, int>& counts, int draws, int outcomesOfADraw,
                  int outcomes) {
  const double expected = static_cast<double>(draws) * outcomesOfADraw / outcomes;
  double chiSquare = 0;
  for (const auto& [outcome, count] : counts) {
    chiSquare += (count - expected) * (count - expected) / expected;
  }
  chiSquare += expected * (outcomes - static_cast<double>(counts.size()));
  return chiSquare / (outcomes - 1);
}

class Fairness : public testing::TestWithParam<Drawer> {
 protected:
  World world;

  std::map<Set, int> columns(int count) {
    std::map<Set, int> all;
    GetParam().draw(world, count, [&](const Set& column) { ++all[column]; });
    return all;
  }
};

TEST_P(Fairness, TheSevenColumnsOfABagOfSevenComeEquallyOften) {
  setBag(world.state, {3, 9, 14, 20, 31, 42, 49});
  const auto all = columns(7'000);
  EXPECT_EQ(all.size(), 7U);
  EXPECT_LT(unevenness(all, 7'000, 1, 7), 22.5 / 6) << "99.9 % of fair runs lie below";
}

TEST_P(Fairness, TheSeventyColumnsOfABagOfEightAndTwoBankosComeEquallyOften) {
  setBag(world.state, {3, 9, 14, 20, 31, 42, 44, 49});
  setBanko(world.state, {25, 8});
  const auto all = columns(14'000);
  EXPECT_EQ(all.size(), 70U);
  for (const auto& [column, count] : all) {
    EXPECT_TRUE(std::ranges::count(column, 25) == 1 && std::ranges::count(column, 8) == 1);
  }
  EXPECT_LT(unevenness(all, 14'000, 1, 70), 111.1 / 69) << "99.9 % of fair runs lie below";
}

TEST_P(Fairness, EachBallAndEachPairOfTheWholeBagComesEquallyOften) {
  constexpr int draws = 20'000;
  std::map<std::int16_t, int> balls;
  std::map<std::pair<std::int16_t, std::int16_t>, int> pairs;
  GetParam().draw(world, draws, [&](const Set& column) {
    for (std::size_t i = 0; i < column.size(); ++i) {
      ++balls[column[i]];
      for (std::size_t j = i + 1; j < column.size(); ++j) ++pairs[{column[i], column[j]}];
    }
  });
  EXPECT_EQ(balls.size(), 49U);
  EXPECT_LT(unevenness(balls, draws, 6, 49), 84.0 / 48) << "99.9 % of fair runs lie below";
  EXPECT_EQ(pairs.size(), 1176U);
  EXPECT_LT(unevenness(pairs, draws, 15, 1176), 1329.0 / 1175) << "99.9 % of fair runs lie below";
}

INSTANTIATE_TEST_SUITE_P(Columns, Fairness,
                         testing::Values(Drawer{"OfTheMainWindow", drawInMainWindow},
                                         Drawer{"OfTheCoupon", drawOnCoupons}),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace karvenis
