#pragma once

#include <optional>

#include "platform/Files.h"

namespace karvenis {

inline constexpr char settingsFile[] = "KV2005.CFG";

/// Where the main window's frame stands on the screen, in twips (see Twips.h).
struct Place {
  float top = 0;
  float left = 0;
};

/// The place in the settings file; empty if there is no file or it holds no finite numbers. A file
/// of less than two whole records is opened but not read: its place is 0, 0. Throws
/// RunTimeError(open, read).
[[nodiscard]] std::optional<Place> readPlace(Files& files);

/// Writes the place, creating the file if it is missing; a longer file keeps its length. Throws
/// RunTimeError(open, read, write), and then the file holds what it held before.
void writePlace(Files& files, Place place);

}  // namespace karvenis
