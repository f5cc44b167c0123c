#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "core/Column.h"

namespace karvenis {

/// One record of a column file: a 32-bit word whose meaning depends on who wrote it, then the six
/// balls, all little-endian.
struct ColumnRecord {
  static constexpr std::size_t size = 4 + ballsInColumn * 2;

  std::int32_t Word = 0;
  Column Balls{};

  bool operator==(const ColumnRecord&) const = default;
};
static_assert(ColumnRecord::size == 16);

/// The most records that the save of a drawn column and the generator fill a list with: the largest
/// 16-bit count.
inline constexpr std::int32_t recordLimit = 32767;

void encode(const ColumnRecord& record, std::span<std::byte, ColumnRecord::size> bytes);
ColumnRecord decodeColumn(std::span<const std::byte, ColumnRecord::size> bytes);

/// The sum of the six balls of record `number`. Throws RunTimeError(overflow) where it outgrows 16
/// bits on the way, as it can in a damaged record.
std::int16_t columnSum(const Column& column, std::int64_t number);

}  // namespace karvenis
