#pragma once

#include <gtest/gtest.h>

#include <bitset>

#include "bag/BagActions.h"
#include "doubles/Sets.h"

namespace karvenis {

/// Buttons without a window; a ball outside 1..49 fails the test.
class PlainButtons final : public BallButtons {
 public:
  bool isMarked(int ball) const override { return marks_.test(place(ball)); }
  void setMarked(int ball, bool marked) override { marks_.set(place(ball), marked); }

  void mark(const Set& balls) {
    for (const std::int16_t ball : balls) setMarked(ball, true);
  }
  Set marked() const {
    Set all;
    for (std::int16_t ball = 1; ball <= 49; ++ball) {
      if (isMarked(ball)) all.push_back(ball);
    }
    return all;
  }

 private:
  static std::size_t place(int ball) {
    EXPECT_TRUE(ball >= 1 && ball <= 49) << ball;
    return static_cast<std::size_t>(ball);
  }
  std::bitset<50> marks_;
};

}  // namespace karvenis
