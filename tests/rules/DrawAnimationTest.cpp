#include "main/DrawAnimation.h"

#include <gtest/gtest.h>

#include <array>
#include <map>

#include "doubles/Doubles.h"
#include "main/Banner.h"
#include "main/IdleCover.h"

namespace karvenis {
namespace {

/// A stage that keeps what is seen and heard; as at the program's start.
class Stage final : public BallStage {
 public:
  std::map<int, bool> images;
  std::array<bool, 12> labelShown{};
  std::array<std::string, 12> labels;
  std::array<bool, 7> timers{};
  int beeps = 0;
  std::vector<std::string> log;

  Stage() {
    labelShown.fill(true);
    for (int k = 1; k <= 6; ++k) {
      for (int step = 1; step <= 4; ++step) images[5 * (k - 1) + step] = step == 4;
    }
  }
  void showImage(int index, bool visible) override {
    ASSERT_TRUE(images.contains(index)) << "picture " << index << " belongs to no ball";
    images[index] = visible;
    note((visible ? "show image " : "hide image "), index);
  }
  void showLabel(int index, bool visible) override {
    labelShown.at(static_cast<std::size_t>(index)) = visible;
    note((visible ? "show label " : "hide label "), index);
  }
  void setLabel(int index, const std::string& caption) override {
    labels.at(static_cast<std::size_t>(index)) = caption;
    log.push_back("label " + std::to_string(index) + "=" + caption);
  }
  std::string label(int index) const override { return labels.at(static_cast<std::size_t>(index)); }
  void enableTimer(int timer, bool enabled) override {
    timers.at(static_cast<std::size_t>(timer)) = enabled;
    note((enabled ? "start timer " : "stop timer "), timer);
  }
  void beep() override {
    ++beeps;
    log.emplace_back("beep");
  }

 private:
  void note(const char* what, int index) { log.push_back(what + std::to_string(index)); }
};

class Animation : public testing::Test {
 protected:
  Column drawn = column(7, 20, 3, 49, 11, 30);
  Stage stage;
  DrawAnimation animation{stage, drawn};

  int runningTimer() const {
    for (int k = 1; k <= 6; ++k) {
      if (stage.timers.at(static_cast<std::size_t>(k))) return k;
    }
    return 0;
  }
  void tick(int times = 1) {
    for (int i = 0; i < times && runningTimer() != 0; ++i) animation.tick(runningTimer());
  }
};

TEST_F(Animation, AWholeDrawTakes141TicksAndSixBeeps) {
  animation.start();
  int ticks = 0;
  for (; runningTimer() != 0 && ticks < 1000; ++ticks) tick();
  EXPECT_EQ(ticks, 16 + 5 * 25);
  EXPECT_EQ(stage.beeps, 6);
  const std::array<const char*, 6> numbers = {"7", "20", "3", "49", "11", "30"};
  for (std::size_t k = 0; k < 6; ++k) {
    EXPECT_EQ(stage.labels.at(2 * k), numbers.at(k));
    EXPECT_EQ(stage.labels.at(2 * k + 1), numbers.at(k));
  }
  for (const bool shown : stage.labelShown) EXPECT_TRUE(shown);
  for (const auto& [index, visible] : stage.images) EXPECT_EQ(visible, index % 5 == 4) << index;
}

TEST_F(Animation, AStartStopsWhateverBallIsRolling) {
  stage.timers = {false, false, true, true, true, true, true};
  animation.start();
  EXPECT_EQ(stage.timers, (std::array<bool, 7>{false, true, false, false, false, false, false}));
}

TEST_F(Animation, TheFirstTickHidesTheLastDrawAndNamesTheFirstBall) {
  animation.start();
  stage.log.clear();
  tick();
  EXPECT_EQ(stage.log,
            (std::vector<std::string>{
                "hide image 4", "hide image 9", "hide image 14", "hide image 19", "hide image 24",
                "hide image 29", "hide label 11", "hide label 10", "hide label 9", "hide label 8",
                "hide label 7", "hide label 6", "hide label 5", "hide label 4", "hide label 3",
                "hide label 2", "label 0=7", "hide label 1", "hide label 0"}));
}

TEST_F(Animation, TheLastDrawIsHiddenOnEveryTickOfTheFirstBall) {
  animation.start();
  for (int ticks = 1; ticks <= 15; ++ticks) {
    for (const int image : {9, 14, 19, 24, 29}) stage.images[image] = true;
    for (int label = 2; label <= 11; ++label)
      stage.labelShown[static_cast<std::size_t>(label)] = true;
    tick();
    for (const int image : {9, 14, 19, 24, 29}) EXPECT_FALSE(stage.images[image]) << ticks;
    for (int label = 2; label <= 11; ++label) {
      EXPECT_FALSE(stage.labelShown[static_cast<std::size_t>(label)]) << ticks;
    }
  }
}

TEST_F(Animation, ThePicturesFollowTheFrames) {
  animation.start();
  const auto seen = [&] {
    std::string shown;
    for (int step = 1; step <= 4; ++step) shown += stage.images[step] ? "abcd"[step - 1] : '.';
    return shown;
  };
  for (int frame = 1; frame <= 16; ++frame) {
    tick();
    const char* expected = frame <= 5    ? "...."
                           : frame <= 9  ? "a..."
                           : frame <= 12 ? ".b.."
                           : frame <= 15 ? "..c."
                                         : "...d";
    EXPECT_EQ(seen(), expected) << frame;
    EXPECT_EQ(stage.labelShown[0], frame == 16);
    EXPECT_EQ(stage.labelShown[1], frame == 16);
  }
}

TEST_F(Animation, TheLastTickOfABallBeepsBeforeItShowsAndCopies) {
  animation.start();
  tick(15);
  stage.log.clear();
  tick();
  const std::vector<std::string> end(stage.log.end() - 8, stage.log.end());
  EXPECT_EQ(end, (std::vector<std::string>{"stop timer 1", "beep", "hide image 3", "show image 4",
                                           "show label 0", "label 1=7", "show label 1",
                                           "start timer 2"}));
}

TEST_F(Animation, TheNextBallWaitsNineTicks) {
  animation.start();
  tick(16);
  EXPECT_EQ(runningTimer(), 2);
  stage.log.clear();
  tick(9);
  EXPECT_TRUE(stage.log.empty());
  tick();
  EXPECT_EQ(stage.log, (std::vector<std::string>{"label 2=20"}));
}

TEST_F(Animation, AnInterruptedBallGoesOnInTimer1) {
  stage.labels[0] = "old";
  animation.start();
  tick(16 + 9 + 8);  // ball 2 shows its picture a
  animation.start();
  EXPECT_EQ(runningTimer(), 1);
  drawn = column(1, 2, 3, 4, 5, 6);
  tick();
  EXPECT_EQ(stage.labels[0], "7") << "the phase is not 0, so ball 1 keeps its old number";
  EXPECT_TRUE(stage.images[6]) << "and picture a of ball 2 stays";
  int ticks = 1;
  for (; runningTimer() == 1; ++ticks) tick();
  EXPECT_EQ(ticks, 8) << "the sixteen ticks are shared";
}

TEST_F(Animation, ASortInBetweenChangesTheRemainingBalls) {
  animation.start();
  tick(16);
  drawn = column(1, 2, 3, 4, 5, 6);
  tick(25);
  EXPECT_EQ(stage.labels[0], "7");
  EXPECT_EQ(stage.labels[2], "2");
}

TEST_F(Animation, ShowingTheNumbersChangesNoVisibility) {
  stage.labelShown.fill(false);
  showNumbers(stage, drawn);
  EXPECT_EQ(stage.labels[0], "7");
  EXPECT_EQ(stage.labels[1], "7");
  EXPECT_EQ(stage.labels[11], "30");
  for (const bool shown : stage.labelShown) EXPECT_FALSE(shown);
  EXPECT_EQ(stage.log.size(), 12U);
}

TEST(Banner, SwaysBetweenItsTurns) {
  Banner banner;
  const int start = banner.left();
  banner.tick();
  EXPECT_EQ(banner.left(), start - 25) << "moves left first";
  int leftmost = 0;
  int rightmostAfterTurn = -100000;
  bool turned = false;
  for (int i = 0; i < 1000; ++i) {
    const int before = banner.left();
    banner.tick();
    EXPECT_EQ(std::abs(banner.left() - before), 25);
    leftmost = std::min(leftmost, banner.left());
    turned = turned || banner.left() > before;
    if (turned) rightmostAfterTurn = std::max(rightmostAfterTurn, banner.left());
  }
  EXPECT_EQ(leftmost, -3025);
  EXPECT_EQ(rightmostAfterTurn, 0);
}

TEST(IdleCover, IsDueInAnotherMinuteOnly) {
  IdleCover cover;
  EXPECT_TRUE(cover.isDue(34));
  cover.noteUse(59);
  EXPECT_FALSE(cover.isDue(59));
  EXPECT_TRUE(cover.isDue(0));
}

}  // namespace
}  // namespace karvenis
