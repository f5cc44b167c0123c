#include "platform/SystemChance.h"

#include <unistd.h>

#include <array>
#include <ctime>
#include <tuple>

namespace karvenis {

void SystemChance::seed(std::int64_t microseconds) {
  std::array<std::int64_t, 3> entropy{};  // stays 0 on a system that gives none
  std::ignore = ::getentropy(entropy.data(), sizeof entropy);
  const std::int64_t date = std::time(nullptr);
  const auto before = static_cast<std::int64_t>(generator_());
  // Of each the lower 32 bits count.
  std::seed_seq sources{microseconds, date, before, entropy[0], entropy[1], entropy[2]};
  generator_.seed(sources);
}

float SystemChance::next() {
  constexpr float scale = 1.0F / (1U << 24U);
  return static_cast<float>(generator_() >> 8U) * scale;
}

}  // namespace karvenis
