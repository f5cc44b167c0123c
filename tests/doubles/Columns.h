#pragma once

#include <vector>

#include "core/ColumnFile.h"
#include "doubles/MemoryFiles.h"

namespace karvenis {

/// A column from six balls.
inline Column column(std::int16_t a, std::int16_t b, std::int16_t c, std::int16_t d, std::int16_t e,
                     std::int16_t f) {
  return {a, b, c, d, e, f};
}

/// The bytes of column records.
inline Bytes columnBytes(const std::vector<ColumnRecord>& records) {
  Bytes bytes(records.size() * ColumnRecord::size);
  for (std::size_t i = 0; i < records.size(); ++i) {
    encode(records[i],
           std::span(bytes).subspan(i * ColumnRecord::size).first<ColumnRecord::size>());
  }
  return bytes;
}

/// The column records of bytes; a ragged rest is left out.
inline std::vector<ColumnRecord> columnsOf(const Bytes& bytes) {
  std::vector<ColumnRecord> records;
  for (std::size_t i = 0; i + ColumnRecord::size <= bytes.size(); i += ColumnRecord::size) {
    records.push_back(decodeColumn(std::span(bytes).subspan(i).first<ColumnRecord::size>()));
  }
  return records;
}

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
