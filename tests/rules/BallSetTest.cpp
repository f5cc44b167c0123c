#include "core/BallSet.h"

#include <gtest/gtest.h>

#include "doubles/Sets.h"

namespace karvenis {
namespace {

TEST(BallSet, KeepsTheOrderInWhichBallsWereAdded) {
  SharedState state;
  EXPECT_TRUE(state.Bag.empty());
  setBag(state, {9, 5, 9, 7});
  EXPECT_EQ(bagOf(state), (Set{9, 5, 9, 7}));
  EXPECT_TRUE(state.Bag.contains(7));
  EXPECT_FALSE(state.Bag.contains(6));
}

TEST(BallSet, AFullSetTakesNoMore) {
  SharedState state;
  setBanko(state, {1, 2, 3, 4, 5});
  state.Banko.add(6);
  EXPECT_EQ(bankoOf(state), (Set{1, 2, 3, 4, 5}));
  setBag(state, allBalls());
  state.Bag.add(50);
  EXPECT_EQ(bagOf(state), allBalls());
}

TEST(BallSet, WhatWasClearedDoesNotComeBack) {
  SharedState state;
  setBag(state, {7, 12, 30});
  state.Bag.clear();
  EXPECT_TRUE(state.Bag.empty());
  state.Bag.add(8);
  EXPECT_EQ(bagOf(state), Set{8});
  EXPECT_FALSE(state.Bag.contains(12));
}

struct Removal {
  const char* name;
  Set bag;
  Set banko;
  Set left;
};

class BallSetRemove : public testing::TestWithParam<Removal> {};

TEST_P(BallSetRemove, KeepsTheOtherBallsInTheirOrder) {
  SharedState state;
  setBag(state, GetParam().bag);
  setBanko(state, GetParam().banko);
  state.Bag.remove(state.Banko);
  EXPECT_EQ(bagOf(state), GetParam().left);
  EXPECT_EQ(bankoOf(state), GetParam().banko);
}

INSTANTIATE_TEST_SUITE_P(
    Sets, BallSetRemove,
    testing::Values(Removal{"TwoOfFour", {7, 12, 30, 44}, {7, 30}, {12, 44}},
                    Removal{"DescendingOrder", {44, 30, 12, 7}, {12}, {44, 30, 7}},
                    Removal{"RepeatedBall", {7, 12, 7}, {7}, {12}},
                    Removal{"NothingLeft", {1, 2}, {2, 1}, {}},
                    Removal{"NoBanko", {1, 2}, {}, {1, 2}}, Removal{"NoBag", {}, {1, 2}, {}},
                    Removal{"BankoNotInTheBag", {1, 2}, {3}, {1, 2}},
                    Removal{"BankosOutsideTheBalls", {1, 2}, {77, -5}, {1, 2}}),
    [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace karvenis
