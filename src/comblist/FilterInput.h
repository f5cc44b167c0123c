#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/Column.h"

namespace karvenis {

/// What the user's input for a filter marks: single numbers, or pairs of numbers.
struct FilterMarks {
  static constexpr std::int16_t set = -1;  ///< what stands in a table for what is marked

  BallTable<std::int16_t> Marked;
  BallTable<BallTable<std::int16_t>> PairMarked;  ///< symmetric

  /// Whether `ball` is marked; what is no ball never is.
  [[nodiscard]] bool has(std::int16_t ball) const { return isBall(ball) && Marked[ball] == set; }
  [[nodiscard]] bool hasPair(std::int16_t a, std::int16_t b) const {
    return isBall(a) && isBall(b) && PairMarked[a][b] == set;
  }
  /// Marks `ball`; false, and nothing marked, if it is no ball.
  bool mark(std::int16_t ball);
  bool markPair(std::int16_t a, std::int16_t b);
};

/// The readers of what was typed. Each marks what it finds and returns the marked numbers as the
/// question shows them, ascending; nothing if the input asks for nothing.

/// "5, 12,30": numbers between commas, shown as "5,12,30". The first one must be a ball, later ones
/// that are none are passed over, and so is what stands behind a second comma in a row.
std::optional<std::string> readNumbers(const std::string& InputText, FilterMarks& marks);

/// "5-12": the first number and the first ball behind a later dash, shown ascending. Twice the same
/// ball is shown as it was typed.
std::optional<std::string> readPair(const std::string& InputText, FilterMarks& marks);

/// "3-7,40-12": pairs up to the first that is none, shown as "3-7, 12-40". A pair of one ball with
/// itself is marked and not shown; nothing if only such pairs were typed.
std::optional<std::string> readPairs(const std::string& InputText, FilterMarks& marks);

}  // namespace karvenis
