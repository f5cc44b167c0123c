#include "platform/qt/Forms.h"

#include <QElapsedTimer>

#include "platform/RunTimeError.h"
#include "windows/KeySoon.h"
#include "windows/NotingTest.h"

// Which window is the active one, how windows open and close, and how a fault ends the program.

namespace karvenis {
namespace {

class FormsTest : public NotingTest {};

TEST_F(FormsTest, AWindowLoadsResizesAndActivatesOnce) {
  show("frmA");
  EXPECT_EQ(taken(), (Log{"frmA Form_Load", "frmA Resize", "frmA Form_Activate"}));
}

TEST_F(FormsTest, AWindowResizesOnlyToAnotherSize) {
  Noting* a = show("frmA");
  taken();
  QResizeEvent same(a->size(), a->size());
  QCoreApplication::sendEvent(a, &same);
  EXPECT_EQ(taken(), Log());
  a->resize(210, 120);
  EXPECT_EQ(taken(), Log{"frmA Resize"});
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
  letSettle();
  forms.show("frmB");
  EXPECT_TRUE(forms.isSettled()) << "it has the keyboard already";
}

TEST_F(FormsTest, AWindowOpensBelowAndRightOfItsOpenerAndOfWhatStandsThere) {
  Noting* a = show("frmA");
  Noting* b = show("frmB");
  EXPECT_EQ(b->pos() - a->pos(), QPoint(36, 56));
  go(a);
  Noting* c = show("frmC");
  EXPECT_EQ(c->pos() - b->pos(), QPoint(36, 56));
  c->unload();
  b->unload();
  EXPECT_EQ(show("frmC")->pos() - a->pos(), QPoint(36, 56)) << "they have left their places";
}

// What the user presses in a window shows that he works there.
TEST_F(FormsTest, AKeyActivatesTheWindowThatHasTheKeyboard) {
  Noting* a = show("frmA");
  show("frmB");
  taken();
  a->activateWindow();
  ASSERT_TRUE(waitFor([a] { return a->isActiveWindow(); }));
  pressSoon(a, Qt::Key_F1);
  EXPECT_TRUE(waitFor([this] { return log.size() > 1; }));
  EXPECT_EQ(taken(), (Log{"frmA Form_Activate", "frmA KeyDown 112/0"}));
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
    EXPECT_FALSE(b->isVisible());
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
  letSettle();
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

TEST_F(FormsTest, AClickThatComesBehindTheClosingOfItsWindowActivatesNothing) {
  Noting* a = show("frmA");
  Noting* b = show("frmB");
  b->unload();
  taken();
  click(b->Command1);
  EXPECT_EQ(taken(), Log());
  EXPECT_EQ(forms.active(), a);
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

TEST_F(FormsTest, AClosedBoxGivesTheKeyboardBackToTheWindowAtWork) {
  Noting* a = show("frmA");
  Noting* b = show("frmB");
  letSettle();
  taken();
  a->activateWindow();
  forms.boxClosed();
  EXPECT_TRUE(waitFor([b] { return b->isActiveWindow(); }));
  letSettle();
  EXPECT_EQ(taken(), Log());
  EXPECT_EQ(forms.active(), b);
}

/// frmC is shown, but the desktop gives the keyboard to frmA.
class RefusedKeyboard : public FormsTest {
 protected:
  Noting* a = nullptr;
  QElapsedTimer time;  // since then

  void SetUp() override {
    FormsTest::SetUp();
    a = show("frmA");
    show("frmC")->windowHandle()->setFlag(Qt::WindowDoesNotAcceptFocus);
    show("frmB");
    letSettle();
    time.start();
    const auto before = qInstallMessageHandler([](auto...) {});  // the toolkit complains of it
    forms.show("frmC");
    qInstallMessageHandler(before);
    a->activateWindow();
    EXPECT_TRUE(waitFor([this] { return a->isActiveWindow(); }));
    taken();
  }
};

TEST_F(RefusedKeyboard, TheNextKeyIsOfTheWindowThatWasShown) {
  pressSoon(a, Qt::Key_F1);
  EXPECT_TRUE(waitFor([this] { return !log.empty(); }));
  EXPECT_EQ(taken(), Log{"frmC KeyDown 112/0"});
}

TEST_F(RefusedKeyboard, IsNoLongerWaitedForAfterAClick) {
  click(a->Command1);
  taken();
  Form* b = forms.find("frmB");
  b->activateWindow();
  EXPECT_TRUE(waitFor([b] { return b->isActiveWindow(); }));
  pressSoon(b, Qt::Key_F1);
  EXPECT_TRUE(waitFor([this] { return log.size() > 1; }));
  EXPECT_EQ(taken(), (Log{"frmB Form_Activate", "frmB KeyDown 112/0"}));
}

TEST_F(RefusedKeyboard, IsBelievedInTheEnd) {
  forms.find("frmC")->setCaption("what changes in the window itself does not end the wait");
  EXPECT_TRUE(waitFor([&] { return forms.active() == a; }));
  EXPECT_EQ(taken(), (Log{"frmA Form_Activate"}));
  EXPECT_GE(time.elapsed(), 1000) << "not before the keyboard has had its time to arrive";
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

TEST_F(FormsTest, AWindowThatIsMaximisedIsNotActivated) {
  Noting* a = show("frmA");
  letSettle();
  taken();
  a->showMaximized();
  EXPECT_TRUE(waitFor([a] { return a->isMaximized(); }));
  forms.show("frmA");
  letSettle();
  EXPECT_EQ(taken(), Log{"frmA Resize"});
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

TEST_F(FormsTest, NoWindowComesForwardWhileTheProgramEnds) {
  Noting* a = show("frmA");
  Noting* b = show("frmB");
  letSettle();
  a->activateWindow();
  EXPECT_TRUE(waitFor([a] { return a->isActiveWindow(); }));
  forms.end();
  forms.boxClosed();
  letSettle();
  EXPECT_TRUE(a->isActiveWindow());
  a->showMinimized();
  b->unload();
  EXPECT_TRUE(a->isMinimized());
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
  letSettle();
  b->onKey = [&] {
    a->activateWindow();
    EXPECT_TRUE(waitFor([a] { return a->isActiveWindow(); }));
    letSettle();
  };
  taken();
  press(b, Qt::Key_F1);
  EXPECT_EQ(taken(), (Log{"frmB KeyDown 112/0"}));
  EXPECT_EQ(forms.active(), b);
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

TEST_F(FormsTest, AFaultGivesOneClosingBoxAndEnds) {
  Noting* a = show("frmA");
  a->onKey = [] { throw RunTimeError(Fault::write, "KARVENIS.RND", "Diskte yer kalmadı."); };
  world.boxes.expectMessage(
      "'KARVENIS.RND' dosyasına yazılamadı.\rNeden: Diskte yer kalmadı.\r\rProgram kapanacak.",
      "! HATA !", Icon::critical);
  a->run(a->onKey);
  EXPECT_TRUE(Application::instance().isDroppingInput()) << "no earlier key answers the box";
  EXPECT_TRUE(forms.ending());
  EXPECT_EQ(world.journal.of("pointer"), std::vector<std::string>{"normal"});
  press(a, Qt::Key_F1);  // a second fault says no more
}

TEST_F(FormsTest, AFaultBehindAFaultSaysNoMore) {
  Noting* a = show("frmA");
  const auto fail = [] { throw RunTimeError(Fault::overflow, "X", "y"); };
  world.boxes.expectMessage("'X' sayısı taştı.\rNeden: y\r\rProgram kapanacak.", "! HATA !",
                            Icon::critical);
  a->run([&] {
    a->run(fail);
    fail();
  });
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

TEST_F(FormsTest, TheScreenHearsOfFewCaptionsAndOfTheLastWhenTheProcedureEnds) {
  Noting* a = show("frmA");
  int told = 0;
  QObject::connect(a, &QWidget::windowTitleChanged, [&told] { ++told; });
  int captions = 0;
  QElapsedTimer time;
  time.start();
  a->onKey = [&] {
    while ((captions < 1000 || told < 3) && time.elapsed() < 20000) {
      a->setCaption("BYTE= " + std::to_string(++captions));
      EXPECT_EQ(a->caption(), "BYTE= " + std::to_string(captions)) << "exact at once";
    }
    EXPECT_GE(told, 3) << "also while the procedure runs";
  };
  press(a, Qt::Key_F1);
  EXPECT_EQ(fromQt(a->windowTitle()), "BYTE= " + std::to_string(captions));
  EXPECT_LT(told, captions);
}

TEST_F(FormsTest, ACaptionThatAnotherWindowSetsIsShownAtOnce) {
  Noting* a = show("frmA");
  for (const char* caption : {"1", "2", "3"}) {
    a->setCaption(caption);
    EXPECT_EQ(a->windowTitle(), caption);
  }
}

TEST_F(FormsTest, ABoxBeforeTheFirstWindowBelongsToNone) {
  EXPECT_EQ(forms.boxOpens(), nullptr);
  forms.boxClosed();
  EXPECT_TRUE(forms.isSettled());
}

TEST_F(FormsTest, ABoxOpensBeforeTheLastCaption) {
  Noting* a = show("frmA");
  a->onKey = [&] {
    for (const char* caption : {"BYTE= 1", "BYTE= 2", "BYTE= 3"}) a->setCaption(caption);
    EXPECT_EQ(forms.boxOpens(), a);
    EXPECT_EQ(a->windowTitle(), "BYTE= 3");
  };
  press(a, Qt::Key_F1);
}

}  // namespace
}  // namespace karvenis
