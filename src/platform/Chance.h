#pragma once

#include <algorithm>
#include <cstdint>

#include "platform/Clock.h"

namespace karvenis {

/// The door to chance: uniform numbers in [0, 1) of 24 bits.
class Chance {
 public:
  virtual ~Chance() = default;
  /// Starts a new sequence from a clock value in microseconds. The value is folded with what went
  /// before, so that two seedings within one tick of the clock do not repeat a sequence.
  virtual void seed(std::int64_t microseconds) = 0;
  virtual float next() = 0;

  void seedFrom(Clock& clock) { seed(clock.sinceMidnight()); }
  /// A uniform index 1..count; 1 where count is below 1. In single precision r x count + 1 may
  /// round up to count + 1, so it is computed in double precision.
  std::int32_t index(std::int32_t count) {
    const auto picked = static_cast<std::int32_t>(static_cast<double>(next()) * count) + 1;
    return std::clamp(picked, 1, std::max(count, 1));
  }
};

}  // namespace karvenis
