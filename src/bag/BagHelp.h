#pragma once

#include "platform/Boxes.h"

namespace karvenis {

/// F10 in the bag window: its keys.
void showBagKeys(Boxes& boxes);
/// F11 in the bag window: what the bag is for.
void explainBag(Boxes& boxes);
/// F10 in the banko window: its keys.
void showBankoKeys(Boxes& boxes);
/// F11 in the banko window: what bankos are for.
void explainBanko(Boxes& boxes);

}  // namespace karvenis
