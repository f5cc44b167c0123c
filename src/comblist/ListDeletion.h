#pragma once

#include <cstdint>

#include "core/SharedState.h"
#include "platform/Files.h"

namespace karvenis {

/// Takes record `number` (1..count) out of the combination list of `count` records. The list as it
/// was goes to its backup; the other records keep their words and their order. A list whose only
/// record goes is deleted. Throws RunTimeError; the list then holds its old bytes still.
void deleteListColumn(SharedState& state, Files& files, std::int32_t number, std::int32_t count);

}  // namespace karvenis
