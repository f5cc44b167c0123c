#pragma once

#include "doubles/Columns.h"
#include "doubles/QuietWorld.h"
#include "doubles/ScriptedBoxes.h"

namespace karvenis {

/// Everything outside, as the test wants it.
using World = WorldOf<ScriptedBoxes>;

}  // namespace karvenis
