#include "comblist/GeneratorDraw.h"

#include <algorithm>
#include <bit>
#include <span>

namespace karvenis {
namespace {

/// Takes entry `drawn` out of the pool and returns it. The entries behind it move up; if it is the
/// last one, the pool shrinks by two. In an empty pool the first entry becomes 0.
std::int16_t take(BallPool& Pool, std::int16_t drawn) {
  const auto place = Pool.begin() + drawn;
  const std::int16_t ball = *place;
  if (drawn < Pool[0]) {
    std::copy(place + 1, Pool.begin() + Pool[0] + 1, place);
    --Pool[0];
  } else {
    *place = 0;
    Pool[0] = static_cast<std::int16_t>(std::max(Pool[0] - 2, 0));
  }
  return ball;
}

/// Puts the balls of `column` in front, ascending and each once; the positions behind them stay.
void sortByPresence(Column& column) {
  std::uint64_t present = 0;  // bit k: the column holds ball k
  for (const std::int16_t ball : column) {
    if (isBall(ball)) present |= std::uint64_t{1} << ball;
  }
  for (auto place = column.begin(); present != 0; ++place) {
    *place = static_cast<std::int16_t>(std::countr_zero(present));
    present &= present - 1;  // without its lowest bit
  }
}

}  // namespace

GeneratorDraw::GeneratorDraw(const SharedState& state) : bankoCount_(state.Banko.balls().size()) {
  std::ranges::copy(state.Banko.balls(), bankos_.begin());
  auto last = full_.begin();
  for (std::int16_t ball = 1; ball <= ballsInAll; ++ball) {
    const bool isInBag = state.Bag.empty() || state.Bag.contains(ball);
    if (isInBag && !state.Banko.contains(ball)) *++last = ball;
  }
  full_[0] = static_cast<std::int16_t>(last - full_.begin());
}

Column GeneratorDraw::draw(Chance& chance) const {
  BallPool Pool = full_;
  Column column = bankos_;
  for (std::int16_t& ball : std::span(column).subspan(bankoCount_)) {
    ball = take(Pool, chance.index(Pool[0]));
  }
  sortByPresence(column);
  return column;
}

}  // namespace karvenis
