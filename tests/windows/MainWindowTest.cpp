#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>
#include <QTimer>

#include "doubles/Sets.h"
#include "main/frmLoto.h"
#include "windows/WindowTest.h"

// What of the main window is set up once and seldom looked at.

using namespace Qt::StringLiterals;

namespace karvenis {
namespace {

/// Counts what is painted in a window.
class Paints final : public QObject {
 public:
  explicit Paints(const Form* form) : form_(form) { qApp->installEventFilter(this); }
  /// How much has been painted since the last time.
  int since() {
    QCoreApplication::processEvents();
    return std::exchange(count_, 0);
  }

 private:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const auto* widget = qobject_cast<const QWidget*>(watched);
    if (event->type() == QEvent::Paint && widget != nullptr && widget->window() == form_) ++count_;
    return false;
  }

  const Form* form_;
  int count_ = 0;
};

class MainWindow : public WindowTest {
 protected:
  /// Another window of the program.
  class Another final : public Form {
   public:
    explicit Another(Surroundings& around) : Form(around.windows) {}
  };

  Form* loto = nullptr;

  void SetUp() override {
    add<frmLoto>("frmLoto");
    add<Another>("another");
    loto = open("frmLoto");
  }
  QTimer* timer(int number) const { return control<QTimer>(loto, u"Timer%1"_s.arg(number)); }
  /// The control that the user sees in the middle of `covered`.
  QString seenAt(const QString& covered) const {
    const QWidget* target = control(loto, covered);
    return loto->childAt(target->mapTo(loto, target->rect().center()))->objectName();
  }
};

TEST_F(MainWindow, EveryActivationSeeds) {
  EXPECT_EQ(world.journal.of("seed"), std::vector<std::string>{"1000000"}) << "the start";
  for (std::size_t activations = 2; activations <= 3; ++activations) {
    open("another");
    EXPECT_EQ(world.journal.of("seed").size(), activations - 1);
    world.clock.microseconds = 7;
    open("frmLoto");
    ASSERT_EQ(world.journal.of("seed").size(), activations);
    EXPECT_EQ(world.journal.of("seed").back(), "7");
  }
}

TEST_F(MainWindow, ItsTimersHaveTheirIntervals) {
  EXPECT_EQ(timer(0)->interval(), 100);
  EXPECT_TRUE(timer(0)->isActive());
  for (int ball = 1; ball <= 6; ++ball) {
    EXPECT_EQ(timer(ball)->interval(), 20) << ball;
    EXPECT_FALSE(timer(ball)->isActive()) << ball;
    EXPECT_FALSE(timer(ball)->isSingleShot()) << ball;
  }
}

TEST_F(MainWindow, TheDateChangesAtMidnight) {
  const auto* date = control<QLabel>(loto, "Label2");
  EXPECT_TRUE(waitFor([&] { return date->text() == "21.11.2026"; }));
  world.clock.today = "22.11.2026";
  EXPECT_TRUE(waitFor([&] { return date->text() == "22.11.2026"; }));
}

TEST_F(MainWindow, TheOpeningPictureCoversTheBallsAndTheirNumbers) {
  QStringList covered;
  for (int k = 0; k < 6; ++k) covered.append(u"Image1_%1"_s.arg(5 * k + 4));
  for (int index = 0; index < 12; ++index) covered.append(u"Label1_%1"_s.arg(index));
  for (const QString& name : covered) EXPECT_EQ(seenAt(name), "Picture0") << name.toStdString();
  world.boxes.expectBeep();
  click(control(loto, "Picture0"));
  for (const QString& name : covered) EXPECT_NE(seenAt(name), "Picture0") << name.toStdString();
}

TEST_F(MainWindow, TheOpeningPictureGoesBehindTheRefusal) {
  setBag(world.state, {1});
  bool covered = false;
  world.boxes.whileOpen = [&] { covered = control(loto, "Picture0")->isVisible(); };
  world.boxes.expectWarning("En az 6 top seçmiş olmanız gerekiyor!", " ! Eksik top seçimi !");
  click(control(loto, "Command1"));
  EXPECT_TRUE(covered);
  EXPECT_FALSE(control(loto, "Picture0")->isVisible());
}

TEST_F(MainWindow, ItsFrameHoldsTheChoicesAndTheOrder) {
  QWidget* frame = control(loto, "Frame1");
  for (const char* name : {"Option1", "Option2", "Check1"}) {
    EXPECT_EQ(control(loto, name)->parentWidget(), frame) << name;
  }
}

TEST_F(MainWindow, LoadingTheBagOrTheBankosRedrawsNothing) {
  std::vector<int> file = {1, 5};
  file.resize(50);
  file.insert(file.end(), {1, 7});
  world.files.folder["KARVENIS.DAT"] = words(file);
  timer(0)->stop();
  world.boxes.expectBeep();
  click(control(loto, "Picture0"));  // what it covers is not painted
  Paints paints(loto);
  EXPECT_TRUE(waitFor([&] { return paints.since() == 0; }));
  world.boxes.expectBeep()
      .expectQuestion("Topları KARVENIS.DAT dosyasından yüklemek istiyormusunuz?", true)
      .expectBeep(2);
  press(loto, Qt::Key_F6);
  EXPECT_EQ(paints.since(), 0);
  world.boxes.expectBeep()
      .expectQuestion("Banko seçimini KARVENIS.DAT dosyasından yüklemek istiyormusunuz ?", true)
      .expectBeep();
  press(loto, Qt::Key_F8);
  EXPECT_EQ(paints.since(), 0);
  EXPECT_EQ(bankoOf(world.state), Set{7});
  control<QCheckBox>(loto, "Check1")->toggle();
  EXPECT_GT(paints.since(), 0);
}

}  // namespace
}  // namespace karvenis
