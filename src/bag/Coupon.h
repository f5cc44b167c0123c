#pragma once

#include <cstdint>
#include <string>

#include "core/Surroundings.h"
#include "platform/TextSurface.h"

namespace karvenis {

/// What a coupon changes in its window, beside the surface.
class CouponWindow {
 public:
  virtual ~CouponWindow() = default;
  /// Starts or stops the ticks.
  virtual void enableTimer1(bool enabled) = 0;
  /// Hides "F10 = Yardım".
  virtual void hideLabel1() = 0;
};

/// A coupon of eight random columns, typed out ball by ball: one step for each tick of the window's
/// timer. The columns respect the bag and the bankos and overwrite the drawn column.
class Coupon {
 public:
  Coupon(Surroundings& around, TextSurface& surface, CouponWindow& window)
      : around_(around), surface_(surface), window_(window) {}

  /// The first coupon.
  void start();
  /// Clears the page and goes on, in the middle of a coupon with its remaining balls and columns.
  void newPage();
  /// One step: the head of the next column, which it draws, or a ball of it, as the drawn column
  /// holds it by now, or the end of the coupon. If no column can be drawn, it stops the ticks and
  /// warns.
  void tick();
  /// "F10 = Yardım".
  void showKeys();

 private:
  static constexpr std::int16_t columns = 8;
  static constexpr double topMargin = 200;  // twips

  void typeBall();
  void startColumn();
  void finish();
  void refuse();
  void rewind();

  Surroundings& around_;
  TextSurface& surface_;
  CouponWindow& window_;
  std::string spoken_;                 // the columns of the page, for those who hear them
  std::int16_t column_ = 0;            // 0..8
  std::int16_t ball_ = ballsInColumn;  // 0..6; 6 asks for the next column
};

}  // namespace karvenis
