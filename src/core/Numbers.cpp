#include "core/Numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace karvenis {
namespace {

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\n'; }
bool isDigit(char c) { return c >= '0' && c <= '9'; }

template <typename Int>
Int roundedInto(double number) {
  const double low = std::numeric_limits<Int>::min();
  const double high = std::numeric_limits<Int>::max();
  const double rounded = std::nearbyint(number);  // the default rounding mode: halves to even
  return static_cast<Int>(std::clamp(rounded, low, high));
}

}  // namespace

std::string padded(std::int64_t number, std::size_t digits) {
  std::string text = std::to_string(number);
  if (text.size() < digits) text.insert(0, digits - text.size(), '0');
  return text;
}

std::string listed(std::span<const std::int16_t> numbers) {
  std::string text;
  for (const std::int16_t number : numbers) {
    if (!text.empty()) text += ", ";
    text += std::to_string(number);
  }
  return text;
}

double leadingNumber(std::string_view text) {
  std::string number;
  bool signAllowed = true;
  for (const char c : text) {
    if (isBlank(c)) continue;
    const bool sign = signAllowed && (c == '-' || c == '+');
    if (!isDigit(c) && !sign && c != '.') break;
    if (!(sign && c == '+')) number += c;
    signAllowed = false;
  }
  double value = 0;
  const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value,
                                            std::chars_format::fixed);
  if (error != std::errc::result_out_of_range) return value;
  // Out of range is a number that is too large, or one so near to 0 that no digit but 0 stands
  // before its point.
  const bool large = number.find_first_of("123456789") < number.find('.');
  if (!large) return 0;
  return number.starts_with('-') ? -HUGE_VAL : HUGE_VAL;
}

std::int32_t typedNumber32(std::string_view text) {
  return roundedInto<std::int32_t>(leadingNumber(text));
}

std::int16_t typedNumber16(std::string_view text) {
  return roundedInto<std::int16_t>(leadingNumber(text));
}

}  // namespace karvenis
