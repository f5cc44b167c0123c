#pragma once

#include <cstdint>

namespace karvenis {

/// The banner picture that sways sideways behind its opening. Lengths are twips.
class Banner {
 public:
  /// The picture's left edge, -3000..-25 and a step beyond at the turns.
  int left() const { return left_; }
  /// One step of the clock timer.
  void tick() {
    left_ += movingRight_ ? step : -step;
    if (left_ > rightmost) {
      movingRight_ = false;
    } else if (left_ < leftmost) {
      movingRight_ = true;
    }
  }

 private:
  static constexpr int step = 25;
  static constexpr int rightmost = -25;
  static constexpr int leftmost = -3000;

  int left_ = 0;
  bool movingRight_ = false;
};

/// When the opening picture comes back over the balls: at the first change of the clock's minute
/// since the last draw or click on it.
class IdleCover {
 public:
  void stamp(std::int16_t minute) { stamp_ = minute; }
  bool returns(std::int16_t minute) const { return minute != stamp_; }

 private:
  std::int16_t stamp_ = 0;
};

}  // namespace karvenis
