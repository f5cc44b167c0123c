#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/Surroundings.h"

namespace karvenis {

/// "Torbadan Çek": draws a column, sorted if `sorted`, and returns true. Warns and returns false if
/// the bag and the bankos offer too few balls; the drawn column then stays as it was.
[[nodiscard]] bool drawFromBag(Surroundings& around, bool sorted);

/// A record of the combination list that was picked at random.
struct ListPick {
  std::int32_t record;  ///< its number, from 1
  std::int32_t count;   ///< records in the list
};

/// "Listeden Çek": takes a random record of the combination list as the drawn column, in its stored
/// order and unchecked, and beeps. Warns and returns nothing if there is no list or it is empty. A
/// record that is not whole leaves the drawn column as it was. Throws RunTimeError(open, read,
/// overflow).
[[nodiscard]] std::optional<ListPick> PickFromList(Surroundings& around);

/// The main window's title after a pick.
[[nodiscard]] std::string pickTitle(const ListPick& pick);

}  // namespace karvenis
