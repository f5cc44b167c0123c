#include "listing/ListText.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "core/ColumnRecord.h"

namespace karvenis {
namespace {

/// More than the longest line of a damaged record: a label of 10 digits, balls and a sum of 6
/// characters each.
constexpr std::size_t lineRoom = 128;
constexpr std::size_t numberRoom = 11;

// These write at `at`, where there is room, and return the place behind what they wrote.

char* put(char* at, std::string_view text) { return std::ranges::copy(text, at).out; }

/// `number` without blanks, filled up with zeros on the left to `digits` characters.
char* putPadded(char* at, std::int32_t number, std::size_t digits) {
  char* end = std::to_chars(at, at + numberRoom, number).ptr;
  const auto length = static_cast<std::size_t>(end - at);
  if (length >= digits) return end;
  std::copy_backward(at, end, at + digits);
  std::fill_n(at, digits - length, '0');
  return at + digits;
}

}  // namespace

void appendColumnLine(std::string& text, std::int32_t number, std::size_t digits,
                      const Column& balls) {
  const std::int16_t sum = columnSum(balls, number);
  std::array<char, lineRoom> line;
  char* end = put(line.data(), "Kolon ");
  end = putPadded(end, number, digits);
  end = put(end, " - ");
  const char* between = "";
  for (const std::int16_t ball : balls) {
    end = putPadded(put(end, between), ball, 2);
    between = ", ";
  }
  end = put(end, "  [");
  const bool threeCharacters = sum >= 100 || sum <= -10;
  if (!threeCharacters) end = put(end, "0");
  end = putPadded(end, sum, 1);
  end = put(end, "]");
  text.append(line.data(), end);
}

std::string totalLine(std::int32_t columns) {
  return "< Toplam " + std::to_string(columns) + " kolon. >";
}

std::size_t digitCount(std::int32_t number) { return std::to_string(number).size(); }

std::string singleBytes(std::string_view text) {
  std::string bytes;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    const bool continues = (byte & 0xC0U) == 0x80U;
    if (byte < 0x80) {
      bytes += c;
    } else if (!continues) {
      bytes += '?';
    }
  }
  return bytes;
}

}  // namespace karvenis
