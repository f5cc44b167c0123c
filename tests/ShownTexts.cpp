// Keeps what the doubles of a test program show, and writes it to the file that KARVENIS_SHOWN
// names when the program ends; untested_texts.py looks for the program's texts there.
#include <cstdlib>
#include <fstream>
#include <set>
#include <string>

#include "doubles/Journal.h"

namespace karvenis {
namespace {

/// `text` with one # for the digits of each number, so that counting titles are one text.
std::string withoutNumbers(std::string_view text) {
  std::string kept;
  for (const char c : text) {
    const bool isDigit = c >= '0' && c <= '9';
    if (!isDigit) kept += c;
    if (isDigit && !kept.ends_with('#')) kept += '#';
  }
  return kept;
}

class ShownTexts {
 public:
  ShownTexts() {
    if (std::getenv("KARVENIS_SHOWN") == nullptr) return;
    shownTexts() = [this](std::string_view text) { all_.insert(withoutNumbers(text)); };
  }
  ~ShownTexts() {
    if (!shownTexts()) return;
    shownTexts() = nullptr;
    std::ofstream file(std::getenv("KARVENIS_SHOWN"));
    for (const std::string& text : all_) file << text << '\n';
  }
  ShownTexts(const ShownTexts&) = delete;
  ShownTexts& operator=(const ShownTexts&) = delete;

 private:
  std::set<std::string> all_;
};

const ShownTexts texts;

}  // namespace
}  // namespace karvenis
