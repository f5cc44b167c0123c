#pragma once

#include <cstdint>
#include <string>

namespace karvenis {

/// The door to the system's clock. All times are local; no call fails.
class Clock {
 public:
  virtual ~Clock() = default;
  /// Today's date in the short form of the system's language, for example "21.11.2026".
  [[nodiscard]] virtual std::string date() = 0;
  /// The time of day as "HH:MM:SS".
  [[nodiscard]] virtual std::string time() = 0;
  /// The minute of the hour, 0..59.
  [[nodiscard]] virtual std::int16_t minute() = 0;
  /// Microseconds since midnight, below 86'400'000'000.
  [[nodiscard]] virtual std::int64_t sinceMidnight() = 0;
};

}  // namespace karvenis
