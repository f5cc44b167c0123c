#pragma once

#include <cstdint>

#include "core/SharedState.h"
#include "platform/Chance.h"
#include "platform/Clock.h"

namespace karvenis {

/// The refusal if the bag and the bankos offer too few balls for a column.
inline constexpr char tooFewBalls[] = "En az 6 top seçmiş olmanız gerekiyor!";
inline constexpr char tooFewBallsTitle[] = " ! Eksik top seçimi !";

/// The ball for `position` (1..6): the banko of that position if there is one, otherwise a
/// uniform pick from the bag, which may repeat a ball. An empty bag is first filled, for good, with
/// every ball that is no banko; a position that a banko answers leaves it empty.
std::int16_t PickBall(SharedState& state, Chance& chance, std::int16_t position);

/// Sorts the six positions ascending.
void SortColumn(Column& column);

/// Whether six distinct balls can be drawn at all: the bankos are distinct, and the bag (all 49
/// balls if it is empty) holds enough distinct others. Changes nothing.
[[nodiscard]] bool canDraw(const SharedState& state);

/// Draws six distinct balls into the drawn column, the bankos first in their stored order. Never
/// ends if canDraw() is false: ask first.
void drawDistinct(SharedState& state, Chance& chance);

/// A draw as the main window makes it: seeds from the clock, draws six distinct balls and sorts
/// them if `sorted` says so. Shows nothing. canDraw() is true.
void DrawColumn(SharedState& state, Chance& chance, Clock& clock, bool sorted);

}  // namespace karvenis
