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
  /// Starts a new sequence from a clock value in microseconds. The source's own state goes into the
  /// new one too, so that two calls within one tick of the clock give different sequences.
  virtual void seed(std::int64_t microseconds) = 0;
  /// The next number of the sequence.
  [[nodiscard]] virtual float next() = 0;

  /// Starts a new sequence from the time of day.
  void seedFrom(Clock& clock) { seed(clock.sinceMidnight()); }
  /// A uniform index 1..count; 1 if count is below 1. It is computed in double precision: in single
  /// precision the product may round up to count + 1.
  template <std::integral Int>
  [[nodiscard]] Int index(Int count) {
    const auto picked =
        static_cast<Int>(static_cast<double>(next()) * static_cast<double>(count) + 1);
    return std::clamp<Int>(picked, 1, std::max<Int>(count, 1));
  }
};

}  // namespace karvenis
