#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace karvenis {

inline constexpr int ballsInAll = 49;    ///< of the lottery, numbered from 1
inline constexpr int ballsInColumn = 6;  ///< that a drawn column has
inline constexpr int mostBankos = 5;     ///< that the user can choose

/// Whether `number` is a ball: 1..49.
[[nodiscard]] constexpr bool isBall(int number) { return number >= 1 && number <= ballsInAll; }

/// Six ball numbers in the order in which they were drawn or stored. One that comes from a file may
/// be any 16-bit number.
using Column = std::array<std::int16_t, ballsInColumn>;

/// A value for each ball. The index is the ball itself; precondition: isBall(ball).
template <typename Value>
class BallTable {
 public:
  constexpr Value& operator[](int ball) { return values_[static_cast<std::size_t>(ball)]; }
  constexpr const Value& operator[](int ball) const {
    return values_[static_cast<std::size_t>(ball)];
  }

 private:
  std::array<Value, ballsInAll + 1> values_{};
};

/// The ball of `column` at `position`; precondition: 1..6.
constexpr std::int16_t& ballAt(Column& column, int position) {
  return column[static_cast<std::size_t>(position - 1)];
}
constexpr std::int16_t ballAt(const Column& column, int position) {
  return column[static_cast<std::size_t>(position - 1)];
}

}  // namespace karvenis
