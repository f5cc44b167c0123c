#pragma once

#include <functional>

#include "comblist/FilterInput.h"
#include "comblist/Filters.h"
#include "fuzz/Fuzz.h"

namespace karvenis {

/// Reading is quick and filtering is not: every 32nd input, chosen by its own bytes, filters.
inline bool isChosen(const std::string& typed) {
  return std::hash<std::string>()(typed) % 32 == 0 || typed.size() < 3;
}

/// Filters a sound list with `typed` and requires what holds whatever was typed.
inline void filterWith(Filter filter, const std::string& typed) {
  FilterMarks marks;
  const auto shown = filter == Filter::FilterUnwantedPair  ? readPair(typed, marks)
                     : filter == Filter::FilterWantedPairs ? readPairs(typed, marks)
                                                           : readNumbers(typed, marks);
  require(!shown || !shown->empty());
  if (!isChosen(typed)) return;

  static const Bytes list = soundList(20);
  QuietWorld world;
  world.files.folder[combinationList] = list;
  world.boxes.typed = typed;
  ListPage page;
  const bool done = filterList(filter, world.around, page, world.title);
  require(done == !world.boxes.question.empty());
  require(!world.files.exists(tmpScratch));
  require(done == world.files.exists(listBackup));
  if (done) {
    require(world.files.bytes(listBackup) == list);
    require(world.files.bytes(combinationList).size() <= list.size());
  } else {
    require(world.files.bytes(combinationList) == list);
  }
}

}  // namespace karvenis
