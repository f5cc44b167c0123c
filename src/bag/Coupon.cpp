#include "bag/Coupon.h"

#include "bag/Texts.h"
#include "core/Draw.h"
#include "core/Numbers.h"

namespace karvenis {

void Coupon::start() {
  rewind();
  surface_.currentY(topMargin);
  window_.enableTimer1(true);
}

void Coupon::newPage() {
  spoken_.clear();
  surface_.cls();
  surface_.currentY(topMargin);
  window_.enableTimer1(true);
}

void Coupon::tick() {
  if (ball_ != ballsInColumn) {
    typeBall();
  } else if (column_ == columns) {
    finish();
  } else if (canDraw(around_.state)) {
    startColumn();
  } else {
    refuse();
  }
}

void Coupon::typeBall() {
  ++ball_;
  around_.boxes.beep();
  surface_.print(padded(ballAt(around_.state.Drawn, ball_), 2) + "  ");
}

void Coupon::startColumn() {
  ++column_;
  ball_ = 0;
  surface_.foreColor(QBColor::red);
  surface_.printLine("");
  surface_.print(" Kolon " + withBlank(column_) + " - ");
  drawDistinct(around_.state, around_.chance);
  SortColumn(around_.state.Drawn);
  spoken_ += "Kolon" + withBlank(column_) + ": " + listed(around_.state.Drawn) + ". ";
  surface_.foreColor(QBColor::blue);
}

void Coupon::finish() {
  around_.windows.announce(spoken_);
  rewind();
  window_.enableTimer1(false);
  window_.hideLabel1();
}

/// The timer stops first: it would go on while the box is open.
void Coupon::refuse() {
  window_.enableTimer1(false);
  rewind();
  around_.boxes.warn(tooFewBalls, tooFewBallsTitle);
}

void Coupon::rewind() {
  column_ = 0;
  ball_ = ballsInColumn;
  spoken_.clear();
}

void Coupon::showKeys() {
  around_.boxes.beep();
  around_.boxes.message(couponKeys);
}

}  // namespace karvenis
