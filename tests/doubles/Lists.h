#pragma once

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "core/ColumnRecord.h"
#include "doubles/Columns.h"

namespace karvenis {

using Columns = std::vector<ColumnRecord>;

/// What the column files ought to hold, kept in the plainest way. A file that does not exist is
/// none.
struct Lists {
  std::optional<Columns> kept, list, backup;

  static bool any(const std::optional<Columns>& columns) { return columns && !columns->empty(); }
  static std::size_t count(const std::optional<Columns>& columns) {
    return columns ? columns->size() : 0;
  }

  void backUp() {
    if (list) backup = list;
  }
  /// The column `drawn` is kept as it stands.
  void keep(const Column& drawn) {
    if (!kept) kept.emplace();
    kept->push_back({0, drawn});
  }
  /// `number` is 1..count(kept).
  void removeKept(std::size_t number) { removeFrom(kept, number); }
  /// `number` is 1..count(list).
  void removeListed(std::size_t number) {
    backUp();
    removeFrom(list, number);
  }
  /// The kept columns go behind the list.
  void append() {
    if (!list) list.emplace();
    const Columns added = *kept;
    list->insert(list->end(), added.begin(), added.end());
  }
  /// The kept columns become the list.
  void saveAsList() {
    backUp();
    list = kept;
  }
  /// The kept columns become the list and are kept no longer.
  void renameToList() {
    saveAsList();
    kept.reset();
  }
  /// The records `first`.. (from 1) were made by chance: `made` is what the file holds by now.
  void generated(std::size_t first, std::size_t count, const Columns& made) {
    if (!list) list.emplace();
    list->resize(std::max(list->size(), first - 1 + count));
    for (std::size_t number = first; number < first + count && number <= made.size(); ++number) {
      (*list)[number - 1] = {static_cast<std::int32_t>(number), made[number - 1].Balls};
    }
  }
  void thinOut(const std::function<bool(const Column&)>& keeps) {
    backUp();
    std::erase_if(*list, [&](const ColumnRecord& record) { return !keeps(record.Balls); });
    for (ColumnRecord& record : *list) record.Word = 417;
    if (list->empty()) list.reset();
  }

 private:
  static void removeFrom(std::optional<Columns>& columns, std::size_t number) {
    columns->erase(columns->begin() + static_cast<std::ptrdiff_t>(number - 1));
    if (columns->empty()) columns.reset();
  }
};

inline bool holds(const Column& column, std::int16_t ball) {
  return std::ranges::find(column, ball) != column.end();
}

// What each filter keeps.

inline bool lacksAll(const Column& column, const std::vector<std::int16_t>& numbers) {
  return std::ranges::none_of(numbers, [&](std::int16_t n) { return holds(column, n); });
}
/// The third ball is never looked up.
inline bool hasWanted(Column column, const std::vector<std::int16_t>& numbers) {
  column[2] = 0;
  return !lacksAll(column, numbers);
}
inline bool hasBoth(const Column& column, std::int16_t a, std::int16_t b) {
  return std::ranges::count_if(column, [=](std::int16_t x) { return x == a || x == b; }) > 1;
}
/// Pairs of two different balls.
using Pairs = std::vector<std::pair<std::int16_t, std::int16_t>>;
inline bool hasAnyPair(const Column& column, const Pairs& pairs) {
  return std::ranges::any_of(pairs, [&](const auto& pair) {
    return holds(column, pair.first) && holds(column, pair.second);
  });
}

}  // namespace karvenis
