#pragma once

#include "platform/RunTimeError.h"

namespace karvenis {

/// Runs one step of a command that goes on with its next step where this one fails. Returns whether
/// it succeeded.
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
