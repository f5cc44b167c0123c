#include "listing/ListText.h"

#include "core/ColumnRecord.h"
#include "core/Numbers.h"

namespace karvenis {

std::string columnLine(const std::string& file, std::int64_t number, std::size_t digits,
                       const Column& balls) {
  const std::string sum = std::to_string(columnSum(balls, file, number));
  std::string line = "Kolon " + padded(number, digits);
  const char* between = " - ";
  for (const std::int16_t ball : balls) {
    line += between;
    line += padded(ball, 2);
    between = ", ";
  }
  line += sum.size() < 3 ? "  [0" : "  [";
  line += sum;
  return line += "]";
}

void eachColumnLine(ColumnFile& list, ListRange range,
                    const std::function<void(const std::string& line)>& take) {
  const std::size_t digits = std::to_string(range.last).size();
  for (std::int64_t number = range.first; number <= range.last; ++number) {
    take(columnLine(list.name(), number, digits, list.at(number).Balls));
  }
}

std::string totalLine(std::int32_t columns) {
  return "< Toplam " + std::to_string(columns) + " kolon. >";
}

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
