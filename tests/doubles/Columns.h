#pragma once

#include "doubles/Doubles.h"

namespace karvenis {

/// The bytes of `count` columns that all differ: the words count up from `firstWord`.
inline Bytes countedColumns(std::int32_t count, std::int32_t firstWord = 1) {
  std::vector<ColumnRecord> all;
  for (std::int32_t i = 0; i < count; ++i) {
    all.push_back({firstWord + i, column(1, 2, 3, 4, 5, static_cast<std::int16_t>(6 + i % 44))});
  }
  return columnBytes(all);
}

/// `first` with `second` behind it.
inline Bytes joined(Bytes first, const Bytes& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

}  // namespace karvenis
