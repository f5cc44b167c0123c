#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "core/ColumnFile.h"

namespace karvenis {

/// The lines of a listing, the same on paper and in the text file. None ends with a line break.

/// The first line.
inline constexpr char firstLine[] = "< KARVENIS 2005 Randomizer >";

/// Records first..last of a list, both within it.
struct ListRange {
  std::int32_t first;
  std::int32_t last;
  [[nodiscard]] std::int32_t count() const { return last - first + 1; }
};

/// The line of record `number`, which is padded with zeros to `digits` digits:
/// "Kolon 07 - 03, 11, 17, 25, 38, 45  [139]". Throws RunTimeError(damaged), which names the
/// `file`, if the sum outgrows 16 bits.
[[nodiscard]] std::string columnLine(const std::string& file, std::int64_t number,
                                     std::size_t digits, const Column& balls);

/// Reads the range of `list` and calls `take` with the line of each record in turn; all numbers
/// have as many digits as the last. Throws RunTimeError(read, damaged), and what `take` throws.
void eachColumnLine(ColumnFile& list, ListRange range,
                    const std::function<void(const std::string& line)>& take);

/// The last line: how many columns were listed.
[[nodiscard]] std::string totalLine(std::int32_t columns);

/// `text`, which is UTF-8, with one byte for each character: one that is not ASCII becomes "?".
[[nodiscard]] std::string singleBytes(std::string_view text);

}  // namespace karvenis
