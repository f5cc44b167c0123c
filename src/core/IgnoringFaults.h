#pragma once

#include "platform/RunTimeError.h"

namespace karvenis {

/// Runs one step of a command that goes on with its next step if this one fails. Returns whether it
/// succeeded. Only a RunTimeError is ignored; anything else passes.
template <typename Step>
bool ignoringFaults(Step step) {
  try {
    step();
    return true;
  } catch (const RunTimeError&) {
    return false;
  }
}

}  // namespace karvenis
