#pragma once

#include <cstdint>

#include "core/SharedState.h"
#include "platform/Chance.h"
#include "platform/Clock.h"

namespace karvenis {

/// The warning when the bag and the bankos offer too few balls for a column.
inline constexpr char tooFewBalls[] = "En az 6 top seçmiş olmanız gerekiyor!";
inline constexpr char tooFewBallsTitle[] = " ! Eksik top seçimi !";

/// Returns the ball for `position` (1..6): the banko of that position if there is one, otherwise a
/// uniform pick from the bag, which may repeat a ball. Before such a pick an empty bag is filled
/// with every ball that is no banko, and stays filled.
[[nodiscard]] std::int16_t PickBall(SharedState& state, Chance& chance, int position);

/// Sorts the six positions ascending, whatever their numbers are.
void SortColumn(Column& column);

/// Whether six distinct balls can be drawn: the bankos are distinct, and the bag (all 49 balls if
/// it is empty) holds enough distinct others.
[[nodiscard]] bool canDraw(const SharedState& state);

/// Draws six distinct balls into the drawn column, the bankos first in their stored order.
/// Precondition: canDraw(state); else this never returns.
void drawDistinct(SharedState& state, Chance& chance);

/// A draw of the main window: seeds from the clock, draws six distinct balls and sorts them if
/// `sorted`. Shows nothing. The same precondition.
void DrawColumn(SharedState& state, Chance& chance, Clock& clock, bool sorted);

}  // namespace karvenis
