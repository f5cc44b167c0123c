#include "listing/ListText.h"

#include <array>
#include <charconv>

#include "core/ColumnRecord.h"

namespace karvenis {

void appendPadded(std::string& text, std::int64_t number, std::size_t digits) {
  std::array<char, 24> shown{};
  const char* end = std::to_chars(shown.data(), shown.data() + shown.size(), number).ptr;
  const auto length = static_cast<std::size_t>(end - shown.data());
  if (length < digits) text.append(digits - length, '0');
  text.append(shown.data(), length);
}

void appendColumnLine(std::string& text, std::int32_t number, std::size_t digits,
                      const Column& balls) {
  const std::int16_t sum = columnSum(balls);
  text += "Kolon ";
  appendPadded(text, number, digits);
  text += " - ";
  for (std::size_t k = 1; k <= ballsInColumn; ++k) {
    if (k > 1) text += ", ";
    appendPadded(text, balls[k], 2);
  }
  text += "  [";
  const bool threeCharacters = sum >= 100 || sum <= -10;
  if (!threeCharacters) text += '0';
  appendPadded(text, sum);
  text += ']';
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
