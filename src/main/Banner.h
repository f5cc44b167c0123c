#pragma once

namespace karvenis {

/// The banner picture, which moves from side to side behind a strip that shows a part of it.
/// Lengths are twips.
class Banner {
 public:
  /// The picture's left edge: 0 at first, then between -3025 and 0.
  [[nodiscard]] int left() const { return left_; }
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

}  // namespace karvenis
