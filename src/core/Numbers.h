#pragma once

#include <concepts>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace karvenis {

/// `number` as it stands in messages and titles: with a leading blank in the place of its sign.
template <std::integral Number>
[[nodiscard]] std::string withBlank(Number number) {
  std::string text = std::to_string(number);
  if (!std::cmp_less(number, 0)) text.insert(text.begin(), ' ');
  return text;
}

/// `number` without blanks, padded on the left with "0" to at least `digits` characters.
[[nodiscard]] std::string padded(std::int64_t number, std::size_t digits);

/// `numbers` with commas between them, as a sentence lists them: "4, 8, 15".
[[nodiscard]] std::string listed(std::span<const std::int16_t> numbers);

/// The number that `text` begins with, whatever follows it; 0 if it begins with none. Blanks are
/// skipped, also between digits ("1 2" is 12); one sign and one decimal point are understood. Only
/// ASCII digits count, whatever the system's language. A number beyond the range of a double is
/// infinite, one that is too small for it is 0.
[[nodiscard]] double leadingNumber(std::string_view text);

/// leadingNumber rounded to a 32-bit integer, halves to even; a number too large for 32 bits
/// becomes the nearest one that fits, which is out of range wherever the program asks for a range.
[[nodiscard]] std::int32_t typedNumber32(std::string_view text);

/// The same for 16 bits.
[[nodiscard]] std::int16_t typedNumber16(std::string_view text);

}  // namespace karvenis
