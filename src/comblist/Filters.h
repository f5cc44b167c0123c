#pragma once

#include <cstdint>

#include "core/ListPage.h"
#include "core/Surroundings.h"
#include "platform/TitleBar.h"

namespace karvenis {

/// The list window's title while it shows no page.
inline constexpr char listTitle[] = " KOMBİNASYON LİSTESİ  [ F10= YARDIM ]";

/// The four filters of the combination list, F5 to F8.
enum class Filter : std::uint8_t {
  FilterUnwantedNumbers,  ///< deletes the columns that hold any of some numbers
  FilterWantedNumbers,    ///< deletes the columns that hold none of some numbers
  FilterUnwantedPair,     ///< deletes the columns that hold both numbers of a pair
  FilterWantedPairs,      ///< deletes the columns that hold none of some pairs
};

/// Beeps, asks for the numbers, asks whether to go on, copies the list to its backup and filters it
/// in two phases: the first marks each record in its word (417 to keep, -1 to delete), the second
/// copies those to keep. If there are none, the list is deleted.
/// `title` shows the progress, then the list's title; `page` then starts at the second column.
/// Returns false if the list was left as it was. Throws RunTimeError; once phase 1 has begun, the
/// backup holds the list as it was.
bool filterList(Filter filter, Surroundings& around, ListPage& page, TitleBar& title);

}  // namespace karvenis
