#include "core/Draw.h"

#include <algorithm>
#include <bitset>
#include <utility>

namespace karvenis {
namespace {

void fillBag(SharedState& state) {
  const auto kept = state.bankos();
  std::int16_t count = 0;
  for (std::int16_t ball = 1; ball <= ballsInAll; ++ball) {
    if (std::ranges::find(kept, ball) != kept.end()) continue;
    ++count;
    state.Bag[static_cast<std::size_t>(count)] = ball;
  }
  state.Bag[0] = count;
}

}  // namespace

std::int16_t PickBall(SharedState& state, Chance& chance, std::int16_t position) {
  const auto banko = state.bankos();
  const auto place = static_cast<std::size_t>(position);
  if (place <= banko.size()) return banko[place - 1];
  if (state.Bag[0] <= 0) fillBag(state);
  const auto bag = state.balls();
  return bag[static_cast<std::size_t>(chance.index(static_cast<std::int32_t>(bag.size())) - 1)];
}

void SortColumn(Column& column) {
  for (int pass = 1; pass <= ballsInColumn; ++pass) {
    for (std::size_t k = 1; k < ballsInColumn; ++k) {
      if (column[k + 1] < column[k]) std::swap(column[k], column[k + 1]);
    }
  }
}

bool canDraw(const SharedState& state) {
  std::bitset<65536> taken;
  const auto bit = [](std::int16_t ball) { return static_cast<std::uint16_t>(ball); };
  for (const std::int16_t banko : state.bankos()) {
    if (taken.test(bit(banko))) return false;
    taken.set(bit(banko));
  }
  if (state.balls().empty()) return true;  // it stands for all balls
  for (const std::int16_t ball : state.balls()) taken.set(bit(ball));
  return taken.count() >= ballsInColumn;
}

void drawDistinct(SharedState& state, Chance& chance) {
  Column& column = state.Drawn;
  for (std::int16_t position = 1; position <= ballsInColumn; ++position) {
    column[static_cast<std::size_t>(position)] = PickBall(state, chance, position);
  }
  // A repeat restarts the comparisons, the rest of the inner loop included, at position 1. Only the
  // later ball of a pair is drawn again, so a banko is never replaced.
  for (std::size_t i = 1; i < ballsInColumn; ++i) {
    for (std::size_t j = i + 1; j <= ballsInColumn; ++j) {
      while (column[j] == column[i]) {
        column[j] = PickBall(state, chance, static_cast<std::int16_t>(j));
        i = 1;
      }
    }
  }
}

void DrawColumn(SharedState& state, Chance& chance, Clock& clock, bool sorted) {
  chance.seedFrom(clock);
  drawDistinct(state, chance);
  if (sorted) SortColumn(state.Drawn);
}

}  // namespace karvenis
