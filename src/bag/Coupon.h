#pragma once

#include <cstdint>
#include <string>

#include "core/Surroundings.h"
#include "platform/TextSurface.h"

namespace karvenis {

/// What a coupon changes in its window besides the surface.
class CouponWindow {
 public:
  virtual ~CouponWindow() = default;
  /// Starts or stops the window's timer, which calls tick().
  virtual void enableTimer1(bool enabled) = 0;
  /// Hides "F10 = Yardım".
  virtual void hideLabel1() = 0;
};

/// A coupon of eight random columns, printed ball by ball: one step for each tick of the window's
/// timer. The columns are drawn from the bag and the bankos and overwrite the drawn column.
class Coupon {
 public:
  Coupon(Surroundings& around, TextSurface& surface, CouponWindow& window)
      : around_(around), surface_(surface), window_(window) {}

  /// Begins the first coupon.
  void start();
  /// Clears the page. A coupon that is being printed goes on with its remaining balls and columns,
  /// otherwise a new one begins.
  void newPage();
  /// One step: draws the next column and prints its label, or prints the next ball of the column
  /// (read from the drawn column at that moment), or ends the coupon. If no column can be drawn, it
  /// stops the timer and warns.
  void tick();
  /// Shows the window's keys in a box.
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
  std::string spoken_;                 // the columns of the page, for the screen reader
  std::int16_t column_ = 0;            // the column being printed, 1..8; 0: none yet
  std::int16_t ball_ = ballsInColumn;  // balls of it printed so far; 6: the next column is due
};

}  // namespace karvenis
