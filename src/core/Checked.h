#pragma once

#include <cstdint>
#include <limits>
#include <string>

#include "platform/RunTimeError.h"

namespace karvenis {

/// `number` as an integer of type Int; throws RunTimeError(overflow) where it does not fit.
template <typename Int>
Int checked(std::int64_t number) {
  if (number < std::numeric_limits<Int>::min() || number > std::numeric_limits<Int>::max()) {
    throw RunTimeError(Fault::overflow, std::to_string(number),
                       std::to_string(sizeof(Int) * 8) + " bite sığmıyor");
  }
  return static_cast<Int>(number);
}

}  // namespace karvenis
