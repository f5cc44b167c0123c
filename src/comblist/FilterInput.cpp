#include "comblist/FilterInput.h"

#include <string_view>

#include "core/Numbers.h"

namespace karvenis {
namespace {

/// The length of the shortest text that can hold a pair: "a-b".
constexpr std::size_t shortestPair = 3;

/// The marked numbers, ascending, with `separator` between them.
std::string joined(const FilterMarks& marks, const char* separator) {
  std::string list;
  for (int ball = 1; ball <= ballsInAll; ++ball) {
    if (!marks.has(ball)) continue;
    if (!list.empty()) list += separator;
    list += std::to_string(ball);
  }
  return list;
}

std::string joinedPairs(const FilterMarks& marks) {
  std::string list;
  for (int a = 1; a < ballsInAll; ++a) {
    for (int b = a + 1; b <= ballsInAll; ++b) {
      if (!marks.hasPair(a, b)) continue;
      if (!list.empty()) list += ", ";
      list += std::to_string(a) + "-" + std::to_string(b);
    }
  }
  return list;
}

/// Marks the pair that `rest` begins with and takes it, with the comma behind it, out of `rest`.
/// `rest` becomes empty if what remains is too short for a pair. Returns false if `rest` does not
/// begin with a pair.
bool takePair(std::string_view& rest, FilterMarks& marks) {
  const std::size_t dash = rest.find('-');
  if (rest.size() < shortestPair || dash == std::string_view::npos || dash + 1 == rest.size()) {
    return false;
  }
  const std::string_view right = rest.substr(dash + 1);
  if (!marks.markPair(typedNumber16(rest.substr(0, dash)), typedNumber16(right))) return false;
  const std::size_t comma = right.find(',');
  const bool more = comma != std::string_view::npos && right.size() - (comma + 1) >= shortestPair;
  rest = more ? right.substr(comma + 1) : std::string_view();
  return true;
}

}  // namespace

bool FilterMarks::mark(std::int16_t ball) {
  if (!isBall(ball)) return false;
  Marked[ball] = set;
  return true;
}

bool FilterMarks::markPair(std::int16_t a, std::int16_t b) {
  if (!isBall(a) || !isBall(b)) return false;
  PairMarked[a][b] = PairMarked[b][a] = set;
  return true;
}

std::optional<std::string> readNumbers(const std::string& InputText, FilterMarks& marks) {
  const std::string_view input = InputText;
  if (!marks.mark(typedNumber16(input))) return std::nullopt;
  // The character right behind a comma is never taken for the next comma.
  for (std::size_t i = input.find(','); i != std::string_view::npos; i = input.find(',', i + 2)) {
    marks.mark(typedNumber16(input.substr(i + 1)));
  }
  return joined(marks, ",");
}

std::optional<std::string> readPair(const std::string& InputText, FilterMarks& marks) {
  const std::string_view input = InputText;
  const std::int16_t first = typedNumber16(input);
  if (!marks.mark(first)) return std::nullopt;
  for (std::size_t i = input.find('-'); i != std::string_view::npos; i = input.find('-', i + 1)) {
    const std::int16_t second = typedNumber16(input.substr(i + 1));
    if (marks.mark(second)) return first == second ? InputText : joined(marks, "-");
  }
  return std::nullopt;
}

std::optional<std::string> readPairs(const std::string& InputText, FilterMarks& marks) {
  std::string_view rest = InputText;
  while (takePair(rest, marks)) continue;
  std::string pairs = joinedPairs(marks);
  if (pairs.empty()) return std::nullopt;
  return pairs;
}

}  // namespace karvenis
