#include "main/DrawAnimation.h"

namespace karvenis {
namespace {

constexpr std::int16_t lastPhase = 15;
constexpr std::int16_t lastFrame = 16;
constexpr std::int16_t startDelay = 10;

std::string number(const Column& drawn, int k) { return std::to_string(ballAt(drawn, k)); }

}  // namespace

void DrawAnimation::start() {
  stage_.enableTimer(1, true);
  for (int k = 2; k <= ballsInColumn; ++k) stage_.enableTimer(k, false);
}

void DrawAnimation::tick(int k) {
  if (k == 1) {
    hideLastDraw();
  } else if (++delay_ < startDelay) {
    return;
  }
  if (phase_ == 0) {
    stage_.setLabel(mainLabel(k), number(drawn_, k));
    if (k == 1) {
      stage_.showLabel(1, false);
      stage_.showLabel(0, false);
    }
  }
  if (++phase_ > lastPhase) {
    phase_ = 0;
    stage_.enableTimer(k, false);
    if (k > 1) delay_ = 0;
    stage_.beep();
  }
  ++frame_;
  moveBall(k);
  if (phase_ == 0) {
    stage_.setLabel(copyLabel(k), stage_.label(mainLabel(k)));
    stage_.showLabel(copyLabel(k), true);
    frame_ = 0;
    if (k == 1) delay_ = 0;
    if (k < ballsInColumn) stage_.enableTimer(k + 1, true);
  }
}

void DrawAnimation::hideLastDraw() {
  for (int k = 1; k <= ballsInColumn; ++k) stage_.showImage(imageIndex(k, 'd'), false);
  for (int label = copyLabel(ballsInColumn); label >= mainLabel(2); --label) {
    stage_.showLabel(label, false);
  }
}

/// Shows the picture of the current frame instead of the one before. Every tick repeats that, so
/// that a picture that something else has hidden comes back.
void DrawAnimation::moveBall(int k) {
  if (frame_ == lastFrame) {
    stage_.showImage(imageIndex(k, 'c'), false);
    stage_.showImage(imageIndex(k, 'd'), true);
    stage_.showLabel(mainLabel(k), true);
  } else if (frame_ >= 13) {
    stage_.showImage(imageIndex(k, 'b'), false);
    stage_.showImage(imageIndex(k, 'c'), true);
  } else if (frame_ >= 10) {
    stage_.showImage(imageIndex(k, 'a'), false);
    stage_.showImage(imageIndex(k, 'b'), true);
  } else if (frame_ >= 6) {
    stage_.showImage(imageIndex(k, 'a'), true);
  }
}

void showNumbers(BallStage& stage, const Column& drawn) {
  for (int k = 1; k <= ballsInColumn; ++k) {
    stage.setLabel(mainLabel(k), number(drawn, k));
    stage.setLabel(copyLabel(k), number(drawn, k));
  }
}

}  // namespace karvenis
