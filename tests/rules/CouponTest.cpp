#include "bag/Coupon.h"

#include <gtest/gtest.h>

#include "doubles/Doubles.h"
#include "doubles/RecordingSurface.h"
#include "doubles/Sets.h"
#include "main/NewColumn.h"

namespace karvenis {
namespace {

class CouponTest : public testing::Test, public CouponWindow {
 public:
  void enableTimer1(bool enabled) override { running = enabled; }
  void hideLabel1() override { hidden = true; }

 protected:
  /// Ticks up to `count` times while the timer runs; returns how many there were.
  int tick(int count) {
    int ticks = 0;
    while (ticks < count && running) {
      coupon.tick();
      ++ticks;
    }
    return ticks;
  }
  /// All of a coupon, with its beeps.
  int typeAll() {
    world.boxes.expectBeep(48);
    return tick(1000);
  }

  /// What is printed: a line's height in twips before its texts, "R" (red) or "B" (blue) and "|"
  /// around each.
  std::string printed() const {
    std::string all;
    double y = -1;
    for (const RecordingSurface::Run& run : page.runs) {
      if (run.y != y) all += std::to_string(static_cast<int>(run.y));
      y = run.y;
      all += run.colour == QBColor::red ? "R" : run.colour == QBColor::blue ? "B" : "?";
      all += run.text + "|";
    }
    return all;
  }

  World world;
  RecordingSurface page;
  bool running = false;
  bool hidden = false;
  Coupon coupon{world.around, page, *this};
};

TEST_F(CouponTest, TheFirstTicksTypeTheFirstColumn) {
  setBag(world.state, {23, 7, 6, 5, 49, 1});
  coupon.start();
  EXPECT_TRUE(running);
  EXPECT_EQ(printed(), "");
  tick(1);
  EXPECT_EQ(printed(), "500R Kolon  1 - |") << "the head comes without a beep";
  world.boxes.expectBeep();
  tick(1);
  EXPECT_EQ(printed(), "500R Kolon  1 - |B01  |");
  world.boxes.expectBeep(5);
  tick(5);
  EXPECT_EQ(printed(), "500R Kolon  1 - |B01  |B05  |B06  |B07  |B23  |B49  |");
  tick(1);
  EXPECT_TRUE(printed().ends_with("B49  |800R Kolon  2 - |"));
}

TEST_F(CouponTest, EveryLineStartsAtTheLeftAndTheBallsStandBehindEachOther) {
  coupon.start();
  typeAll();
  const std::string head = " Kolon  1 - ";
  const double ballsStart = page.charWidth * static_cast<double>(head.size());
  for (std::size_t i = 0; i < page.runs.size(); ++i) {
    const double before = static_cast<double>(i % 7) - 1;
    EXPECT_EQ(page.runs[i].x, i % 7 == 0 ? 0 : ballsStart + before * 4 * page.charWidth);
  }
}

TEST_F(CouponTest, AFullCouponTakesFiftySevenTicks) {
  coupon.start();
  world.boxes.expectBeep(48);
  EXPECT_EQ(tick(56), 56);
  EXPECT_TRUE(running);
  EXPECT_FALSE(hidden);
  EXPECT_TRUE(printed().find("2600R Kolon  8 - |") != std::string::npos);
  tick(1);
  EXPECT_FALSE(running);
  EXPECT_TRUE(hidden);
}

TEST_F(CouponTest, IsSpokenOnceWhenItIsFull) {
  setBag(world.state, {23, 7, 6, 5, 49, 1});
  coupon.start();
  world.boxes.expectBeep(48);
  tick(56);
  EXPECT_TRUE(world.windows.announced.empty());
  tick(1);
  std::string all;
  for (int k = 1; k <= 8; ++k) all += "Kolon " + std::to_string(k) + ": 1, 5, 6, 7, 23, 49. ";
  EXPECT_EQ(world.windows.announced, std::vector{all});
}

TEST_F(CouponTest, OfANewPageOnlyItsOwnColumnsAreSpoken) {
  setBag(world.state, {23, 7, 6, 5, 49, 1});
  coupon.start();
  world.boxes.expectBeep(48);
  tick(6 * 7 + 3);
  coupon.newPage();
  tick(1000);
  EXPECT_EQ(world.windows.announced, std::vector<std::string>{"Kolon 8: 1, 5, 6, 7, 23, 49. "});
}

TEST_F(CouponTest, ANewCouponStartsAtOne) {
  coupon.start();
  EXPECT_EQ(typeAll(), 57);
  coupon.newPage();
  EXPECT_TRUE(running);
  tick(1);
  EXPECT_EQ(printed(), "500R Kolon  1 - |");
}

TEST_F(CouponTest, ANewPageInTheMiddleGoesOn) {
  setBag(world.state, {1, 2, 3, 4, 5, 6});
  coupon.start();
  world.boxes.expectBeep(6 + 2);
  tick(7 + 3);
  coupon.newPage();
  world.boxes.expectBeep(4);
  tick(5);
  EXPECT_EQ(printed(), "200B03  |B04  |B05  |B06  |500R Kolon  3 - |");
}

TEST_F(CouponTest, ANewPageBetweenTwoColumnsGoesOnCounting) {
  coupon.start();
  world.boxes.expectBeep(6);
  tick(7);
  coupon.newPage();
  tick(1);
  EXPECT_EQ(printed(), "500R Kolon  2 - |");
}

TEST_F(CouponTest, ColumnsHoldTheBankosAndAreSorted) {
  setBag(world.state, {40, 41, 42});
  setBanko(world.state, {30, 20, 10, 5, 7});
  coupon.start();
  for (int drawn = 0; drawn < 8; ++drawn) {
    world.boxes.expectBeep(6);
    tick(7);
    const Column& c = world.state.Drawn;
    EXPECT_EQ((Column{5, 7, 10, 20, 30, c[5]}), c);
    EXPECT_GE(c[5], 40);
  }
}

TEST_F(CouponTest, AnEmptyBagIsFilledForGood) {
  setBanko(world.state, {7});
  coupon.start();
  tick(1);
  EXPECT_EQ(bagOf(world.state).size(), 48U);
}

TEST_F(CouponTest, NothingSeedsTheSequence) {
  coupon.start();
  typeAll();
  EXPECT_TRUE(world.journal.of("seed").empty());
}

TEST_F(CouponTest, WithoutEnoughBallsItStopsBeforeItSaysSo) {
  setBag(world.state, {1, 2, 3, 4, 5});
  coupon.start();
  bool ranBehindTheBox = true;
  world.boxes.whileOpen = [&] { ranBehindTheBox = running; };
  world.boxes.expectWarning("En az 6 top seçmiş olmanız gerekiyor!", " ! Eksik top seçimi !");
  EXPECT_EQ(tick(100), 1);
  EXPECT_FALSE(ranBehindTheBox);
  EXPECT_FALSE(hidden);
  EXPECT_EQ(printed(), "");
}

TEST_F(CouponTest, RepeatedBallsAreNotEnough) {
  setBag(world.state, {1, 2, 3, 4, 5, 5});
  coupon.start();
  world.boxes.expectWarning("En az 6 top seçmiş olmanız gerekiyor!", " ! Eksik top seçimi !");
  tick(100);
}

TEST_F(CouponTest, BallsThatGoMeanwhileStopItAndTheNextCouponStartsAtOne) {
  coupon.start();
  world.boxes.expectBeep(12);
  tick(14);
  setBag(world.state, {1});
  world.boxes.expectWarning("En az 6 top seçmiş olmanız gerekiyor!", " ! Eksik top seçimi !");
  tick(1);
  EXPECT_FALSE(running);
  setBag(world.state, {1, 2, 3, 4, 5, 6});
  coupon.newPage();
  tick(1);
  EXPECT_EQ(printed(), "500R Kolon  1 - |");
}

TEST_F(CouponTest, TheHeadIsPrintedBeforeTheColumnIsDrawn) {
  int numbers = 0;
  world.journal.listener = [&](const std::string&) {
    ++numbers;
    EXPECT_EQ(printed(), "500R Kolon  1 - |");
  };
  coupon.start();
  tick(1);
  EXPECT_GE(numbers, 6);
}

TEST_F(CouponTest, EachTickTypesWhatTheDrawnColumnHoldsThen) {
  coupon.start();
  tick(1);
  world.boxes.expectBeep(6);
  world.state.Drawn = column(7, 8, 9, 10, 11, 12);
  tick(2);
  world.state.Drawn = column(21, 22, 23, 24, 25, 26);
  tick(4);
  EXPECT_EQ(printed(), "500R Kolon  1 - |B07  |B08  |B23  |B24  |B25  |B26  |");
}

TEST_F(CouponTest, ADrawOfTheMainWindowMeanwhileMixesTwoColumnsInALine) {
  setBag(world.state, {1, 2, 3, 4, 5, 6});
  coupon.start();
  world.boxes.expectBeep(6);
  tick(3);
  setBag(world.state, {31, 32, 33, 34, 35, 36});
  ASSERT_TRUE(drawFromBag(world.around, true));
  tick(4);
  EXPECT_EQ(printed(), "500R Kolon  1 - |B01  |B02  |B33  |B34  |B35  |B36  |");
}

TEST_F(CouponTest, ListsItsKeysAndTypesOn) {
  coupon.start();
  world.boxes.expectBeep().expectMessage(
      "FONKSİYON TUŞLARI : \r"
      "\r"
      "F10= Yardım\r"
      "ESC= Kapat\r"
      "\r"
      "\r"
      "Diğer Tuşlar= Yeni Bir Sayfa/Kupon Göster");
  coupon.showKeys();
  EXPECT_TRUE(running);
}

}  // namespace
}  // namespace karvenis
