#include "platform/qt/Forms.h"

#include <QAccessible>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/RunTimeError.h"
#include "windows/WindowTest.h"

namespace karvenis {
namespace {

/// A window that notes what happens to it.
class Noting : public Form {
 public:
  Noting(Forms& all, std::vector<std::string>& log) : Form(all), log_(log) {
    resize(200, 120);
    Text1 = control<QLineEdit>(QStringLiteral("Text1"));
    Command1 = control<QPushButton>(QStringLiteral("Command1"), QStringLiteral("Tamam"));
    Text1->setGeometry(10, 10, 80, 24);
    Command1->setGeometry(10, 50, 80, 30);
    on(Command1, &QPushButton::clicked, [this] { note("Command1_Click"); });
    onEnter(Text1, [this] {
      note("Text1 Enter");
      Command1->setFocus();
    });
    Text1->setFocus();
  }
  void Form_Load() override { note("Form_Load"); }
  void Form_Activate() override { note("Form_Activate"); }

  std::function<void()> onKey;
  QLineEdit* Text1;
  QPushButton* Command1;

 protected:
  void Form_KeyDown(int KeyCode, int Shift) override {
    note("KeyDown " + std::to_string(KeyCode) + "/" + std::to_string(Shift));
    if (onKey) onKey();
    if (KeyCode == keyEscape) unload();
  }
  void Form_KeyPress(int KeyAscii) override { note("KeyPress " + std::to_string(KeyAscii)); }
  void Form_Click() override { note("Click"); }
  void Form_DblClick() override { note("DblClick"); }
  void Form_Resize() override { note("Resize"); }

 private:
  void note(const std::string& what) { log_.push_back(name() + " " + what); }
  std::vector<std::string>& log_;
};

using Log = std::vector<std::string>;

class FormsTest : public WindowTest {
 protected:
  Log log;
  void SetUp() override {
    for (const char* name : {"frmA", "frmB", "frmC"}) {
      forms.add(name, [this] { return new Noting(forms, log); });
    }
  }
  Noting* show(const char* name) { return static_cast<Noting*>(open(name)); }
  Log taken() { return std::exchange(log, {}); }
  /// The user goes to the window, as by a taskbar.
  void go(Form* form) {
    form->activateWindow();
    EXPECT_TRUE(waitFor([&] { return forms.active() == form; }));
  }
  /// Runs the event loop until it has nothing left to do and the keyboard has settled.
  void letSettle() {
    bool idle = false;
    QTimer::singleShot(0, qApp, [&] { QTimer::singleShot(0, qApp, [&] { idle = true; }); });
    EXPECT_TRUE(waitFor([&] { return idle && forms.isSettled(); }));
  }
  /// One key press, without those of the keys that are held with it.
  static void send(Form* form, Qt::Key key, Qt::KeyboardModifiers held = {}) {
    QKeyEvent press(QEvent::KeyPress, key, held);
    QCoreApplication::sendEvent(form->windowHandle(), &press);
  }
};

TEST_F(FormsTest, AWindowLoadsResizesAndActivatesOnce) {
  show("frmA");
  EXPECT_EQ(taken(), (Log{"frmA Form_Load", "frmA Resize", "frmA Form_Activate"}));
}

TEST_F(FormsTest, AWindowThatNobodyMadeKnownIsNotShownInSilence) {
  try {
    forms.show("frmNowhere");
    ADD_FAILURE() << "went through";
  } catch (const std::logic_error& error) {
    EXPECT_STREQ(error.what(), "no window frmNowhere");
  }
}

TEST_F(FormsTest, ShowingAnOpenWindowRaisesIt) {
  show("frmA");
  show("frmB");
  taken();
  show("frmA");
  EXPECT_EQ(taken(), (Log{"frmA Form_Activate"}));
  show("frmB");
  EXPECT_EQ(taken(), (Log{"frmB Form_Activate"}));
}

TEST_F(FormsTest, ClosingActivatesTheOpener) {
  show("frmA");
  show("frmB");
  Noting* c = show("frmC");
  taken();
  press(c, Qt::Key_Escape);
  EXPECT_EQ(taken(), (Log{"frmC KeyDown 27/0", "frmB Form_Activate"}));
}

TEST_F(FormsTest, ClosingAnOrphanActivatesTheMainWindow) {
  show("frmA");
  Noting* b = show("frmB");
  Noting* c = show("frmC");
  b->unload();
  settle();
  show("frmC");
  taken();
  press(c, Qt::Key_Escape);
  EXPECT_EQ(taken(), (Log{"frmC KeyDown 27/0", "frmA Form_Activate"}));
}

TEST_F(FormsTest, AWindowThatClosesWhileTheUserWorksElsewhereMovesNothing) {
  Noting* a = show("frmA");
  Noting* b = show("frmB");
  show("frmA");
  taken();
  b->unload();
  settle();
  EXPECT_TRUE(taken().empty());
  EXPECT_EQ(forms.active(), a);
}

TEST_F(FormsTest, AnOpenerThatWasOpenedAgainIsTheOpener) {
  show("frmA");
  Noting* b = show("frmB");
  Noting* c = show("frmC");
  go(b);
  press(b, Qt::Key_Escape);
  settle();
  show("frmB");
  show("frmC");
  taken();
  press(c, Qt::Key_Escape);
  EXPECT_EQ(taken(), (Log{"frmC KeyDown 27/0", "frmB Form_Activate"}));
}

// A procedure that has a box open is still at work in its window.
TEST_F(FormsTest, AClosedWindowStaysUntilItsProcedureHasEnded) {
  show("frmA");
  const QPointer<Noting> b = show("frmB");
  b->onKey = [&] {
    QEventLoop box;
    QTimer::singleShot(0, &box, [&] {
      b->unload();
      QTimer::singleShot(0, &box, &QEventLoop::quit);
    });
    box.exec();
    settle();
    ASSERT_FALSE(b.isNull());
    EXPECT_TRUE(b->isClosing());
  };
  press(b, Qt::Key_F1);
  settle();
  EXPECT_TRUE(b.isNull());
}

TEST_F(FormsTest, AWindowLeadsBackToTheOneItWasLastShownFrom) {
  Noting* a = show("frmA");
  Noting* c = show("frmC");
  go(a);
  show("frmB");
  show("frmC");
  taken();
  press(c, Qt::Key_Escape);
  EXPECT_EQ(taken(), (Log{"frmC KeyDown 27/0", "frmB Form_Activate"}));
}

TEST_F(FormsTest, TheWindowThatTheUserGoesToIsActivatedOnce) {
  Noting* a = show("frmA");
  show("frmB");
  taken();
  go(a);
  EXPECT_EQ(taken(), (Log{"frmA Form_Activate"}));
}

TEST_F(FormsTest, AClickActivatesItsWindowBeforeTheControlSeesIt) {
  Noting* a = show("frmA");
  show("frmB");
  taken();
  click(a->Command1);
  EXPECT_EQ(taken(), (Log{"frmA Form_Activate", "frmA Command1_Click"}));
}

// A desktop gives the keyboard to the window that was used last before it hears of the other one.
TEST_F(FormsTest, AWindowThatTheKeyboardPassesThroughIsNotActivated) {
  Noting* a = show("frmA");
  Noting* c = show("frmC");
  go(a);
  Noting* b = show("frmB");
  go(c);
  taken();
  c->onKey = [b] { b->activateWindow(); };
  press(c, Qt::Key_Escape);
  EXPECT_TRUE(waitFor([a] { return a->isActiveWindow(); }));
  letSettle();
  EXPECT_EQ(taken(), (Log{"frmC KeyDown 27/0", "frmA Form_Activate"}));
}

TEST_F(FormsTest, ADesktopThatKeepsTheKeyboardElsewhereIsBelievedInTheEnd) {
  Noting* a = show("frmA");
  show("frmB");
  forms.show("frmC");
  a->activateWindow();
  taken();
  EXPECT_TRUE(waitFor([&] { return forms.active() == a; }));
  EXPECT_EQ(taken(), (Log{"frmA Form_Activate"}));
}

TEST_F(FormsTest, AKeyRightBehindOneThatOpensAWindowIsThatWindowsOwn) {
  Noting* a = show("frmA");
  a->onKey = [this] { forms.show("frmB"); };
  taken();
  press(a, Qt::Key_F5);
  a->onKey = nullptr;
  press(a, Qt::Key_F4);
  EXPECT_EQ(taken(), (Log{"frmA KeyDown 116/0", "frmB Form_Load", "frmB Resize",
                          "frmB Form_Activate", "frmB KeyDown 115/0"}));
}

TEST_F(FormsTest, AKeyThatComesBackLateIsTheActiveWindowsOwn) {
  show("frmA");
  Noting* b = show("frmB");
  taken();
  QKeyEvent late(QEvent::KeyPress, Qt::Key_F4, Qt::NoModifier);
  QCoreApplication::sendEvent(qApp, &late);
  EXPECT_EQ(taken(), (Log{"frmB KeyDown 115/0"}));
  EXPECT_EQ(forms.active(), b);
}

TEST_F(FormsTest, AKeyHeldSinceAnotherWindowReachesNobody) {
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

TEST_F(FormsTest, AWindowThatComesBackFromBeingMinimisedIsActivated) {
  show("frmA");
  Noting* b = show("frmB");
  b->showMinimized();
  EXPECT_TRUE(waitFor([b] { return b->isMinimized(); }));
  letSettle();
  taken();
  show("frmB");
  EXPECT_FALSE(b->isMinimized());
  EXPECT_EQ(taken(), (Log{"frmB Form_Activate"}));
  letSettle();
  EXPECT_EQ(taken(), Log()) << "once";
}

TEST_F(FormsTest, TheMinimisedMainWindowComesBackWhenTheLastOtherCloses) {
  Noting* a = show("frmA");
  Noting* b = show("frmB");
  a->showMinimized();
  EXPECT_TRUE(waitFor([a] { return a->isMinimized(); }));
  taken();
  press(b, Qt::Key_Escape);
  EXPECT_FALSE(a->isMinimized());
  EXPECT_EQ(taken(), (Log{"frmB KeyDown 27/0", "frmA Form_Activate"}));
}

TEST_F(FormsTest, TheMinimisedMainWindowComesBackThoughTheUserWorkedInIt) {
  Noting* a = show("frmA");
  Noting* b = show("frmB");
  go(a);
  a->showMinimized();
  EXPECT_TRUE(waitFor([a] { return a->isMinimized(); }));
  b->unload();
  EXPECT_FALSE(a->isMinimized());
}

TEST_F(FormsTest, AltWithAFunctionKeyIsTheDesktopsOwn) {
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

TEST_F(FormsTest, CtrlInsertAndCapsLockAreKeysWhileNoScreenReaderListens) {
  Noting* a = show("frmA");
  ASSERT_FALSE(QAccessible::isActive());
  taken();
  for (const auto key : {Qt::Key_Control, Qt::Key_Insert, Qt::Key_CapsLock}) send(a, key);
  EXPECT_EQ(taken(), (Log{"frmA KeyDown 255/2", "frmA KeyDown 255/0", "frmA KeyDown 255/0"}));
}

TEST_F(FormsTest, ComingBackFromAnotherProgramIsNoActivation) {
  Noting* a = show("frmA");
  taken();
  QEvent away(QEvent::WindowDeactivate);
  QEvent back(QEvent::WindowActivate);
  QCoreApplication::sendEvent(a, &away);
  QCoreApplication::sendEvent(a, &back);
  EXPECT_TRUE(log.empty());
}

// The list window's own warning gave the focus away while it closed; the activation that followed
// opened the warning a second time inside the first, and the window went with both of them.
TEST_F(FormsTest, FocusThatMovesWhileAProcedureRunsIsNoActivation) {
  Noting* a = show("frmA");
  Noting* b = show("frmB");
  b->onKey = [a] {
    QEvent focus(QEvent::WindowActivate);
    QCoreApplication::sendEvent(a, &focus);
  };
  taken();
  press(b, Qt::Key_F1);
  EXPECT_EQ(taken(), (Log{"frmB KeyDown 112/0"}));
  EXPECT_EQ(forms.active(), b);
}

TEST_F(FormsTest, TheFormSeesAKeyOnceBeforeTheControl) {
  Noting* a = show("frmA");
  taken();
  press(a, Qt::Key_7);
  EXPECT_EQ(taken(), (Log{"frmA KeyDown 55/0"}));
  EXPECT_EQ(a->Text1->text(), "7");
  press(a, Qt::Key_F1, Qt::ShiftModifier);
  EXPECT_EQ(taken(), (Log{"frmA KeyDown 255/1", "frmA KeyDown 112/1"})) << "Shift is a key too";
}

TEST_F(FormsTest, FunctionKeysIgnoreRepeatsAndOthersDoNot) {
  Noting* a = show("frmA");
  taken();
  hold(a, Qt::Key_F5, 3);
  EXPECT_EQ(taken().size(), 1U);
  hold(a, Qt::Key_Down, 3);
  EXPECT_EQ(taken().size(), 4U);
}

TEST_F(FormsTest, TheEnterThatMovesTheFocusDoesNotPressTheButton) {
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

TEST_F(FormsTest, AHeldSpaceOrEnterPressesTheFocusedButtonOnce) {
  Noting* a = show("frmA");
  a->Command1->setFocus();
  for (const auto key : {Qt::Key_Space, Qt::Key_Return}) {
    taken();
    hold(a, key, 4);
    EXPECT_EQ(std::ranges::count(log, "frmA Command1_Click"), 1) << key;
  }
}

TEST_F(FormsTest, AHeldEscIsOneEsc) {
  Noting* a = show("frmA");
  taken();
  QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, QString(), true);
  QCoreApplication::sendEvent(a->windowHandle(), &repeat);
  EXPECT_TRUE(log.empty());
}

TEST_F(FormsTest, AFaultWhileAWindowLoadsShowsNoWindowAndIsTheStatus) {
  struct Broken : Form {
    explicit Broken(Forms& all) : Form(all) {}
    void Form_Load() override { throw RunTimeError(Fault::open, "KV2005.CFG", "Erişim izni yok."); }
  };
  Forms own{world.boxes};
  own.add("frmBroken", [&own] { return new Broken(own); });
  world.boxes.expectMessage(
      "'KV2005.CFG' dosyası açılamadı.\rNeden: Erişim izni yok.\r\rProgram kapanacak.", "! HATA !",
      Icon::critical);
  EXPECT_EQ(own.run(), 1);
  for (const QWidget* window : QApplication::topLevelWidgets()) EXPECT_FALSE(window->isVisible());
}

TEST_F(FormsTest, ADoubleClickBegunElsewhereIsNone) {
  Noting* a = show("frmA");
  click(a, {150, 100});
  QEvent away(QEvent::WindowDeactivate);
  QCoreApplication::sendEvent(a, &away);
  taken();
  QMouseEvent second(QEvent::MouseButtonDblClick, QPointF(150, 100), QPointF(150, 100),
                     Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(a, &second);
  EXPECT_EQ(std::ranges::count(log, "frmA DblClick"), 0);
}

TEST_F(FormsTest, CtrlAndAltGiveNoCharacter) {
  Noting* a = show("frmA");
  taken();
  press(a, Qt::Key_Escape, Qt::ControlModifier);
  EXPECT_EQ(std::ranges::count(log, "frmA KeyPress 27"), 0);
}

TEST_F(FormsTest, AClickCountsOnTheFreeSurfaceOnly) {
  Noting* a = show("frmA");
  taken();
  click(a, {150, 100});
  EXPECT_EQ(taken(), (Log{"frmA Click"}));
  click(a->Text1);
  EXPECT_TRUE(taken().empty());
  QTest::mouseClick(a->windowHandle(), Qt::RightButton, {}, {150, 100});
  EXPECT_TRUE(taken().empty());
}

TEST_F(FormsTest, ADoubleClickIsOneClickAndOneDoubleClick) {
  Noting* a = show("frmA");
  taken();
  doubleClick(a, {150, 100});
  EXPECT_EQ(taken(), (Log{"frmA Click", "frmA DblClick"}));
}

TEST_F(FormsTest, AFaultGivesOneClosingBoxAndEnds) {
  Noting* a = show("frmA");
  a->onKey = [] { throw RunTimeError(Fault::write, "KARVENIS.RND", "Diskte yer kalmadı."); };
  world.boxes.expectMessage(
      "'KARVENIS.RND' dosyasına yazılamadı.\rNeden: Diskte yer kalmadı.\r\rProgram kapanacak.",
      "! HATA !", Icon::critical);
  press(a, Qt::Key_F1);
  EXPECT_TRUE(forms.ending());
  EXPECT_EQ(world.journal.of("pointer"), std::vector<std::string>{"normal"});
  press(a, Qt::Key_F1);  // a second fault says no more
}

TEST_F(FormsTest, AnyExceptionIsAFault) {
  Noting* a = show("frmA");
  a->onKey = [] { throw std::bad_alloc(); };
  world.boxes.expectMessage(
      "Beklenmeyen bir hata oluştu.\rNeden: std::bad_alloc\r\rProgram kapanacak.", "! HATA !",
      Icon::critical);
  press(a, Qt::Key_F1);
  EXPECT_TRUE(forms.ending());
}

TEST_F(FormsTest, TheScreenHearsOfTheLastCaptionWhenTheProcedureEnds) {
  Noting* a = show("frmA");
  a->onKey = [a] {
    for (int i = 1; i <= 1000; ++i) {
      a->setCaption("BYTE= " + std::to_string(i));
      EXPECT_EQ(a->caption(), "BYTE= " + std::to_string(i)) << "exact at once";
    }
  };
  press(a, Qt::Key_F1);
  EXPECT_EQ(fromQt(a->windowTitle()), "BYTE= 1000");
}

TEST_F(FormsTest, KeysThatCameDuringALongActionAreDropped) {
  Noting* a = show("frmA");
  forms.dropInput();
  taken();
  press(a, Qt::Key_F1);
  EXPECT_TRUE(taken().empty());
  EXPECT_TRUE(waitFor([] { return !Application::instance().isDroppingInput(); }));
  press(a, Qt::Key_F1);
  EXPECT_EQ(taken().size(), 1U);
}

}  // namespace
}  // namespace karvenis
