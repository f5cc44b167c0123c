#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <optional>
#include <random>
#include <set>

#include "comblist/Filters.h"
#include "doubles/Doubles.h"

// The four filters told a second time, as a few lines over sets that share nothing with the
// program, and compared with it on random lists and inputs.

namespace karvenis {
namespace {

using Numbers = std::set<int>;
using Pairs = std::set<std::pair<int, int>>;

/// The ball that `text` begins with, or 0.
int ball(std::string text) {
  std::erase_if(text, [](char c) { return c == ' '; });
  const std::size_t sign = text.starts_with('-') || text.starts_with('+') ? 1 : 0;
  std::size_t end = std::min(text.find_first_not_of("0123456789", sign), text.size());
  if (end < text.size() && text[end] == '.') {
    end = std::min(text.find_first_not_of("0123456789", end + 1), text.size());
  }
  const double value = std::nearbyint(std::strtod(text.substr(0, end).c_str(), nullptr));
  return value >= 1 && value <= 49 ? static_cast<int>(value) : 0;
}

struct Wish {
  Numbers numbers;
  Pairs pairs;
  std::string shown;
};

std::optional<Wish> readNumbers(const std::string& input) {
  Wish wish;
  if (ball(input) == 0) return std::nullopt;
  wish.numbers.insert(ball(input));
  for (auto comma = input.find(','); comma != std::string::npos;
       comma = input.find(',', comma + 2)) {
    wish.numbers.insert(ball(input.substr(comma + 1)));
  }
  wish.numbers.erase(0);
  for (const int n : wish.numbers) wish.shown += std::to_string(n) + ",";
  wish.shown.pop_back();
  return wish;
}

std::optional<Wish> readPair(const std::string& input) {
  const int a = ball(input);
  if (a == 0) return std::nullopt;
  std::size_t dash = input.find('-');
  while (dash != std::string::npos && ball(input.substr(dash + 1)) == 0) {
    dash = input.find('-', dash + 1);
  }
  if (dash == std::string::npos) return std::nullopt;
  const int b = ball(input.substr(dash + 1));
  const std::string pair = std::to_string(std::min(a, b)) + "-" + std::to_string(std::max(a, b));
  return Wish{{a, b}, {}, a == b ? input : pair};
}

std::optional<Wish> readPairs(std::string input) {
  Wish wish;
  while (input.size() >= 3 && input.find('-') + 1 < input.size()) {
    const std::size_t dash = input.find('-');
    if (dash == std::string::npos) break;
    const std::string right = input.substr(dash + 1);
    const int a = ball(input.substr(0, dash));
    const int b = ball(right);
    if (a == 0 || b == 0) break;
    wish.pairs.insert({std::min(a, b), std::max(a, b)});
    const std::size_t comma = right.find(',');
    input = comma == std::string::npos || comma + 3 >= right.size() ? "" : right.substr(comma + 1);
  }
  for (const auto& [a, b] : wish.pairs) {
    if (a == b) continue;
    wish.shown += (wish.shown.empty() ? "" : ", ") + std::to_string(a) + "-" + std::to_string(b);
  }
  if (wish.shown.empty()) return std::nullopt;
  return wish;
}

using Balls = std::array<int, 6>;

bool keeps(Filter filter, const Wish& wish, const Balls& balls) {
  const auto isDrawn = [&](int n) { return std::ranges::count(balls, n) > 0; };
  const auto isDrawnOutsideTheThird = [&](int n) {
    return std::ranges::count(balls, n) > (balls[2] == n ? 1 : 0);
  };
  switch (filter) {
    case Filter::FilterUnwantedNumbers:
      return std::ranges::none_of(wish.numbers, isDrawn);
    case Filter::FilterWantedNumbers:
      return balls[2] == -1 || std::ranges::any_of(wish.numbers, isDrawnOutsideTheThird);
    case Filter::FilterUnwantedPair:
      return std::ranges::count_if(balls, [&](int n) { return wish.numbers.contains(n); }) < 2;
    case Filter::FilterWantedPairs:
      for (std::size_t i = 0; i < 6; ++i) {
        for (std::size_t j = 0; j < i; ++j) {
          if (wish.pairs.contains(std::minmax(balls[j], balls[i]))) return true;
        }
      }
  }
  return false;
}

int word16(const Bytes& bytes, std::size_t at) {
  const auto low = std::to_integer<unsigned>(bytes[at]);
  const auto high = std::to_integer<unsigned>(bytes[at + 1]);
  return static_cast<std::int16_t>(low | (high << 8U));
}

/// What the list must be afterwards; nothing if it must be gone.
std::optional<Bytes> filtered(Filter filter, const Wish& wish, Bytes list) {
  const std::size_t rest = list.size() % 16;
  const std::size_t whole = list.size() / 16;
  const std::size_t count = whole + (rest > 8 || (rest == 8 && whole % 2 == 1) ? 1 : 0);
  list.resize(count * 16);
  const Bytes mark = hex("A1 01 00 00");  // 417
  Bytes kept;
  for (std::size_t start = 0; start < list.size(); start += 16) {
    Balls balls{};
    for (std::size_t k = 0; k < 6; ++k) balls.at(k) = word16(list, start + 4 + 2 * k);
    if (!keeps(filter, wish, balls)) continue;
    kept.insert(kept.end(), mark.begin(), mark.end());
    const auto from = list.begin() + static_cast<std::ptrdiff_t>(start);
    kept.insert(kept.end(), from + 4, from + 16);
  }
  if (kept.empty()) return std::nullopt;
  return kept;
}

// --- random lists and inputs

class Dice {
 public:
  explicit Dice(unsigned sequence) : generator_(sequence) {}
  int upTo(int most) { return static_cast<int>(generator_() % static_cast<unsigned>(most + 1)); }
  bool oneIn(int many) { return upTo(many - 1) == 0; }

  Bytes list() {
    const int count = oneIn(500) ? 4000 + upTo(2000) : upTo(oneIn(4) ? 3 : 40);
    Bytes bytes = words({});
    for (int i = 0; i < count; ++i) {
      const Bytes one =
          words({upTo(65535), upTo(3), number(), number(), number(), number(), number(), number()});
      bytes.insert(bytes.end(), one.begin(), one.end());
    }
    if (oneIn(4)) {
      for (int more = upTo(15); more > 0; --more) bytes.push_back(std::byte{7});
    }
    return bytes;
  }

  std::string input(bool pairs) {
    static const std::vector<std::string> edges = {
        "5, 12,30", "12",          "5,7",      "0,5", "5,0,60", "5,,7",    "5,,,7", "1 2,5",
        "12-5",     "5 - 12",      "5-",       "5",   "5-0-12", "5--12",   "-5-12", "7-7",
        "1-2,3-4",  "1-2,3-x,5-6", "1-2,3-4,", "2-1", "1,2-3",  "7-7,1-2", "2.5",   "3.5-4.5"};
    if (oneIn(8)) return edges[static_cast<std::size_t>(upTo(static_cast<int>(edges.size()) - 1))];
    if (oneIn(4)) return characters();
    return wellFormed(oneIn(6) != pairs);
  }

 private:
  int number() {
    static const int odd[] = {-1, 0, 50, 32767, -32768, -7, 417};
    return oneIn(60) ? odd[upTo(6)] : 1 + upTo(oneIn(2) ? 48 : 11);
  }
  std::string characters() {
    static const std::vector<std::string> some = {"0", "1", "2", "3", "4", "5", "6", "7",
                                                  "8", "9", ",", ",", ",", "-", "-", "-",
                                                  " ", ".", "+", "x", "ş", "e", "'"};
    std::string text;
    for (int length = upTo(14); length > 0; --length) {
      text += some[static_cast<std::size_t>(upTo(static_cast<int>(some.size()) - 1))];
    }
    return text;
  }
  std::string wellFormed(bool pairs) {
    std::string text;
    for (int count = 1 + upTo(4); count > 0; --count) {
      text += std::to_string(upTo(oneIn(2) ? 51 : 12));
      if (pairs) text += "-" + std::to_string(1 + upTo(oneIn(2) ? 49 : 11));
      if (count > 1) text += oneIn(3) ? ", " : ",";
    }
    return text;
  }

  std::mt19937 generator_;
};

std::optional<Wish> read(Filter filter, const std::string& input) {
  if (filter == Filter::FilterUnwantedPair) return readPair(input);
  return filter == Filter::FilterWantedPairs ? readPairs(input) : readNumbers(input);
}

/// Between the first and the last quote of the question.
std::string listIn(const std::string& question) {
  return question.substr(1, question.rfind('\'') - 1);
}

struct Counts {
  int asked = 0;
  int rewritten = 0;
  int deleted = 0;
};

void compare(Filter filter, Dice& dice, Counts& counts) {
  QuietWorld world;
  const Bytes before = dice.list();
  YieldingBoxes& boxes = world.boxes;
  boxes.typed = dice.input(filter >= Filter::FilterUnwantedPair);
  boxes.says = !dice.oneIn(20);
  world.files.folder[combinationList] = before;
  SCOPED_TRACE(boxes.typed);

  ListPage page;
  filterList(filter, world.around, page, world.title);

  std::map<std::string, Bytes> expected = {{combinationList, before}};
  const std::optional<Wish> wish = before.size() > 8 ? read(filter, boxes.typed) : std::nullopt;
  ASSERT_EQ(!boxes.question.empty(), wish.has_value());
  if (wish) {
    ++counts.asked;
    ASSERT_EQ(listIn(boxes.question), wish->shown);
    if (boxes.says) {
      expected = {{listBackup, before}};
      const std::optional<Bytes> kept = filtered(filter, *wish, before);
      if (kept) expected[combinationList] = *kept;
      ++(kept ? counts.rewritten : counts.deleted);
    }
  }
  ASSERT_EQ(world.files.folder, expected);
}

class FiltersAgainstSets : public testing::TestWithParam<Filter> {};

TEST_P(FiltersAgainstSets, AgreeByteForByte) {
  constexpr int cases = 10'000;
  Dice dice(static_cast<unsigned>(GetParam()) + 1);
  Counts counts;
  for (int i = 0; i < cases && !HasFatalFailure(); ++i) {
    SCOPED_TRACE("case " + std::to_string(i));
    compare(GetParam(), dice, counts);
  }
  EXPECT_GT(counts.rewritten, cases / 4);
  EXPECT_GT(counts.deleted, cases / 300);
  EXPECT_LT(counts.asked, cases * 9 / 10) << "inputs that ask for nothing belong to it";
  RecordProperty("rewritten", counts.rewritten);
  RecordProperty("deleted", counts.deleted);
}

INSTANTIATE_TEST_SUITE_P(Filters, FiltersAgainstSets,
                         testing::Values(Filter::FilterUnwantedNumbers, Filter::FilterWantedNumbers,
                                         Filter::FilterUnwantedPair, Filter::FilterWantedPairs),
                         [](const auto& filter) {
                           return "F" + std::to_string(static_cast<int>(filter.param) + 5);
                         });

}  // namespace
}  // namespace karvenis
