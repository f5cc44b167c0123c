#pragma once

#include <cstdint>

namespace karvenis {

/// Decides when the opening picture comes back over the balls: when the clock's minute is another
/// one than at the last draw or click on the picture. A minute is one of the hour, 0..59.
class IdleCover {
 public:
  /// The user has drawn, or clicked on the picture, in this minute.
  void noteUse(std::int16_t minute) { lastUse_ = minute; }
  /// Whether the picture is to be shown in this minute.
  [[nodiscard]] bool isDue(std::int16_t minute) const { return minute != lastUse_; }

 private:
  std::int16_t lastUse_ = 0;
};

}  // namespace karvenis
