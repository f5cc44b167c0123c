#pragma once

#include <array>
#include <cstdint>

#include "core/Column.h"
#include "core/SharedState.h"
#include "platform/Chance.h"

namespace karvenis {

/// The balls that can be drawn. Element 0: how many; entries behind them are left over from earlier
/// draws, and an empty pool still gives its first one.
using BallPool = std::array<std::int16_t, ballsInAll + 1>;

/// The generator's own way of drawing a column: every ball leaves the pool as it is drawn, so that
/// nothing has to be drawn again. Unlike the main window's draw it leaves the bag as it is.
///
/// One rule is unusual: when the last ball of the pool is drawn, the ball before it leaves the pool
/// too, for the rest of that column. A small pool can therefore run out before the column is full;
/// the column then holds a 0, or a ball twice.
class GeneratorDraw {
 public:
  /// Takes the balls of the bag (all 49 if it is empty) that are no bankos, and the bankos. Numbers
  /// outside 1..49 in the bag are left out.
  explicit GeneratorDraw(const SharedState& state);

  /// Draws the next column: every banko, and balls of the pool in the other positions, ascending
  /// and each once. If that leaves less than six balls, the last positions keep what was drawn
  /// there.
  [[nodiscard]] Column draw(Chance& chance) const;

 private:
  BallPool full_{};  // the pool at the start of every column
  Column bankos_{};  // in the first positions of every column
  std::size_t bankoCount_ = 0;
};

}  // namespace karvenis
