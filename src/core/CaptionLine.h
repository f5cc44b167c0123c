#pragma once

#include <charconv>
#include <cstdint>
#include <string>
#include <string_view>

namespace karvenis {

/// A caption that a long action builds again and again: it keeps its memory between two captions.
class CaptionLine {
 public:
  /// Starts a new caption with `text`.
  CaptionLine& start(std::string_view text) {
    line_.assign(text);
    return *this;
  }
  CaptionLine& add(std::string_view text) {
    line_.append(text);
    return *this;
  }
  /// `number` without blanks.
  CaptionLine& add(std::int64_t number) {
    char digits[20];
    const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    line_.append(digits, end);
    return *this;
  }
  /// `number` with a leading blank in the place of its sign.
  CaptionLine& addWithBlank(std::int64_t number) {
    if (number >= 0) line_ += ' ';
    return add(number);
  }
  std::string_view text() const { return line_; }

 private:
  std::string line_;
};

}  // namespace karvenis
