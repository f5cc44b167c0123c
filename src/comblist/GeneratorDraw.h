#pragma once

#include <array>
#include <cstdint>

#include "core/Column.h"
#include "core/SharedState.h"
#include "platform/Chance.h"

namespace karvenis {

/// The generator's own way of drawing a column: every ball leaves the pool as it is drawn, so that
/// nothing has to be drawn again. Unlike the main window's draw it leaves the bag as it is.
///
/// One rule of its own: when the last ball of the pool is drawn, the pool loses its then last ball
/// too, for the rest of that column. A small pool can so run out before the column is full; the
/// column then holds a 0, or a ball twice.
class GeneratorDraw {
 public:
  /// Takes the balls of the bag (all 49 if it is empty) that are no bankos, and the bankos. Numbers
  /// outside 1..49 in the bag are left out.
  explicit GeneratorDraw(const SharedState& state);

  /// The next column: every banko and otherwise balls of the pool, ascending. If numbers are
  /// missing, because they repeat or are no balls, the last positions stay as they were drawn.
  [[nodiscard]] Column draw(Chance& chance);

 private:
  std::int16_t take(std::int16_t drawn);
  static void sortByPresence(Column& column);

  // Element 0: how many entries can be drawn; stale ones stand behind them.
  using Table = std::array<std::int16_t, ballsInAll + 1>;

  Table full_{};     // the pool that every column starts with
  Table Pool{};      // what the current column can still draw
  Column bankos_{};  // in the first positions of every column
  std::size_t bankoCount_ = 0;
};

}  // namespace karvenis
