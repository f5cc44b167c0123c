#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "core/ColumnFile.h"

namespace karvenis {

/// What a scratch file holds before it is filled.
enum class ScratchStart {
  empty,       ///< nothing; what an interrupted run left behind is removed
  copyOfList,  ///< the list's bytes; nothing if there is no list
  leftOver,    ///< what an interrupted run left behind; mostly there is nothing
};

/// A list and the scratch file that takes its place.
struct ListAndScratch {
  const char* list;
  const char* scratch;
  ScratchStart start;
};

/// Replaces a list in the one way in which all of them are replaced: refuses a protected list
/// before anything is written, begins the scratch file with the list's rights, lets `fill` write
/// it, and gives it the list's name in one step on disk. The list holds its old or its new bytes
/// whatever happens, and no scratch file stays behind a fault. `fill` gets the open scratch file
/// and does not close it. Throws RunTimeError, also what `fill` throws.
void replaceList(SharedState& state, Files& files, const ListAndScratch& names,
                 const std::function<void(ColumnFile& scratch)>& fill);

/// Takes record `number` (1..`count`) out of a list of `count` records; the others keep their words
/// and their order. A list whose only record goes is removed. Throws RunTimeError as replaceList
/// does.
void removeColumn(SharedState& state, Files& files, const ListAndScratch& names,
                  std::int32_t number, std::int32_t count);

/// Copies the combination list, which exists, over its backup. Every change that keeps a backup
/// begins with this, so a protected list is refused first. Throws RunTimeError(write, copy).
void backUpList(Files& files);

/// The same, but does nothing if there is no list.
void backUpAnyList(Files& files);

/// The box's text about a combination list of `columns` columns that has been written.
[[nodiscard]] std::string savedInList(std::int32_t columns);

}  // namespace karvenis
