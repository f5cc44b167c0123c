#include "core/Draw.h"

#include <set>
#include <utility>

namespace karvenis {
namespace {

void fillBag(SharedState& state) {
  for (std::int16_t ball = 1; ball <= ballsInAll; ++ball) state.Bag.add(ball);
  state.Bag.remove(state.Banko);
}

}  // namespace

std::int16_t PickBall(SharedState& state, Chance& chance, int position) {
  const auto bankos = state.Banko.balls();
  const auto place = static_cast<std::size_t>(position);
  if (place <= bankos.size()) return bankos[place - 1];
  if (state.Bag.empty()) fillBag(state);
  const auto bag = state.Bag.balls();
  return bag[chance.index(bag.size()) - 1];
}

void SortColumn(Column& column) {
  for (int pass = 1; pass <= ballsInColumn; ++pass) {
    for (std::size_t k = 0; k + 1 < column.size(); ++k) {
      if (column[k + 1] < column[k]) std::swap(column[k], column[k + 1]);
    }
  }
}

bool canDraw(const SharedState& state) {
  const auto bankos = state.Banko.balls();
  std::set<std::int16_t> offered(bankos.begin(), bankos.end());
  if (offered.size() < bankos.size()) return false;  // a banko repeats
  if (state.Bag.empty()) return true;                // it stands for all balls
  const auto bag = state.Bag.balls();
  offered.insert(bag.begin(), bag.end());
  return offered.size() >= ballsInColumn;
}

void drawDistinct(SharedState& state, Chance& chance) {
  const auto pick = [&](int position) {
    ballAt(state.Drawn, position) = PickBall(state, chance, position);
  };
  for (int position = 1; position <= ballsInColumn; ++position) pick(position);
  // After a repeat `i` is 1 again, also in the rest of the inner loop. Only the later ball of a
  // pair is drawn again, so a banko is never replaced.
  for (int i = 1; i < ballsInColumn; ++i) {
    for (int j = i + 1; j <= ballsInColumn; ++j) {
      while (ballAt(state.Drawn, j) == ballAt(state.Drawn, i)) {
        pick(j);
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
