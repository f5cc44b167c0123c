#include <QRadioButton>

#include "doubles/Columns.h"
#include "doubles/Doubles.h"
#include "doubles/Sets.h"
#include "doubles/YieldingBoxes.h"
#include "platform/qt/QtBoxes.h"
#include "platform/qt/Surface.h"
#include "windows/WholeProgram.h"
#include "windows/WindowTest.h"

// What one window does while another one is open.

namespace karvenis {
namespace {

class Together : public testing::Test {
 protected:
  MemoryFiles files;
  YieldingBoxes boxes;
  WholeProgram program{boxes, files};

  Form* open(const char* name) { return program.open(name); }
  static void press(Form* form, Qt::Key key) { QTest::keyClick(form->windowHandle(), key); }
  static bool marked(Form* balls, int ball) {
    return balls->findChild<QAbstractButton*>(QStringLiteral("cmdBall_%1").arg(ball))
        ->font()
        .bold();
  }
  static std::string banko(Form* window, int index) {
    const auto* box = window->findChild<QLineEdit*>(QStringLiteral("Text1_%1").arg(index));
    return box == nullptr ? "no box" : box->text().toStdString();
  }
  /// A file of the bag 4, 8, 15 and the bankos 16, 23.
  void save() {
    std::vector<int> all(50, 0);
    all[0] = 3;
    all[1] = 4;
    all[2] = 8;
    all[3] = 15;
    all.insert(all.end(), {2, 16, 23});
    files.folder["KARVENIS.DAT"] = words(all);
  }
};

TEST_F(Together, TheBagWindowShowsWhatF6LoadedWhenItIsComeBackTo) {
  save();
  Form* main = open("frmLoto");
  Form* balls = open("frmBalls");
  open("frmLoto");
  press(main, Qt::Key_F6);
  EXPECT_EQ(bagOf(program.state), (Set{4, 8, 15}));
  EXPECT_FALSE(marked(balls, 8)) << "nothing is redrawn by the load";
  open("frmBalls");
  EXPECT_TRUE(marked(balls, 8));
  EXPECT_FALSE(marked(balls, 9));
}

TEST_F(Together, TheListIsShownAsItIsBehindItsHelp) {
  files.folder["KARVENIS.LST"] = countedColumns(3);
  Form* list = open("frmComLst");
  files.folder["KARVENIS.LST"] = countedColumns(2);
  press(list, Qt::Key_F10);
  EXPECT_EQ(list->findChild<Surface*>()->lines().size(), 2U);
}

TEST_F(Together, TheBankoWindowShowsWhatF8LoadedWhenItIsComeBackTo) {
  save();
  Form* main = open("frmLoto");
  Form* bankos = open("frmBanko");
  open("frmLoto");
  press(main, Qt::Key_F8);
  EXPECT_EQ(bankoOf(program.state), (Set{16, 23}));
  EXPECT_EQ(banko(bankos, 0), "") << "nothing is redrawn by the load";
  open("frmBanko");
  EXPECT_EQ(banko(bankos, 0), "16");
  EXPECT_EQ(banko(bankos, 1), "23");
}

TEST_F(Together, F8TwiceLoadsTheSameTwice) {
  save();
  setBag(program.state, {16, 42, 23, 7});
  Form* main = open("frmLoto");
  for (int i = 0; i < 2; ++i) {
    press(main, Qt::Key_F8);
    EXPECT_EQ(bankoOf(program.state), (Set{16, 23}));
    EXPECT_EQ(bagOf(program.state), (Set{42, 7}));
  }
}

TEST_F(Together, WindowsOfOneOpenerStandBesideEachOther) {
  open("frmLoto");
  std::vector<QPoint> places;
  for (const char* name : {"frmBalls", "frmBanko", "frmRnd"}) {
    open("frmLoto");
    places.push_back(open(name)->pos());
  }
  EXPECT_NE(places[0], places[1]);
  EXPECT_NE(places[1], places[2]);
  EXPECT_NE(places[0], places[2]);
}

/// The program with real boxes, each answered by `behind` and then by Enter.
class RealBoxes : public testing::Test {
 protected:
  MemoryFiles files;
  QtBoxes boxes;
  WholeProgram program{boxes, files};
  int answered = 0;

  void SetUp() override {
    boxes.beforeOpening = [this] { return program.forms.boxOpens(); };
    boxes.afterClosing = [this] { program.forms.boxClosed(); };
    program.forms.show("frmLoto");
  }
  Form* open(const char* name) { return program.open(name); }
  /// Presses a key that opens a box, does something behind it, and answers it.
  void pressAndAnswer(
      Form* form, Qt::Key key, const std::function<void()>& behind = [] {}) {
    QTimer hand;
    QObject::connect(&hand, &QTimer::timeout, &hand, [&] {
      QWidget* box = QApplication::activeModalWidget();
      if (box == nullptr) return;
      hand.stop();
      behind();
      EXPECT_EQ(QApplication::activeModalWidget(), box);
      ++answered;
      QTest::keyClick(box->windowHandle(), Qt::Key_Return);
    });
    hand.start(0);
    QTest::keyClick(form->windowHandle(), key);
  }
};

/// With a real box that closes the focus comes back to the dialog.
TEST_F(RealBoxes, ThatCloseLeaveTheRangeAsItWasTyped) {
  files.folder["KARVENIS.LST"] = countedColumns(30);
  Form* dialog = open("frmCLPrint");
  auto* last = dialog->findChild<QLineEdit*>(QStringLiteral("Text2"));
  EXPECT_EQ(last->text(), "30");
  last->setText(QStringLiteral("9"));
  pressAndAnswer(dialog, Qt::Key_F10);
  EXPECT_EQ(answered, 1);
  EXPECT_TRUE(QTest::qWaitForWindowActive(dialog)) << "also without a window manager";
  EXPECT_EQ(last->text(), "9") << "a box that closes is no activation";
}

TEST_F(RealBoxes, LetNothingBehindThemBePressed) {
  Form* main = open("frmLoto");
  Form* bag = open("frmBalls");
  auto* ofBag = main->findChild<QAbstractButton*>(QStringLiteral("Option1"));
  auto* ofList = main->findChild<QAbstractButton*>(QStringLiteral("Option2"));
  auto* sorted = main->findChild<QAbstractButton*>(QStringLiteral("Check1"));
  pressAndAnswer(bag, Qt::Key_F10, [&] {
    bag->findChild<QAbstractButton*>(QStringLiteral("Command2"))->click();
    main->findChild<QAbstractButton*>(QStringLiteral("Command2"))->click();
    main->findChild<QAction*>(QStringLiteral("mnuShowBanko"))->trigger();
    bag->close();
    ofList->toggle();
    sorted->toggle();
    EXPECT_TRUE(ofBag->isChecked());
    EXPECT_FALSE(ofList->isChecked());
    EXPECT_FALSE(sorted->isChecked());
  });
  EXPECT_FALSE(program.forms.ending());
  EXPECT_EQ(program.forms.find("frmBalls"), bag);
  EXPECT_EQ(program.forms.find("frmBanko"), nullptr);
  ofList->toggle();
  sorted->toggle();
  EXPECT_TRUE(ofList->isChecked());
  EXPECT_TRUE(sorted->isChecked());
}

TEST_F(RealBoxes, HaveTheKeysThatReachTheWindowBehindThem) {
  Form* main = open("frmLoto");
  pressAndAnswer(main, Qt::Key_F10, [&] {
    QTest::keyClick(main->windowHandle(), Qt::Key_F5);
    EXPECT_EQ(program.forms.find("frmBalls"), nullptr);
    QTest::keyClick(main->windowHandle(), Qt::Key_Tab);
  });
  EXPECT_EQ(answered, 1);
}

}  // namespace
}  // namespace karvenis
