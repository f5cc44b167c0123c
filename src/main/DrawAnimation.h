#pragma once

#include <cstdint>
#include <string>

#include "core/Column.h"

namespace karvenis {

/// The labels in `Label1` that show the number of ball position k (1..6): on the ball and below it.
constexpr int mainLabel(int k) { return 2 * k - 2; }
constexpr int copyLabel(int k) { return 2 * k - 1; }
/// The index in `Image1` of a picture of ball position k (1..6): `step` is 'a' to 'c' for the
/// rolling ball, 'd' for the ball at rest.
constexpr int imageIndex(int k, char step) { return 5 * (k - 1) + 1 + (step - 'a'); }

/// What the animation moves: the pictures `Image1`, the number labels `Label1` and the ball timers.
class BallStage {
 public:
  virtual ~BallStage() = default;
  virtual void showImage(int index, bool visible) = 0;
  virtual void showLabel(int index, bool visible) = 0;
  virtual void setLabel(int index, const std::string& caption) = 0;
  [[nodiscard]] virtual std::string label(int index) const = 0;
  /// `timer` is 1..6.
  virtual void enableTimer(int timer, bool enabled) = 0;
  virtual void beep() = 0;
};

/// Shows a drawn column ball by ball, each rolling in through its four pictures. The six ball
/// timers run one after another and share the counters. If a new draw interrupts a ball, ball 1
/// goes on with that ball's counters.
class DrawAnimation {
 public:
  DrawAnimation(BallStage& stage, const Column& drawn) : stage_(stage), drawn_(drawn) {}

  /// Starts with ball 1.
  void start();
  /// One tick of the ball timer `k` (1..6).
  void tick(int k);

 private:
  void hideLastDraw();
  void beginBall(int k);
  void moveBall(int k);
  void endBall(int k);

  BallStage& stage_;
  const Column& drawn_;
  std::int16_t frame_ = 0;  // active ticks of the current ball, each a step of its pictures
  std::int16_t delay_ = 0;  // ticks since the ball before it ended
};

/// Both labels of every position show `drawn`; nothing else changes.
void showNumbers(BallStage& stage, const Column& drawn);

}  // namespace karvenis
