#pragma once

#include <numeric>
#include <vector>

#include "core/SharedState.h"

namespace karvenis {

/// The balls of the bag or of the bankos, in their order.
using Set = std::vector<std::int16_t>;

inline void setBag(SharedState& state, const Set& balls) {
  state.Bag[0] = static_cast<std::int16_t>(balls.size());
  std::ranges::copy(balls, state.Bag.begin() + 1);
}

inline void setBanko(SharedState& state, const Set& balls) {
  state.Banko[0] = static_cast<std::int16_t>(balls.size());
  std::ranges::copy(balls, state.Banko.begin() + 1);
}

inline Set bagOf(const SharedState& state) {
  const auto balls = state.balls();
  return {balls.begin(), balls.end()};
}

inline Set bankoOf(const SharedState& state) {
  const auto balls = state.bankos();
  return {balls.begin(), balls.end()};
}

/// 1..49.
inline Set allBalls() {
  Set all(ballsInAll);
  std::iota(all.begin(), all.end(), std::int16_t{1});
  return all;
}

}  // namespace karvenis
