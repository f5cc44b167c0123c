#pragma once

#include <vector>

namespace karvenis {

// The 16-bit words of bag files.

/// A bag part of 50 words, from its first words.
inline std::vector<int> bagPart(std::vector<int> first) {
  first.resize(50);
  return first;
}

/// A count and the balls 1..`count` behind it.
inline std::vector<int> countAndBalls(int count) {
  std::vector<int> all = {count};
  for (int ball = 1; ball <= count; ++ball) all.push_back(ball);
  return all;
}

/// A whole file: an empty bag part, then these words from record 51.
inline std::vector<int> withBankoPart(const std::vector<int>& banko) {
  std::vector<int> all = bagPart({0});
  all.insert(all.end(), banko.begin(), banko.end());
  return all;
}

}  // namespace karvenis
