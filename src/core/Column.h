#pragma once

#include <array>
#include <cstdint>

namespace karvenis {

inline constexpr int ballsInAll = 49;
inline constexpr int ballsInColumn = 6;
inline constexpr int mostBankos = 5;

/// Whether `number` is a ball: 1..49.
constexpr bool isBall(std::int16_t number) { return number >= 1 && number <= ballsInAll; }

/// Six ball numbers at the positions 1..6; element 0 is not used.
using Column = std::array<std::int16_t, ballsInColumn + 1>;

}  // namespace karvenis
