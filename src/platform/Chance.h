#pragma once

#include <algorithm>
#include <concepts>
#include <cstdint>

#include "platform/Clock.h"

namespace karvenis {

/// The door to the random source: uniform numbers in [0, 1) of 24 bits.
class Chance {
 public:
  virtual ~Chance() = default;
  /// Starts a new sequence from a clock value in microseconds. The value is folded with what went
  /// before, so that two seedings within one tick of the clock do not repeat a sequence.
  virtual void seed(std::int64_t microseconds) = 0;
  [[nodiscard]] virtual float next() = 0;

  void seedFrom(Clock& clock) { seed(clock.sinceMidnight()); }
  /// A uniform index 1..count; 1 if count is below 1. In single precision r x count + 1 may round
  /// up to count + 1, so it is computed in double precision.
  template <std::integral Int>
  [[nodiscard]] Int index(Int count) {
    const auto picked =
        static_cast<Int>(static_cast<double>(next()) * static_cast<double>(count) + 1);
    return std::clamp<Int>(picked, 1, std::max<Int>(count, 1));
  }
};

}  // namespace karvenis
