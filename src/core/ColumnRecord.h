#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "core/Column.h"

namespace karvenis {

/// One record of a column file. Its numbers may be any, since a file can be damaged.
struct ColumnRecord {
  static constexpr std::size_t size = 4 + ballsInColumn * 2;  ///< in a file, in bytes

  std::int32_t Word = 0;  ///< its meaning depends on who wrote it
  Column Balls{};

  bool operator==(const ColumnRecord&) const = default;
};
static_assert(ColumnRecord::size == 16);

/// The largest 16-bit count: neither the generator nor the saving of a drawn column makes a list
/// longer.
inline constexpr std::int32_t recordLimit = 32767;

/// Writes `record` into `bytes` as files hold it: the word, then the balls, all little-endian.
void encode(const ColumnRecord& record, std::span<std::byte, ColumnRecord::size> bytes);
/// Returns the record that `bytes` hold in that form. Any bytes are a record.
[[nodiscard]] ColumnRecord decodeColumn(std::span<const std::byte, ColumnRecord::size> bytes);

/// Returns the sum of the six balls of `column`. Throws RunTimeError(damaged) if it leaves 16 bits
/// at any step, as it can in a damaged record; the error names the `file` and the record's
/// `number`.
[[nodiscard]] std::int16_t columnSum(const Column& column, const std::string& file,
                                     std::int64_t number);

}  // namespace karvenis
