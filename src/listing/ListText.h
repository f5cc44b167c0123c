#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/Column.h"

namespace karvenis {

/// The lines of a listed column list, alike on paper and in the text file; none has its line end.

/// Appends the line of record `number`, which is filled up with zeros to `digits` digits:
/// "Kolon 07 - 03, 11, 17, 25, 38, 45  [139]". Throws RunTimeError(overflow) where the sum of a
/// damaged record outgrows 16 bits.
void appendColumnLine(std::string& text, std::int32_t number, std::size_t digits,
                      const Column& balls);

/// The last line: how many columns were listed.
std::string totalLine(std::int32_t columns);

/// Decimal digits of a number above 0.
std::size_t digitCount(std::int32_t number);

/// A UTF-8 text in one byte a character; what is not ASCII becomes "?".
std::string singleBytes(std::string_view text);

}  // namespace karvenis
