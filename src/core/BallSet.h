#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "core/Column.h"

namespace karvenis {

/// Chosen balls, at most `most` of them; empty at first. Unlike a set of mathematics it keeps the
/// order in which they were added and may hold a number twice. It holds any numbers: whoever adds
/// one decides whether it must be a ball.
template <std::size_t most>
class BallSet {
 public:
  /// The balls, in the order in which they were added. The span is valid until the set changes.
  [[nodiscard]] std::span<const std::int16_t> balls() const {
    return std::span(elements_).subspan(1, static_cast<std::size_t>(elements_[0]));
  }
  /// Whether no ball is in the set.
  [[nodiscard]] bool empty() const { return elements_[0] == 0; }
  /// Whether `ball` is in the set, once or more often.
  [[nodiscard]] bool contains(std::int16_t ball) const {
    return std::ranges::find(balls(), ball) != balls().end();
  }

  /// Puts `ball` behind the others, also if the set holds it already. A full set stays as it is.
  void add(std::int16_t ball) {
    if (balls().size() < most) elements_[static_cast<std::size_t>(++elements_[0])] = ball;
  }
  /// Takes out all balls.
  void clear() { elements_[0] = 0; }
  /// Takes out every ball that `others` holds; the rest keeps its order.
  template <std::size_t others_most>
  void remove(const BallSet<others_most>& others) {
    const BallSet before = *this;
    clear();
    for (const std::int16_t ball : before.balls()) {
      if (!others.contains(ball)) add(ball);
    }
  }

  /// Whether both sets hold the same balls in the same order.
  bool operator==(const BallSet& other) const { return std::ranges::equal(balls(), other.balls()); }

 private:
  std::array<std::int16_t, most + 1> elements_{};  // element 0: how many; 1..count: the balls
};

}  // namespace karvenis
