#include "platform/SystemChance.h"

namespace karvenis {

void SystemChance::seed(std::int64_t microseconds) {
  const auto clock = static_cast<std::uint64_t>(microseconds);
  std::seed_seq sources{static_cast<std::uint32_t>(clock), static_cast<std::uint32_t>(clock >> 32U),
                        static_cast<std::uint32_t>(generator_())};
  generator_.seed(sources);
}

float SystemChance::next() {
  constexpr float scale = 1.0F / (1U << 24U);
  return static_cast<float>(generator_() >> 8U) * scale;
}

}  // namespace karvenis
