#pragma once

#include <cstdint>

namespace karvenis {

/// The banner picture, which moves from side to side behind its opening. Lengths are twips.
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

/// Decides when the opening picture comes back over the balls: when the clock's minute is another
/// one than at the last draw or click on the picture.
class IdleCover {
 public:
  /// A draw, or a click on the picture, in this minute of the hour.
  void stamp(std::int16_t minute) { stamp_ = minute; }
  /// Whether the picture is to be shown in this minute.
  bool returns(std::int16_t minute) const { return minute != stamp_; }

 private:
  std::int16_t stamp_ = 0;
};

}  // namespace karvenis
