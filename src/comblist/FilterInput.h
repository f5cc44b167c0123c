#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/Column.h"

namespace karvenis {

/// What the user's input for a filter marks: single numbers, or pairs of numbers.
struct FilterMarks {
  static constexpr std::int16_t set = -1;  ///< the table entry of a ball or pair that is marked

  BallTable<std::int16_t> Marked;
  BallTable<BallTable<std::int16_t>> PairMarked;  ///< symmetric

  /// Whether `ball` is marked. A number that is no ball never is.
  [[nodiscard]] bool has(int ball) const { return isBall(ball) && Marked[ball] == set; }
  /// Whether the pair is marked, in either order.
  [[nodiscard]] bool hasPair(int a, int b) const {
    return isBall(a) && isBall(b) && PairMarked[a][b] == set;
  }
  /// Marks `ball`. Returns false and marks nothing if it is no ball.
  bool mark(std::int16_t ball);
  /// Marks the pair in both orders. Returns false and marks nothing if one of them is no ball.
  bool markPair(std::int16_t a, std::int16_t b);
};

/// These functions read what the user typed. Each marks what it finds and returns the marked
/// numbers in ascending order, as the question shows them; nothing if the input is refused.

/// "5, 12,30": numbers between commas, shown as "5,12,30". The first one must be a ball. Later ones
/// that are no balls are skipped, and so is what follows a second comma in a row.
[[nodiscard]] std::optional<std::string> readNumbers(const std::string& InputText,
                                                     FilterMarks& marks);

/// "5-12": the first number and the first ball behind a later dash. If both are the same ball, the
/// input is shown as it was typed.
[[nodiscard]] std::optional<std::string> readPair(const std::string& InputText, FilterMarks& marks);

/// "3-7,40-12": pairs of balls up to the first text that is none, shown as "3-7, 12-40". A pair of
/// a ball with itself is marked but not shown; input of such pairs alone is refused.
[[nodiscard]] std::optional<std::string> readPairs(const std::string& InputText,
                                                   FilterMarks& marks);

}  // namespace karvenis
