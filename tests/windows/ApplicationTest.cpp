#include "platform/qt/Application.h"

#include <QMessageBox>
#include <QPushButton>
#include <deque>
#include <optional>

#include "AllWindows.h"
#include "windows/KeySoon.h"
#include "windows/WindowTest.h"

// Whose a key is, and what it becomes where it comes late.

namespace karvenis {
namespace {

/// Assistive technology that listens: it takes each key that the user presses and gives a copy of
/// it back when the test says so.
class Reader final : public QObject {
 public:
  Reader() { qApp->installEventFilter(this); }
  ~Reader() override {
    for (const auto& [target, key] : kept_) delete key;
  }
  Reader(const Reader&) = delete;
  Reader& operator=(const Reader&) = delete;

  void giveBack() {
    for (; !kept_.empty(); kept_.pop_front()) {
      QCoreApplication::postEvent(kept_.front().first, kept_.front().second);
    }
    QCoreApplication::sendPostedEvents();
  }

  bool eventFilter(QObject* target, QEvent* event) override {
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    if (!isKey || !event->spontaneous()) return false;
    const auto& key = *static_cast<const QKeyEvent*>(event);
    kept_.emplace_back(target, new QKeyEvent(key.type(), key.key(), key.modifiers(), key.text(),
                                             key.isAutoRepeat()));
    return true;
  }

 private:
  std::deque<std::pair<QObject*, QKeyEvent*>> kept_;
};

class ApplicationTest : public WindowTest {
 protected:
  Form* main = nullptr;
  void SetUp() override {
    addWindows(forms, around);
    main = open("frmLoto");
  }
  QMenuBar& menus() const { return *main->findChild<QMenuBar*>(); }
  /// The head that the menus stand on; empty outside them.
  QString head() const {
    return menus().hasFocus() && menus().activeAction() ? menus().activeAction()->text()
                                                        : QString();
  }
  void down(Qt::Key key, Qt::KeyboardModifiers held = {}) const {
    QTest::keyPress(main->windowHandle(), key, held);
  }
  void up(Qt::Key key) const { QTest::keyRelease(main->windowHandle(), key); }
  /// The press of Alt comes without Alt among its modifiers, as from a desktop.
  void alt() const {
    down(Qt::Key_Alt);
    up(Qt::Key_Alt);
  }
};

TEST_F(ApplicationTest, AltAloneGoesToTheMenusAndBack) {
  alt();
  EXPECT_EQ(head(), "Dosya");
  press(main, Qt::Key_Right);
  EXPECT_EQ(head(), "Torba");
  alt();
  EXPECT_EQ(head(), "");
  EXPECT_FALSE(menus().hasFocus());
}

TEST_F(ApplicationTest, AltClosesAnOpenMenuAndOpensNoneAnew) {
  alt();
  press(main, Qt::Key_Down);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  alt();
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  EXPECT_FALSE(menus().hasFocus());
  alt();
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  EXPECT_EQ(head(), "Dosya");
}

TEST_F(ApplicationTest, AltWithAnotherKeyOrAClickIsNotAlone) {
  down(Qt::Key_Alt);
  press(main, Qt::Key_Tab, Qt::AltModifier);
  up(Qt::Key_Alt);
  EXPECT_FALSE(menus().hasFocus());
  down(Qt::Key_Alt);
  click(main, {3, main->height() - 3});
  up(Qt::Key_Alt);
  EXPECT_FALSE(menus().hasFocus());
  down(Qt::Key_Alt, Qt::AltModifier | Qt::ControlModifier);
  up(Qt::Key_Alt);
  EXPECT_FALSE(menus().hasFocus());
}

// The release opened the menus when it came, and the late copy of the press closed them again.
TEST_F(ApplicationTest, AltOpensTheMenusHoweverLateItsCopiesAre) {
  for (int between = 0; between < 8; ++between) {  // bits: whether the reader gives back there
    SCOPED_TRACE(between);
    Reader reader;
    const auto mayGiveBack = [&](int bit) {
      if ((between & bit) != 0) reader.giveBack();
    };
    down(Qt::Key_Alt);
    mayGiveBack(1);
    up(Qt::Key_Alt);
    mayGiveBack(2);
    down(Qt::Key_Right);
    mayGiveBack(4);
    up(Qt::Key_Right);
    reader.giveBack();
    EXPECT_EQ(head(), "Torba");
    alt();
    reader.giveBack();
    EXPECT_EQ(head(), "");
  }
}

TEST_F(ApplicationTest, AReaderMayKeepAltForItself) {
  {
    Reader reader;
    alt();
  }
  press(main, Qt::Key_Tab);
  EXPECT_FALSE(menus().hasFocus());
}

/// Asks a question; `during` runs while it is open. Returns whether the answer was Yes.
bool whileBoxIsOpen(Form* owner, const std::function<void(QMessageBox& box)>& during) {
  QMessageBox box(owner);
  QPushButton* yes = box.addButton(QStringLiteral("Evet"), QMessageBox::YesRole);
  box.setEscapeButton(box.addButton(QStringLiteral("Hayır"), QMessageBox::NoRole));
  box.setDefaultButton(yes);
  QTimer::singleShot(0, &box, [&] { during(box); });
  QTimer::singleShot(20000, &box, &QDialog::reject);  // so that a lost key fails the test
  box.exec();
  return box.clickedButton() == yes;
}

// The desktop sends keys to the window behind a box until it has moved the keyboard.
TEST_F(ApplicationTest, AKeyRightBehindOneThatOpensABoxIsTheBoxs) {
  for (const bool heard : {false, true}) {
    SCOPED_TRACE(heard);
    std::optional<Reader> reader;
    if (heard) reader.emplace();
    const bool yes = whileBoxIsOpen(main, [&](QMessageBox& box) {
      pressSoon(main, Qt::Key_F7);  // would open a window
      pressSoon(main, Qt::Key_Return);
      const bool closed = waitFor([&] {
        if (heard) reader->giveBack();
        return !box.isVisible();
      });
      EXPECT_TRUE(closed);
      if (!closed) box.reject();
    });
    EXPECT_TRUE(yes);
    EXPECT_EQ(forms.find("frmBanko"), nullptr);
  }
}

// The toolkit hands on at once what it has read together: the key behind the answer was a command
// before the procedure that had asked went on.
TEST_F(ApplicationTest, KeysBehindAnAnswerWaitForTheProcedureThatAsked) {
  main->run([&] {
    EXPECT_EQ(forms.boxOpens(), main);
    EXPECT_TRUE(whileBoxIsOpen(main, [&](QMessageBox&) {
      pressSoon(main, Qt::Key_Return);
      pressSoon(main, Qt::Key_Return);
      pressSoon(main, Qt::Key_F7);
    }));
    EXPECT_EQ(forms.find("frmBanko"), nullptr);
    EXPECT_EQ(forms.boxOpens(), main);
    EXPECT_TRUE(whileBoxIsOpen(main, [](QMessageBox&) {})) << "the next box has the next key";
    EXPECT_EQ(forms.find("frmBanko"), nullptr);
  });
  EXPECT_TRUE(waitFor([&] { return forms.find("frmBanko") != nullptr; }));
}

// A press by assistive technology ends a tenth of a second after it began: the window behind the
// box closed where the box was answered meanwhile.
TEST_F(ApplicationTest, APressThatBeginsBehindABoxIsNone) {
  auto* exit = control<QPushButton>(main, "Command2");
  auto* fromList = control<QAbstractButton>(main, "Option2");
  auto* sorted = control<QAbstractButton>(main, "Check1");
  auto* opening = control<QAbstractButton>(main, "Picture0");
  whileBoxIsOpen(main, [&](QMessageBox& box) {
    for (QAbstractButton* button :
         {static_cast<QAbstractButton*>(exit), fromList, sorted, opening}) {
      button->animateClick();
    }
    box.reject();
  });
  EXPECT_TRUE(waitFor([&] {
    return !exit->isDown() && !fromList->isDown() && !sorted->isDown() && !opening->isDown();
  }));
  EXPECT_FALSE(forms.ending());
  EXPECT_FALSE(fromList->isChecked());
  EXPECT_FALSE(sorted->isChecked());
  EXPECT_FALSE(opening->isHidden());
  EXPECT_TRUE(world.files.folder.empty());
  EXPECT_TRUE(waitFor([&] {
    sorted->setChecked(true);
    return sorted->isChecked();
  })) << "the next one counts";
}

TEST_F(ApplicationTest, APressOnABallThatBeginsBehindABoxIsNone) {
  Form* bag = open("frmBalls");
  auto* five = control<QAbstractButton>(bag, "cmdBall_5");
  whileBoxIsOpen(bag, [&](QMessageBox& box) {
    five->animateClick();
    box.reject();
  });
  EXPECT_TRUE(waitFor([&] { return !five->isDown(); }));
  EXPECT_EQ(control<QLabel>(bag, "Label1")->text(), "0 top işaretli");
}

TEST_F(ApplicationTest, APressThatIsGivenUpBehindABoxStopsNoOtherButton) {
  auto* column = control<QPushButton>(main, "Command1");
  whileBoxIsOpen(main, [&](QMessageBox& box) {
    Q_EMIT column->pressed();
    box.reject();
  });
  control<QPushButton>(main, "Command2")->click();
  EXPECT_TRUE(forms.ending());
}

TEST_F(ApplicationTest, APressThatEndsBehindABoxIsNone) {
  auto* exit = control<QPushButton>(main, "Command2");
  exit->animateClick();
  whileBoxIsOpen(main, [&](QMessageBox& box) {
    EXPECT_TRUE(waitFor([&] { return !exit->isDown(); }));
    main->findChild<QAction*>("mnuShowBanko")->trigger();
    box.reject();
  });
  EXPECT_FALSE(forms.ending());
  EXPECT_EQ(forms.find("frmBanko"), nullptr);
}

/// Notes who loses the keyboard, as whoever sees every event does.
struct Watcher final : QObject {
  std::vector<const QObject*> inactive;
  Watcher() { qApp->installEventFilter(this); }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::WindowDeactivate) inactive.push_back(watched);
    return false;
  }
  bool saw(const QObject* object) const { return std::ranges::count(inactive, object) > 0; }
};

TEST_F(ApplicationTest, NobodySeesThatAClosedWindowIsNoLongerActive) {
  Form* bag = open("frmBalls");
  Watcher watcher;
  QEvent away(QEvent::WindowDeactivate);
  QCoreApplication::sendEvent(bag, &away);
  EXPECT_TRUE(watcher.saw(bag));
  bag->hide();
  watcher.inactive.clear();
  QCoreApplication::sendEvent(bag, &away);
  QCoreApplication::sendEvent(control(bag, "Command1"), &away);
  EXPECT_TRUE(watcher.inactive.empty());
  QCoreApplication::sendEvent(bag->windowHandle(), &away);
  EXPECT_TRUE(watcher.saw(bag->windowHandle())) << "it is no widget";
}

TEST_F(ApplicationTest, TheDesktopClosesNoWindowBehindItsBox) {
  Form* bag = open("frmBalls");
  whileBoxIsOpen(bag, [&](QMessageBox& box) {
    bag->close();
    main->close();
    QCoreApplication::processEvents();
    EXPECT_TRUE(box.isVisible());
    EXPECT_TRUE(bag->isVisible());
    EXPECT_TRUE(main->isVisible());
    box.reject();
  });
  EXPECT_FALSE(forms.ending());
}

// The toolkit closed the box and then the window, which took the box with it while it still ran.
TEST_F(ApplicationTest, TheEndOfTheSessionRefusesTheBoxAndEndsTheProgram) {
  Form* bag = open("frmBalls");
  bag->run([&] {
    EXPECT_FALSE(whileBoxIsOpen(bag, [](QMessageBox&) {
      QEvent end(QEvent::Quit);
      QCoreApplication::sendEvent(qApp, &end);
    }));
    settle();
    EXPECT_NE(forms.find("frmBalls"), nullptr) << "its procedure still runs";
  });
  EXPECT_TRUE(forms.ending());
}

TEST(KeysWithoutAWindow, AreNobodys) {
  Application::instance().setWorkingWindow(nullptr);
  ASSERT_EQ(QGuiApplication::focusWindow(), nullptr);
  QKeyEvent press(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
  EXPECT_TRUE(QCoreApplication::sendEvent(qApp, &press));
}

}  // namespace
}  // namespace karvenis
