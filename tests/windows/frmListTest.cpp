#include "bag/frmList.h"

#include <QLabel>
#include <QTimer>

#include "bag/Texts.h"
#include "doubles/Sets.h"
#include "windows/WindowTest.h"

namespace karvenis {
namespace {

class FrmList : public WindowTest {
 protected:
  Form* list = nullptr;

  void SetUp() override { add<frmList>("frmList"); }
  /// Opens the window with its timer stopped: the test ticks.
  void start() {
    forms.show("frmList");
    list = forms.find("frmList");
    ASSERT_NE(list, nullptr);
    EXPECT_TRUE(timer()->isActive());
    EXPECT_EQ(timer()->interval(), 100);
    timer()->setInterval(1'000'000);
    EXPECT_TRUE(QTest::qWaitForWindowActive(list));
  }
  QTimer* timer() const { return control<QTimer>(list, "Timer1"); }
  /// Lets the timer fire `count` times, as long as it runs.
  void tick(int count) const {
    for (int i = 0; i < count && timer()->isActive(); ++i) {
      QTimerEvent event(timer()->timerId());
      QCoreApplication::sendEvent(timer(), &event);
    }
  }
  bool helpHidden() const { return control<QLabel>(list, "Label1")->isHidden(); }
};

TEST_F(FrmList, TypesTheWholeCoupon) {
  setBag(world.state, {1, 2, 3, 4, 5, 6});
  start();
  EXPECT_FALSE(list->caption().empty());
  EXPECT_EQ(control<QLabel>(list, "Label1")->text(), "F10 = Yardım");
  world.boxes.expectBeep(48);
  tick(56);
  const std::vector<std::string> lines = linesOf(list);
  ASSERT_EQ(lines.size(), 8U);
  for (std::size_t i = 0; i < 8; ++i) {
    EXPECT_EQ(lines[i], " Kolon  " + std::to_string(i + 1) + " - 01  02  03  04  05  06  ");
  }
  EXPECT_TRUE(timer()->isActive());
  EXPECT_FALSE(helpHidden());
  tick(1);
  EXPECT_FALSE(timer()->isActive());
  EXPECT_TRUE(helpHidden());
}

TEST_F(FrmList, TheTimerTypesByItself) {
  forms.show("frmList");
  list = forms.find("frmList");
  world.boxes.expectBeep(48);
  timer()->setInterval(1);
  EXPECT_TRUE(waitFor([this] { return !timer()->isActive(); }));
  EXPECT_EQ(linesOf(list).size(), 8U);
}

TEST_F(FrmList, TheWholeCouponFits) {
  start();
  world.boxes.expectBeep(48);
  tick(57);
  auto* page = list->findChild<Surface*>();
  const QFontMetrics metrics(page->font());
  for (std::size_t i = 0; i < 8; ++i) {
    EXPECT_TRUE(page->rect().contains(page->lineRect(i)));
    EXPECT_LE(metrics.horizontalAdvance(page->lines()[i].text), page->width());
  }
  EXPECT_LT(page->lineRect(7).bottom(), control(list, "Label1")->y());
}

TEST_F(FrmList, AKeyAfterTheEndTypesANewCoupon) {
  start();
  world.boxes.expectBeep(48);
  tick(57);
  press(list, Qt::Key_A);
  EXPECT_TRUE(timer()->isActive());
  EXPECT_TRUE(linesOf(list).empty());
  tick(1);
  EXPECT_EQ(linesOf(list), std::vector<std::string>{" Kolon  1 - "});
  EXPECT_TRUE(helpHidden()) << "never shown again";
}

TEST_F(FrmList, AnyKeyInTheMiddleClearsAndGoesOn) {
  start();
  for (const Qt::Key key : {Qt::Key_A, Qt::Key_F1, Qt::Key_Space, Qt::Key_Shift, Qt::Key_Down}) {
    tick(1);
    world.boxes.expectBeep(6);
    tick(6);
    press(list, key);
    EXPECT_TRUE(linesOf(list).empty());
  }
  tick(1);
  EXPECT_EQ(linesOf(list), std::vector<std::string>{" Kolon  6 - "});
}

TEST_F(FrmList, ADoubleClickInTheMiddleOfALineGoesOnWithItsBalls) {
  setBag(world.state, {1, 2, 3, 4, 5, 6});
  start();
  world.boxes.expectBeep(4);
  tick(5);
  doubleClick(list, {10, 10});
  EXPECT_TRUE(linesOf(list).empty());
  world.boxes.expectBeep(2);
  tick(3);
  EXPECT_EQ(linesOf(list), (std::vector<std::string>{"05  06  ", " Kolon  2 - "}));
}

TEST_F(FrmList, ADoubleClickOnAPrintedLineCountsToo) {
  start();
  tick(1);
  auto* page = list->findChild<Surface*>();
  doubleClick(list, page->mapTo(list, page->lineRect(0).center()));
  EXPECT_TRUE(linesOf(list).empty());
}

TEST_F(FrmList, AHeldKeyDoesNotPutTheTickOff) {
  start();
  constexpr int late = 1'000'000 - 20;
  timer()->setTimerType(Qt::PreciseTimer);
  timer()->setInterval(1'000'000);
  EXPECT_TRUE(waitFor([this] { return timer()->remainingTime() < late; }));
  hold(list, Qt::Key_A, 5);
  EXPECT_LT(timer()->remainingTime(), late) << "the running timer was started again";
}

TEST_F(FrmList, TooFewBallsAreToldOnce) {
  setBag(world.state, {1, 2, 3});
  start();
  bool ran = true;
  world.boxes.whileOpen = [&] { ran = timer()->isActive(); };
  world.boxes.expectWarning("En az 6 top seçmiş olmanız gerekiyor!", " ! Eksik top seçimi !");
  tick(10);
  EXPECT_FALSE(ran);
  EXPECT_TRUE(linesOf(list).empty());
}

TEST_F(FrmList, ListsItsKeysAndTypesOn) {
  start();
  tick(1);
  world.boxes.expectBeep().expectMessage(couponKeys);
  press(list, Qt::Key_F10);
  EXPECT_TRUE(timer()->isActive());
  EXPECT_EQ(linesOf(list).size(), 1U);
}

TEST_F(FrmList, EscClosesInTheMiddle) {
  start();
  tick(1);
  press(list, Qt::Key_Escape);
  settle();
  EXPECT_EQ(forms.find("frmList"), nullptr);
  EXPECT_TRUE(world.files.folder.empty()) << "nothing is saved";
}

}  // namespace
}  // namespace karvenis
