#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "core/ColumnFile.h"
#include "core/Surroundings.h"

namespace karvenis {

/// What a scratch file holds before it is filled.
enum class ScratchStart {
  empty,       ///< nothing: a scratch file of an interrupted run is removed
  copyOfList,  ///< the bytes of the list; nothing if there is no list
  leftOver,    ///< what a scratch file of an interrupted run holds; nothing if there is none
};

/// A list and the scratch file that takes its place.
struct ListAndScratch {
  const char* list;
  const char* scratch;
  ScratchStart start;
};

/// Replaces a list by one that is written record by record. (A list that becomes a copy of another
/// file is replaced by copyList.) The steps: a protected list is refused before anything is
/// written; the scratch file gets the rights of the list; `fill` writes it; and it takes the name
/// of the list in one step on disk. The list holds its old or its new bytes at every moment, and
/// after a fault no scratch file is left. `fill` gets the open scratch file and does not close it.
/// The keys and clicks that come meanwhile are dropped. Throws RunTimeError, and what `fill`
/// throws.
void replaceList(Surroundings& around, const ListAndScratch& names,
                 const std::function<void(ColumnFile& scratch)>& fill);

/// Removes record `number` (1..`count`) from a list of `count` records; the others keep their words
/// and their order. The file of a list of one record is removed. Throws RunTimeError; the list is
/// then as it was.
void removeColumn(Surroundings& around, const ListAndScratch& names, std::int32_t number,
                  std::int32_t count);

/// Copies the list `from` over `to`. Precondition: `from` exists. The keys and clicks that come
/// meanwhile are dropped. Throws RunTimeError(copy).
void copyList(Surroundings& around, const char* from, const char* to);

/// Copies the combination list over its backup. Precondition: the list exists. Every change that
/// keeps a backup begins with this, so a protected list is refused here, before anything is
/// written. Throws RunTimeError(write, copy).
void backUpList(Surroundings& around);

/// The same if there is a list, else nothing. Throws RunTimeError(write, copy).
void backUpAnyList(Surroundings& around);

/// The text of the box that says that a combination list of `columns` columns has been written.
[[nodiscard]] std::string savedInList(std::int32_t columns);

}  // namespace karvenis
