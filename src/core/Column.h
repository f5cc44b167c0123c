#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace karvenis {

inline constexpr int ballsInAll = 49;
inline constexpr int ballsInColumn = 6;
inline constexpr int mostBankos = 5;

/// Whether `number` is a ball: 1..49.
[[nodiscard]] constexpr bool isBall(std::int16_t number) {
  return number >= 1 && number <= ballsInAll;
}

/// Six ball numbers in their order.
using Column = std::array<std::int16_t, ballsInColumn>;

/// A value for each ball; the index is the ball itself, 1..49.
template <typename Value>
class BallTable {
 public:
  constexpr Value& operator[](std::int16_t ball) { return values_[static_cast<std::size_t>(ball)]; }
  constexpr const Value& operator[](std::int16_t ball) const {
    return values_[static_cast<std::size_t>(ball)];
  }

 private:
  std::array<Value, ballsInAll + 1> values_{};
};

/// The ball of `column` at `position`, which is 1..6.
constexpr std::int16_t& ballAt(Column& column, int position) {
  return column[static_cast<std::size_t>(position - 1)];
}
constexpr std::int16_t ballAt(const Column& column, int position) {
  return column[static_cast<std::size_t>(position - 1)];
}

}  // namespace karvenis
