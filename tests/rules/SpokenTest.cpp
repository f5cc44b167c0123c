#include "bag/Spoken.h"

#include <gtest/gtest.h>

#include "doubles/Sets.h"

// What the bag and the bankos are to those who hear them.

namespace karvenis {
namespace {

TEST(SpokenBag, CountsItsBalls) {
  SharedState state;
  EXPECT_EQ(spokenBag(state), "Torba boş");
  setBag(state, {7});
  EXPECT_EQ(spokenBag(state), "Torbada 1 top");
  setBag(state, allBalls());
  EXPECT_EQ(spokenBag(state), "Torbada 49 top");
}

TEST(SpokenBanko, NamesItsBallsInTheirOrder) {
  SharedState state;
  EXPECT_EQ(spokenBanko(state), "Banko yok");
  setBanko(state, {30, 7});
  EXPECT_EQ(spokenBanko(state), "Banko: 30, 7");
}

}  // namespace
}  // namespace karvenis
