#pragma once

#include "bag/Coupon.h"
#include "platform/qt/Form.h"

class QLabel;
class QTimer;

namespace karvenis {

class Surface;

/// The window of eight random columns, which prints its coupon by itself. A key or a double click
/// asks for a new one.
class frmList final : public Form, private CouponWindow {
  Q_OBJECT

 public:
  explicit frmList(Surroundings& around);

  void Form_Load() override;

 protected:
  void Form_KeyDown(int KeyCode, int Shift) override;
  void Form_DblClick() override;

 private:
  void Timer1_Timer();
  static Surface* makePage(QWidget* parent);
  void enableTimer1(bool enabled) override;
  void hideLabel1() override;

  Surface* page_;            // the window's own surface
  QTimer* Timer1 = nullptr;  // prints the coupon
  QLabel* Label1 = nullptr;  // "F10 = Yardım", until the first coupon is complete
  Coupon coupon_;
};

}  // namespace karvenis
