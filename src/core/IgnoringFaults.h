#pragma once

#include "platform/RunTimeError.h"

namespace karvenis {

/// Runs one step of a command that goes on with its next step even if this one fails. Returns
/// whether the step succeeded. Only a RunTimeError is ignored; any other exception passes.
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
