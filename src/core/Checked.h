#pragma once

#include <concepts>
#include <string>
#include <utility>

#include "platform/RunTimeError.h"

namespace karvenis {

/// Returns `number` as an integer of type Int. Throws RunTimeError(overflow) if it does not fit, so
/// that no number ever loses its upper bits unnoticed.
template <std::integral Int, std::integral Number>
[[nodiscard]] Int checked(Number number) {
  if (!std::in_range<Int>(number)) {
    throw RunTimeError(Fault::overflow, std::to_string(number),
                       std::to_string(sizeof(Int) * 8) + " bite sığmıyor");
  }
  return static_cast<Int>(number);
}

}  // namespace karvenis
