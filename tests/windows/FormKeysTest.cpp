#include <QAccessible>
#include <QCheckBox>

#include "platform/qt/KeyCodes.h"
#include "windows/NotingTest.h"

// How keys and clicks reach a window and its controls.

namespace karvenis {
namespace {

class FormKeysTest : public NotingTest {
 protected:
  /// One key press, without those of the keys that are held with it.
  static void send(Form* form, Qt::Key key, Qt::KeyboardModifiers held = {}) {
    QKeyEvent press(QEvent::KeyPress, key, held);
    QCoreApplication::sendEvent(form->windowHandle(), &press);
  }
};

TEST_F(FormKeysTest, AKeyRightBehindOneThatOpensAWindowIsThatWindowsOwn) {
  Noting* a = show("frmA");
  a->onKey = [this] { forms.show("frmB"); };
  taken();
  press(a, Qt::Key_F5);
  a->onKey = nullptr;
  press(a, Qt::Key_F4);
  EXPECT_EQ(taken(), (Log{"frmA KeyDown 116/0", "frmB Form_Load", "frmB Resize",
                          "frmB Form_Activate", "frmB KeyDown 115/0"}));
}

TEST_F(FormKeysTest, AKeyThatComesBackLateIsTheActiveWindowsOwn) {
  show("frmA");
  Noting* b = show("frmB");
  taken();
  QKeyEvent late(QEvent::KeyPress, Qt::Key_F4, Qt::NoModifier);
  QCoreApplication::sendEvent(qApp, &late);
  EXPECT_EQ(taken(), (Log{"frmB KeyDown 115/0"}));
  EXPECT_EQ(forms.active(), b);
}

TEST_F(FormKeysTest, AKeyHeldSinceAnotherWindowReachesNobody) {
  Noting* a = show("frmA");
  QTest::keyPress(a->windowHandle(), Qt::Key_Down);
  show("frmB");
  taken();
  QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, QString(), true);
  QCoreApplication::sendEvent(qApp, &repeat);
  EXPECT_TRUE(log.empty());
  QKeyEvent press(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
  for (QKeyEvent* key : {&press, &repeat, &repeat}) QCoreApplication::sendEvent(qApp, key);
  EXPECT_EQ(log.size(), 3U);
}

TEST_F(FormKeysTest, AltWithAFunctionKeyIsTheDesktopsOwn) {
  Noting* a = show("frmA");
  taken();
  for (int key = Qt::Key_F1; key <= Qt::Key_F12; ++key) {
    send(a, static_cast<Qt::Key>(key), Qt::AltModifier);
    send(a, static_cast<Qt::Key>(key), Qt::AltModifier | Qt::ShiftModifier);
  }
  send(a, Qt::Key_Escape, Qt::AltModifier);
  EXPECT_TRUE(taken().empty());
  send(a, Qt::Key_F4, Qt::ShiftModifier | Qt::ControlModifier);
  send(a, Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(taken(), (Log{"frmA KeyDown 115/3", "frmA KeyDown 40/4"}));
}

TEST_F(FormKeysTest, CtrlInsertAndCapsLockAreKeysWhileNoScreenReaderListens) {
  Noting* a = show("frmA");
  ASSERT_FALSE(QAccessible::isActive());
  taken();
  for (const auto key : {Qt::Key_Control, Qt::Key_Insert, Qt::Key_CapsLock}) send(a, key);
  EXPECT_EQ(taken(), (Log{"frmA KeyDown 255/2", "frmA KeyDown 255/0", "frmA KeyDown 255/0"}));
}

TEST_F(FormKeysTest, TheFormSeesAKeyOnceBeforeTheControl) {
  Noting* a = show("frmA");
  taken();
  press(a, Qt::Key_7);
  EXPECT_EQ(taken(), (Log{"frmA KeyDown 55/0"}));
  EXPECT_EQ(a->Text1->text(), "7");
  press(a, Qt::Key_F1, Qt::ShiftModifier);
  EXPECT_EQ(taken(), (Log{"frmA KeyDown 255/1", "frmA KeyDown 112/1"})) << "Shift is a key too";
}

/// Notes the keys that a control sees.
class SeenKeys final : public QObject {
 public:
  explicit SeenKeys(QWidget* control) { control->installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) all.push_back(static_cast<QKeyEvent*>(event)->key());
    return false;
  }
  std::vector<int> all;
};

TEST_F(FormKeysTest, FunctionKeysAndEscAreTheWindowsAlone) {
  Noting* a = show("frmA");
  const SeenKeys seen(a->Text1);
  for (const auto key : {Qt::Key_F1, Qt::Key_F10, Qt::Key_7}) press(a, key);
  press(a, Qt::Key_F10, Qt::ShiftModifier);
  press(a, Qt::Key_Escape);
  EXPECT_EQ(seen.all, (std::vector<int>{Qt::Key_7, Qt::Key_Shift}));
}

TEST_F(FormKeysTest, EnterReachesATextFieldAlone) {
  Noting* a = show("frmA");
  QCheckBox mark(a);
  mark.show();
  for (QWidget* control : {static_cast<QWidget*>(&mark), static_cast<QWidget*>(a->Text1)}) {
    control->setFocus();
    const SeenKeys seen(control);
    press(a, Qt::Key_Return);
    EXPECT_EQ(seen.all.size(), control == a->Text1 ? 1U : 0U);
  }
}

TEST(KeyCodes, AreThoseOfTheKeysThatWindowsKnow) {
  const std::pair<Qt::Key, int> codes[] = {
      {Qt::Key_Return, 13}, {Qt::Key_Enter, 13},    {Qt::Key_Escape, 27},      {Qt::Key_Space, 32},
      {Qt::Key_PageUp, 33}, {Qt::Key_PageDown, 34}, {Qt::Key_End, 35},         {Qt::Key_Home, 36},
      {Qt::Key_Left, 37},   {Qt::Key_Up, 38},       {Qt::Key_Right, 39},       {Qt::Key_Down, 40},
      {Qt::Key_0, 48},      {Qt::Key_9, 57},        {Qt::Key_A, 65},           {Qt::Key_Z, 90},
      {Qt::Key_F1, 112},    {Qt::Key_F12, 123},     {Qt::Key_F13, 255},        {Qt::Key_Slash, 255},
      {Qt::Key_Colon, 255}, {Qt::Key_At, 255},      {Qt::Key_BracketLeft, 255}};
  for (const auto& [key, code] : codes) {
    EXPECT_EQ(keyCodeOf(QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier)), code) << key;
  }
}

TEST_F(FormKeysTest, FunctionKeysIgnoreRepeatsAndOthersDoNot) {
  Noting* a = show("frmA");
  taken();
  hold(a, Qt::Key_F5, 3);
  EXPECT_EQ(taken().size(), 1U);
  hold(a, Qt::Key_Down, 3);
  EXPECT_EQ(taken().size(), 4U);
}

TEST_F(FormKeysTest, TheEnterThatMovesTheFocusDoesNotPressTheButton) {
  Noting* a = show("frmA");
  taken();
  hold(a, Qt::Key_Return, 3);
  EXPECT_EQ(std::ranges::count(log, "frmA Text1 Enter"), 1);
  EXPECT_EQ(std::ranges::count(log, "frmA Command1_Click"), 0);
  press(a, Qt::Key_Return);
  EXPECT_EQ(std::ranges::count(log, "frmA Command1_Click"), 1);
  press(a, Qt::Key_Enter);
  EXPECT_EQ(std::ranges::count(log, "frmA Command1_Click"), 2);
}

TEST_F(FormKeysTest, AHeldSpaceOrEnterPressesTheFocusedButtonOnce) {
  Noting* a = show("frmA");
  a->Command1->setFocus();
  for (const auto key : {Qt::Key_Space, Qt::Key_Return}) {
    taken();
    hold(a, key, 4);
    EXPECT_EQ(std::ranges::count(log, "frmA Command1_Click"), 1) << key;
  }
}

TEST_F(FormKeysTest, AHeldEscIsOneEsc) {
  Noting* a = show("frmA");
  taken();
  QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, QString(), true);
  QCoreApplication::sendEvent(a->windowHandle(), &repeat);
  EXPECT_TRUE(log.empty());
}

TEST_F(FormKeysTest, ADoubleClickBegunElsewhereIsNone) {
  Noting* a = show("frmA");
  click(a, {150, 100});
  QEvent away(QEvent::WindowDeactivate);
  QCoreApplication::sendEvent(a, &away);
  taken();
  QTest::mousePress(a->windowHandle(), Qt::LeftButton, {}, {150, 100});
  QMouseEvent second(QEvent::MouseButtonDblClick, QPointF(150, 100), QPointF(150, 100),
                     Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(a, &second);
  EXPECT_EQ(std::ranges::count(log, "frmA DblClick"), 0);
  QTest::mouseRelease(a->windowHandle(), Qt::LeftButton, {}, {150, 100});
}

TEST_F(FormKeysTest, CtrlAndAltGiveNoCharacter) {
  Noting* a = show("frmA");
  taken();
  press(a, Qt::Key_Escape, Qt::ControlModifier);
  EXPECT_EQ(std::ranges::count(log, "frmA KeyPress 27"), 0);
}

TEST_F(FormKeysTest, AClickCountsOnTheFreeSurfaceOnly) {
  Noting* a = show("frmA");
  taken();
  click(a, {150, 100});
  EXPECT_EQ(taken(), (Log{"frmA Click"}));
  click(a->Text1);
  EXPECT_TRUE(taken().empty());
  QTest::mouseClick(a->windowHandle(), Qt::RightButton, {}, {150, 100});
  EXPECT_TRUE(taken().empty());
}

TEST_F(FormKeysTest, ADoubleClickIsOneClickAndOneDoubleClick) {
  Noting* a = show("frmA");
  taken();
  doubleClick(a, {150, 100});
  EXPECT_EQ(taken(), (Log{"frmA Click", "frmA DblClick"}));
}

TEST_F(FormKeysTest, KeysThatCameDuringALongActionAreDropped) {
  Noting* a = show("frmA");
  taken();
  Application::instance().setBusy(true);
  press(a, Qt::Key_F2);
  forms.dropInput();
  Application::instance().setBusy(false);
  QKeyEvent late(QEvent::KeyPress, Qt::Key_F4, Qt::NoModifier);  // as a screen reader sends it on
  QCoreApplication::sendEvent(qApp, &late);
  press(a, Qt::Key_F1);
  EXPECT_TRUE(taken().empty());
  EXPECT_TRUE(waitFor([] { return !Application::instance().isDroppingInput(); }));
  press(a, Qt::Key_F1);
  EXPECT_EQ(taken().size(), 1U);
}

}  // namespace
}  // namespace karvenis
