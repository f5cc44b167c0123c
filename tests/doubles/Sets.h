#pragma once

#include <numeric>
#include <vector>

#include "core/SharedState.h"

namespace karvenis {

/// The balls of the bag or of the bankos, in their order.
using Set = std::vector<std::int16_t>;

inline const Set bagOfFour = {7, 12, 30, 44};

inline void setBag(SharedState& state, const Set& balls) {
  state.Bag.clear();
  for (const std::int16_t ball : balls) state.Bag.add(ball);
}

inline void setBanko(SharedState& state, const Set& balls) {
  state.Banko.clear();
  for (const std::int16_t ball : balls) state.Banko.add(ball);
}

inline Set bagOf(const SharedState& state) {
  const auto balls = state.Bag.balls();
  return {balls.begin(), balls.end()};
}

inline Set bankoOf(const SharedState& state) {
  const auto balls = state.Banko.balls();
  return {balls.begin(), balls.end()};
}

/// 1..49.
inline Set allBalls() {
  Set all(ballsInAll);
  std::iota(all.begin(), all.end(), std::int16_t{1});
  return all;
}

}  // namespace karvenis
