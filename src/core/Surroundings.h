#pragma once

#include "core/SharedState.h"
#include "platform/Boxes.h"
#include "platform/Chance.h"
#include "platform/Clock.h"
#include "platform/Files.h"
#include "platform/Printer.h"
#include "platform/Windows.h"

namespace karvenis {

/// What a window and its rules work with: the shared state and the doors to everything outside. All
/// of them outlive every window. A function that needs less takes only the doors that it uses.
struct Surroundings {
  SharedState& state;
  Boxes& boxes;
  Clock& clock;
  Chance& chance;
  Files& files;
  Printer& printer;
  Windows& windows;
};

}  // namespace karvenis
