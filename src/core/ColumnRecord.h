#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "core/Column.h"

namespace karvenis {

/// One record of a column file. The numbers may be any: a file can be damaged.
struct ColumnRecord {
  static constexpr std::size_t size = 4 + ballsInColumn * 2;  ///< in a file, in bytes

  std::int32_t Word = 0;  ///< its meaning depends on who wrote it
  Column Balls{};

  bool operator==(const ColumnRecord&) const = default;
};
static_assert(ColumnRecord::size == 16);

/// The most records that the save of a drawn column and the generator fill a list with: the largest
/// 16-bit count.
inline constexpr std::int32_t recordLimit = 32767;

/// Writes `record` into `bytes` as files hold it: the word, then the balls, all little-endian.
void encode(const ColumnRecord& record, std::span<std::byte, ColumnRecord::size> bytes);
/// The record that `bytes` hold.
[[nodiscard]] ColumnRecord decodeColumn(std::span<const std::byte, ColumnRecord::size> bytes);

/// The sum of the six balls of record `number`, which is only for the error. Throws
/// RunTimeError(overflow) if it outgrows 16 bits on the way, as it can in a damaged record.
[[nodiscard]] std::int16_t columnSum(const Column& column, std::int64_t number);

}  // namespace karvenis
