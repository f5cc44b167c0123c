#pragma once

#include <random>

#include "platform/Chance.h"

namespace karvenis {

/// The Mersenne twister of the standard library behind the door to chance.
class SystemChance final : public Chance {
 public:
  void seed(std::int64_t microseconds) override;
  float next() override;

 private:
  std::mt19937 generator_;
};

}  // namespace karvenis
