#include "main/DrawAnimation.h"

namespace karvenis {
namespace {

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
  if (frame_ == 0) beginBall(k);
  const bool ends = ++frame_ == lastFrame;
  if (ends) {
    stage_.enableTimer(k, false);
    stage_.beep();
  }
  moveBall(k);
  if (ends) endBall(k);
}

void DrawAnimation::hideLastDraw() {
  for (int k = 1; k <= ballsInColumn; ++k) stage_.showImage(imageIndex(k, 'd'), false);
  for (int label = copyLabel(ballsInColumn); label >= mainLabel(2); --label) {
    stage_.showLabel(label, false);
  }
}

void DrawAnimation::beginBall(int k) {
  stage_.setLabel(mainLabel(k), number(drawn_, k));
  if (k > 1) return;
  stage_.showLabel(copyLabel(1), false);
  stage_.showLabel(mainLabel(1), false);
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

void DrawAnimation::endBall(int k) {
  stage_.setLabel(copyLabel(k), stage_.label(mainLabel(k)));
  stage_.showLabel(copyLabel(k), true);
  frame_ = 0;
  delay_ = 0;
  if (k < ballsInColumn) stage_.enableTimer(k + 1, true);
}

void showNumbers(BallStage& stage, const Column& drawn) {
  for (int k = 1; k <= ballsInColumn; ++k) {
    stage.setLabel(mainLabel(k), number(drawn, k));
    stage.setLabel(copyLabel(k), number(drawn, k));
  }
}

}  // namespace karvenis
