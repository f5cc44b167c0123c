#pragma once

#include "core/Surroundings.h"

namespace karvenis {

// How the main window loads the bag and the bankos. The bag and the banko window have loads of
// their own (BagActions.h, BankoActions.h), which also show what they have loaded.

/// F6 of the main window, "Torbayı KARVENIS.DAT dosyasından yükle": beeps, asks and runs
/// LoadBagFromFile; only beeps if there is no file.
void loadBagInMainWindow(Surroundings& around);

/// F8 of the main window, "Bankoyu KARVENIS.DAT dosyasından yükle": beeps, asks and runs
/// LoadBankoFromFile; only beeps if there is no file or it does not reach the banko count.
void loadBankoInMainWindow(Surroundings& around);

/// Loads the bag from the file and removes the bankos from it. If the file is missing or shorter
/// than its count says, or the count is below 1, the bag stays as it is; a count of 50 or more
/// empties it. Beeps twice if a bag was found, else once. Throws RunTimeError(open, read).
void LoadBagFromFile(Surroundings& around);

/// Loads the bankos from the file and removes them from the bag. If the file is shorter than its
/// count says, the bankos stay as they are; if it is missing, so does the bag. A count outside 1..5
/// means no bankos. Beeps once. Throws RunTimeError(open, read).
void LoadBankoFromFile(Surroundings& around);

}  // namespace karvenis
