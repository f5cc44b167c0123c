#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/Surroundings.h"

namespace karvenis {

/// A record of the combination list that chance picked.
struct ListPick {
  std::int32_t record;  ///< its number, from 1
  std::int32_t count;   ///< records in the list
};

/// Takes a random record of the combination list as the drawn column, in its stored order and
/// unchecked, and beeps. Warns and returns nothing if there is no list or it is empty. A record
/// that is not whole leaves the drawn column as it was.
std::optional<ListPick> PickFromList(Surroundings& around);

/// The main window's title after a pick.
std::string pickTitle(const ListPick& pick);

}  // namespace karvenis
