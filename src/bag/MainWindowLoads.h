#pragma once

#include "core/Surroundings.h"

namespace karvenis {

// The main window's own loads. Those of the bag and the banko window, which show what they load,
// stand with their other actions.

/// F6 of the main window, "Torbayı KARVENIS.DAT dosyasından yükle": beeps, asks and runs
/// LoadBagFromFile; only beeps if there is no file.
void loadBagInMainWindow(Surroundings& around);

/// F8 of the main window, "Bankoyu KARVENIS.DAT dosyasından yükle": beeps, asks and runs
/// LoadBankoFromFile; only beeps if there is no file or it does not reach the banko count.
void loadBankoInMainWindow(Surroundings& around);

/// Takes the bag from the file, without its bankos. A file that holds no whole bag, or that is
/// gone, leaves the bag as it is; a count of 50 or more empties it. Beeps: twice if a bag was
/// found, else once. Throws RunTimeError(open, read).
void LoadBagFromFile(Surroundings& around);

/// Takes the bankos from the file and removes them from the bag. A file that does not hold them
/// all leaves them as they are, and one that is gone leaves the bag too; a count outside 1..5
/// leaves none. Beeps once. Throws RunTimeError(open, read).
void LoadBankoFromFile(Surroundings& around);

}  // namespace karvenis
