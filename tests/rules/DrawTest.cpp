#include "core/Draw.h"

#include <gtest/gtest.h>

#include <set>
#include <tuple>

#include "doubles/Doubles.h"
#include "doubles/Sets.h"

namespace karvenis {
namespace {

std::set<std::int16_t> distinct(const Column& column) { return {column.begin(), column.end()}; }

TEST(PickBall, FillsAnEmptyBagForGoodWithAllBalls) {
  World world;
  std::ignore = PickBall(world.state, world.chance, 1);
  EXPECT_EQ(bagOf(world.state), allBalls());
}

TEST(PickBall, FillsAnEmptyBagWithAllButTheBankos) {
  World world;
  setBanko(world.state, {20, 7});
  EXPECT_EQ(PickBall(world.state, world.chance, 1), 20);
  EXPECT_EQ(PickBall(world.state, world.chance, 2), 7);
  EXPECT_EQ(bagOf(world.state), Set{}) << "a position that a banko answers leaves the bag empty";
  std::ignore = PickBall(world.state, world.chance, 3);
  Set rest = allBalls();
  std::erase(rest, 7);
  std::erase(rest, 20);
  EXPECT_EQ(bagOf(world.state), rest);
}

TEST(PickBall, PicksUniformlyByIndexAndMayRepeat) {
  World world;
  setBag(world.state, {3, 9, 40});
  world.chance.script = {0.0F, 0.34F, 0.999999F, 0.0F};
  EXPECT_EQ(PickBall(world.state, world.chance, 1), 3);
  EXPECT_EQ(PickBall(world.state, world.chance, 2), 9);
  EXPECT_EQ(PickBall(world.state, world.chance, 3), 40);
  EXPECT_EQ(PickBall(world.state, world.chance, 4), 3);
}

TEST(Chance, IndexNeverExceedsTheCount) {
  ScriptedChance chance;
  constexpr float largest = 1.0F - 1.0F / (1U << 24U);
  for (const std::int32_t count : {1, 2, 4, 8, 16, 32, 49, 32767, 3'000'000}) {
    chance.script = {largest, 0.0F};
    EXPECT_EQ(chance.index(count), count);
    EXPECT_EQ(chance.index(count), 1);
  }
  EXPECT_EQ(chance.index(0), 1);
}

TEST(DrawColumn, GivesSixDistinctBallsAndSeedsFromTheClock) {
  World world;
  for (int i = 0; i < 2000; ++i) {
    DrawColumn(world.state, world.chance, world.clock, false);
    EXPECT_EQ(distinct(world.state.Drawn).size(), 6U);
    EXPECT_GE(*distinct(world.state.Drawn).begin(), 1);
    EXPECT_LE(*distinct(world.state.Drawn).rbegin(), 49);
  }
  EXPECT_EQ(world.journal.of("seed").size(), 2000U);
  EXPECT_EQ(world.journal.of("seed").front(), "1000000");
}

TEST(DrawColumn, BankosComeFirstInTheirStoredOrder) {
  World world;
  setBanko(world.state, {20, 7});
  for (int i = 0; i < 500; ++i) {
    DrawColumn(world.state, world.chance, world.clock, false);
    EXPECT_EQ(world.state.Drawn[0], 20);
    EXPECT_EQ(world.state.Drawn[1], 7);
    EXPECT_EQ(distinct(world.state.Drawn).size(), 6U);
  }
}

TEST(DrawColumn, AfterTheBankosAreGoneTheFilledBagStillLacksThem) {
  World world;
  setBanko(world.state, {20, 7});
  DrawColumn(world.state, world.chance, world.clock, false);
  world.state.Banko.clear();
  for (int i = 0; i < 300; ++i) {
    DrawColumn(world.state, world.chance, world.clock, false);
    EXPECT_FALSE(distinct(world.state.Drawn).contains(7));
    EXPECT_FALSE(distinct(world.state.Drawn).contains(20));
  }
}

TEST(DrawColumn, FiveBankosLeaveOnlyTheSixthToChance) {
  World world;
  setBanko(world.state, {5, 4, 3, 2, 1});
  setBag(world.state, {49});
  DrawColumn(world.state, world.chance, world.clock, false);
  EXPECT_EQ(world.state.Drawn, column(5, 4, 3, 2, 1, 49));
}

TEST(DrawColumn, ABagBallThatIsABankoIsDrawnAgain) {
  World world;
  setBanko(world.state, {7});
  setBag(world.state, {7, 1, 2, 3, 4, 5});
  world.chance.script = {0.0F, 0.17F, 0.34F, 0.51F, 0.67F, 0.84F};  // 7 1 2 3 4, then 5 for the 7
  DrawColumn(world.state, world.chance, world.clock, false);
  EXPECT_EQ(world.state.Drawn, column(7, 5, 1, 2, 3, 4));
}

/// Expects that these numbers, all of them, draw 1 to 6 from a bag of just these.
void expectOneToSix(std::deque<float> numbers) {
  World world;
  setBag(world.state, {1, 2, 3, 4, 5, 6});
  world.chance.script = std::move(numbers);
  DrawColumn(world.state, world.chance, world.clock, false);
  EXPECT_EQ(world.state.Drawn, column(1, 2, 3, 4, 5, 6));
  EXPECT_TRUE(world.chance.script.empty());
}

TEST(DrawColumn, OnlyTheLaterBallOfAPairIsDrawnAgain) {
  // 1 2 3 3 5 5: position 4 repeats 3 and becomes 4; position 6 repeats 5, becomes 1, then 6.
  expectOneToSix({0.0F, 0.17F, 0.34F, 0.34F, 0.67F, 0.67F, 0.51F, 0.0F, 0.84F});
}

/// A repeat sends the rest of the inner comparisons to position 1, so that the 1 that takes the
/// place of the second 3 is drawn again at once.
TEST(DrawColumn, AfterARepeatTheRestIsComparedWithTheFirst) {
  expectOneToSix({0.0F, 0.17F, 0.34F, 0.34F, 0.34F, 0.84F, 0.0F, 0.51F, 0.67F});
}

TEST(DrawColumn, SeedsOnceAndFirst) {
  World world;
  DrawColumn(world.state, world.chance, world.clock, false);
  EXPECT_EQ(world.journal.lines, (std::vector<std::string>{"seed 1000000", "number"}));
}

TEST(DrawColumn, SortsOnlyWhenAsked) {
  World world;
  setBag(world.state, {6, 5, 4, 3, 2, 1});
  const std::deque<float> inOrder = {0.0F, 0.17F, 0.34F, 0.51F, 0.67F, 0.84F};
  world.chance.script = inOrder;
  DrawColumn(world.state, world.chance, world.clock, false);
  EXPECT_EQ(world.state.Drawn, column(6, 5, 4, 3, 2, 1));
  world.chance.script = inOrder;
  DrawColumn(world.state, world.chance, world.clock, true);
  EXPECT_EQ(world.state.Drawn, column(1, 2, 3, 4, 5, 6));
}

TEST(SortColumn, SortsTheSixPositions) {
  Column any = {49, 1, 30, 30, -5, 2};
  SortColumn(any);
  EXPECT_EQ(any, (Column{-5, 1, 2, 30, 30, 49}));
}

struct Offer {
  const char* name;
  std::vector<std::int16_t> bag;
  std::vector<std::int16_t> bankos;
  bool ends;
};

class CanDraw : public testing::TestWithParam<Offer> {};

TEST_P(CanDraw, TellsWhetherSixDistinctBallsAreThere) {
  World world;
  setBag(world.state, GetParam().bag);
  setBanko(world.state, GetParam().bankos);
  EXPECT_EQ(canDraw(world.state), GetParam().ends);
  EXPECT_EQ(bagOf(world.state), GetParam().bag) << "the question must not fill the bag";
}

INSTANTIATE_TEST_SUITE_P(
    Offers, CanDraw,
    testing::Values(Offer{"EmptyBag", {}, {}, true},
                    Offer{"EmptyBagFiveBankos", {}, {1, 2, 3, 4, 5}, true},
                    Offer{"OneBallFiveBankos", {6}, {1, 2, 3, 4, 5}, true},
                    Offer{"BallThatIsABanko", {5}, {1, 2, 3, 4, 5}, false},
                    Offer{"ThreeBallsTwoBankos", {1, 2, 3}, {7, 20}, false},
                    Offer{"SixBalls", {1, 2, 3, 4, 5, 6}, {}, true},
                    Offer{"FiveBalls", {1, 2, 3, 4, 5}, {}, false},
                    Offer{"SixBallsOneRepeated", {1, 2, 3, 4, 5, 5}, {}, false},
                    Offer{"BankosAmongTheBalls", {7, 20, 1, 2}, {7, 20}, false},
                    Offer{"BankosAmongEnoughBalls", {7, 20, 1, 2, 3, 4}, {7, 20}, true},
                    Offer{"RepeatedBankos", {1, 2, 3, 4, 5, 6, 8}, {7, 7}, false},
                    Offer{"RepeatedBankosEmptyBag", {}, {7, 7}, false},
                    Offer{"BankosOutsideTheBalls", {}, {77, -3}, true}),
    [](const auto& offer) { return offer.param.name; });

}  // namespace
}  // namespace karvenis
