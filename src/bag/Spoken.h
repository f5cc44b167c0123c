#pragma once

#include <string>

#include "core/SharedState.h"

namespace karvenis {

/// How many balls the bag holds, as a screen reader says it: "Torbada 12 top".
[[nodiscard]] std::string spokenBag(const SharedState& state);

/// The bankos, as a screen reader says them: "Banko: 7, 30".
[[nodiscard]] std::string spokenBanko(const SharedState& state);

}  // namespace karvenis
