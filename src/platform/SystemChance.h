#pragma once

#include <random>

#include "platform/Chance.h"

namespace karvenis {

/// The random source of the program: the Mersenne twister of the standard library.
class SystemChance final : public Chance {
 public:
  /// Folds in the date and the system's own entropy too, so that two starts at the same time of
  /// two days differ.
  void seed(std::int64_t microseconds) override;
  float next() override;

 private:
  std::mt19937 generator_;
};

}  // namespace karvenis
