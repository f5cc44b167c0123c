#pragma once

#include "platform/qt/Forms.h"
#include "windows/KnownProgram.h"

namespace karvenis {

/// Expects that the windows, the files and the shared state are as `known` has them and that every
/// box of the script has come.
void expectShown(const KnownProgram& known, Forms& forms, World& world);

}  // namespace karvenis
