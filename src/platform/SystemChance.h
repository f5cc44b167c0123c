#pragma once

#include <random>

#include "platform/Chance.h"

namespace karvenis {

/// The random source of the program: the Mersenne twister of the standard library.
class SystemChance final : public Chance {
 public:
  /// Uses the date and the system's own entropy too, so that the program does not repeat itself if
  /// it starts at the same time of another day.
  void seed(std::int64_t microseconds) override;
  float next() override;

 private:
  std::mt19937 generator_;
};

}  // namespace karvenis
