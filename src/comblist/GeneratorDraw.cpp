#include "comblist/GeneratorDraw.h"

#include <algorithm>
#include <bit>
#include <span>

namespace karvenis {

GeneratorDraw::GeneratorDraw(const SharedState& state) {
  const auto mark = [this](std::int16_t ball, std::int16_t value) {
    if (isBall(ball)) full_[static_cast<std::size_t>(ball)] = value;
  };
  if (state.Bag.empty()) {
    for (std::int16_t ball = 1; ball <= ballsInAll; ++ball) mark(ball, ball);
  }
  for (const std::int16_t ball : state.Bag.balls()) mark(ball, ball);
  for (const std::int16_t banko : state.Banko.balls()) {
    bankos_[bankoCount_] = banko;
    ++bankoCount_;
    mark(banko, 0);
  }
  const auto end = std::remove(full_.begin() + 1, full_.end(), std::int16_t{0});
  full_[0] = static_cast<std::int16_t>(end - full_.begin() - 1);
}

Column GeneratorDraw::draw(Chance& chance) {
  std::copy(full_.begin(), full_.end(), Pool.begin());
  Column column = bankos_;
  for (std::int16_t& ball : std::span(column).subspan(bankoCount_)) {
    const std::int32_t drawn = chance.index(Pool[0]);
    ball = Pool[static_cast<std::size_t>(drawn)];
    take(drawn);
  }
  sortByPresence(column);
  return column;
}

/// Takes entry `drawn` out of the pool. The entries behind it move up; where none is behind it, the
/// pool shrinks by two. An exhausted pool only loses its stale first entry.
void GeneratorDraw::take(std::int32_t drawn) {
  const std::int16_t count = Pool[0];
  std::int16_t* const place = &Pool[static_cast<std::size_t>(drawn)];
  if (drawn < count) {
    std::array<std::int16_t, ballsInAll - 1> behind;  // whatever the count: one size is faster
    std::copy_n(place + 1, behind.size(), behind.begin());
    std::copy_n(behind.begin(), behind.size(), place);
    Pool[0] = static_cast<std::int16_t>(count - 1);
  } else {
    *place = 0;
    Pool[0] = static_cast<std::int16_t>(std::max(count - 2, 0));
  }
}

void GeneratorDraw::sortByPresence(Column& column) {
  std::uint64_t present = 0;
  for (const std::int16_t ball : column) {
    if (isBall(ball)) present |= std::uint64_t{1} << static_cast<unsigned>(ball);
  }
  for (std::size_t i = 0; present != 0; ++i) {
    column[i] = static_cast<std::int16_t>(std::countr_zero(present));
    present &= present - 1;
  }
}

}  // namespace karvenis
