#pragma once

#include <string>

#include "core/SharedState.h"

namespace karvenis {

/// How many balls the bag holds, for those who hear it: "Torbada 12 top".
std::string spokenBag(const SharedState& state);

/// The bankos, for those who hear them: "Banko: 7, 30".
std::string spokenBanko(const SharedState& state);

}  // namespace karvenis
