#include <QBackingStore>
#include <QClipboard>
#include <QInputDialog>
#include <QLibraryInfo>
#include <QMenu>
#include <QMessageBox>
#include <QTimer>
#include <QToolTip>

#include "AllWindows.h"
#include "doubles/Sets.h"
#include "platform/qt/QtBoxes.h"
#include "windows/BigLetters.h"
#include "windows/SeenBox.h"

// What is painted: each window, as it reaches the screen, is compared with the picture of it that
// is kept in tests/windows/pictures. After a change on purpose, KARVENIS_TAKE_PICTURES=1 takes
// them anew; look at each one before it is committed.

namespace karvenis {
namespace {

using namespace Qt::StringLiterals;

constexpr int notSeen = 2;  // by how much a colour may differ: processors round otherwise

QString fileOf(const char* name) {
  return QStringLiteral(KARVENIS_SOURCES "/../tests/windows/pictures/%1.png")
      .arg(QLatin1String(name));
}

/// What has been painted of `widget`: what stands in the memory of its window.
QImage painted(const QWidget& widget) {
  const QRect place(widget.mapTo(widget.window(), QPoint()), widget.size());
  QBackingStore* store = widget.window()->backingStore();
  const auto* whole = dynamic_cast<const QImage*>(store->paintDevice());
  return whole->copy(place).convertToFormat(QImage::Format_RGB32);
}

bool areAlike(QRgb one, QRgb other) {
  return std::abs(qRed(one) - qRed(other)) <= notSeen &&
         std::abs(qGreen(one) - qGreen(other)) <= notSeen &&
         std::abs(qBlue(one) - qBlue(other)) <= notSeen;
}

/// The smallest rectangle with all that differs.
QRect difference(const QImage& one, const QImage& other) {
  if (one.size() != other.size()) return one.rect() | other.rect();
  QRect differs;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      if (!areAlike(one.pixel(x, y), other.pixel(x, y))) differs |= QRect(x, y, 1, 1);
    }
  }
  return differs;
}

/// Waits until `widget` looks on the screen as in the kept picture.
void expectPicture(const char* name, QWidget& widget) {
  ASSERT_TRUE(QTest::qWaitForWindowExposed(widget.window()));
  if (qEnvironmentVariableIsSet("KARVENIS_TAKE_PICTURES")) {
    QCoreApplication::processEvents();
    widget.window()->repaint();
    ASSERT_TRUE(painted(widget).save(fileOf(name)));
  }
  QImage kept(fileOf(name));
  ASSERT_FALSE(kept.isNull()) << name;
  kept.convertTo(QImage::Format_RGB32);
  QRect differs;
  const bool same = QTest::qWaitFor(
      [&] {
        differs = difference(painted(widget), kept);
        return differs.isNull();
      },
      5000);
  if (same) return;
  const QString seen = QDir::temp().filePath(QLatin1String(name) + u".png"_s);
  painted(widget).save(seen);
  ADD_FAILURE() << name << " looks different at " << differs.x() << ", " << differs.y() << " ("
                << differs.width() << " x " << differs.height() << "), see " << seen.toStdString();
}

/// Letters that look alike whatever the desktop's settings of fonts are, and a caret that stands.
class Pictures : public WindowTest {
 protected:
  void SetUp() override {
    if (QLibraryInfo::version().minorVersion() != 4 || qApp->devicePixelRatio() != 1) {
      GTEST_SKIP() << "the pictures are taken with Qt 6.4 on a plain screen";
    }
    setLettersTo(13);
    QApplication::setCursorFlashTime(0);
    addWindows(forms, around);
    world.files.folder["KARVENIS.RND"] = countedColumns(30);
    world.files.folder["KARVENIS.LST"] = countedColumns(30, 7);
  }
  void TearDown() override {
    WindowTest::TearDown();
    QApplication::setFont(usual_);
    QApplication::setCursorFlashTime(flash_);
  }
  static void setLettersTo(int pixels) {
    QFont plain(u"DejaVu Sans"_s);
    plain.setPixelSize(pixels);
    plain.setStyleStrategy(QFont::NoAntialias);
    plain.setHintingPreference(QFont::PreferNoHinting);
    QApplication::setFont(plain);
  }
  /// The main window; its timers tick only when the test says so.
  Form* openLoto() {
    forms.show("frmLoto");
    Form* loto = forms.find("frmLoto");
    for (QTimer* timer : loto->findChildren<QTimer*>()) timer->setInterval(1'000'000);
    EXPECT_TRUE(QTest::qWaitForWindowActive(loto));
    return loto;
  }
  static void tick(Form* form, int number, int times = 1) {
    auto* timer = control<QTimer>(form, u"Timer%1"_s.arg(number));
    for (int i = 0; i < times && timer->isActive(); ++i) {
      QTimerEvent event(timer->timerId());
      QCoreApplication::sendEvent(timer, &event);
    }
  }
  static void point(QWidget* target) {
    QTest::mouseMove(target->window()->windowHandle(),
                     target->mapTo(target->window(), target->rect().center()));
  }
  /// Opens a menu and chooses its second entry.
  static void expectMenu(const char* name, Form* form, const char* head) {
    auto* menu = form->findChild<QMenu*>(QLatin1String(head));
    menu->popup(form->pos());
    ASSERT_TRUE(QTest::qWaitForWindowExposed(menu));
    menu->setActiveAction(menu->actions()[1]);
    expectPicture(name, *menu);
    menu->close();
  }

 private:
  const QFont usual_ = QApplication::font();
  const int flash_ = QApplication::cursorFlashTime();
};

TEST_F(Pictures, OfTheMainWindowAtTheStart) {
  Form* loto = openLoto();
  tick(loto, 0, 5);
  control(loto, "Picture0")->setFocus();
  expectPicture("start", *loto);
}

TEST_F(Pictures, OfAColumnFromTheList) {
  Form* loto = openLoto();
  click(control(loto, "Option2"));
  world.chance.script = {0.5F};
  world.boxes.expectBeep();
  control<QAbstractButton>(loto, "Command1")->click();
  click(control(loto, "Check1"));
  expectPicture("column", *loto);
}

TEST_F(Pictures, OfRollingBalls) {
  Form* loto = openLoto();
  setBag(world.state, {44, 45, 46, 47, 48, 49});
  world.boxes.expectBeep(2);
  control<QAbstractButton>(loto, "Command1")->click();
  tick(loto, 1, 16);
  tick(loto, 2, 25);
  tick(loto, 3, 13);
  for (const char* step : {"rolling-1", "rolling-2", "rolling-3"}) {
    tick(loto, 3, 3);
    expectPicture(step, *control(loto, "Picture0")->parentWidget());
  }
}

TEST_F(Pictures, OfButtonsInTheirStates) {
  Form* loto = openLoto();
  auto* kolon = control<QAbstractButton>(loto, "Command1");
  auto* exit = control<QAbstractButton>(loto, "Command2");
  expectPicture("primary-focus", *kolon);
  expectPicture("button", *exit);
  exit->setFocus();
  expectPicture("primary", *kolon);
  expectPicture("button-focus", *exit);
  point(kolon);
  EXPECT_TRUE(kolon->underMouse());
  expectPicture("primary-pointed", *kolon);
  point(exit);
  expectPicture("button-pointed", *exit);
  kolon->setDown(true);
  exit->setDown(true);
  expectPicture("primary-down", *kolon);
  expectPicture("button-down", *exit);
  kolon->setEnabled(false);
  expectPicture("primary-disabled", *kolon);
}

TEST_F(Pictures, OfMenus) {
  Form* loto = openLoto();
  expectMenu("menu-file", loto, "mnuDosya");
  Form* balls = open("frmBalls");
  expectMenu("menu-choice", balls, "mnuSecim");
  auto* bar = balls->findChild<QMenuBar*>();
  bar->setActiveAction(bar->actions()[1]);
  expectPicture("menu-bar", *balls);
}

TEST_F(Pictures, OfMenusWithoutRoom) {
  QMenuBar bar;
  for (const QString& name : {u"Dosya"_s, u"Torba"_s, u"Banko"_s}) bar.addMenu(name);
  bar.resize(120, bar.sizeHint().height());
  bar.show();
  expectPicture("menus-more", bar);
}

TEST_F(Pictures, OfTheMenuOfAField) {
  QApplication::clipboard()->clear();
  auto* field = control<QLineEdit>(open("frmRnd"), "Text1");
  const std::unique_ptr<QMenu> menu(field->createStandardContextMenu());
  menu->popup(field->window()->pos());
  expectPicture("menu-field", *menu);
}

TEST_F(Pictures, OfTheBag) {
  setBag(world.state, {1, 8, 25, 49});
  Form* balls = open("frmBalls");
  press(balls, Qt::Key_Right);
  point(control(balls, "cmdBall_10"));
  control<QAbstractButton>(balls, "cmdBall_20")->setDown(true);
  expectPicture("bag", *balls);
}

TEST_F(Pictures, OfWindowsWithLargeLetters) {
  setLettersTo(18);
  setBag(world.state, {1, 8, 25, 49});
  expectPicture("bag-large", *open("frmBalls"));
  setLettersTo(26);  // more than the screen has room for
  Form* loto = openLoto();
  click(control(loto, "Option2"));
  world.chance.script = {0.5F};
  world.boxes.expectBeep();
  click(control(loto, "Command1"));
  tick(loto, 0);
  expectPicture("column-large", *loto);
}

TEST_F(Pictures, OfTheBankos) {
  setBanko(world.state, {7, 20, 49});
  Form* banko = open("frmBanko");
  expectPicture("banko", *banko);
  press(banko, Qt::Key_F9);
  expectPicture("banko-5", *banko);
}

TEST_F(Pictures, OfTheCoupon) {
  setBag(world.state, {1, 2, 3, 4, 5, 6});
  forms.show("frmList");
  Form* list = forms.find("frmList");
  control<QTimer>(list, "Timer1")->setInterval(1'000'000);
  world.boxes.expectBeep(48);
  tick(list, 1, 40);
  expectPicture("coupon", *list);
  tick(list, 1, 17);
  expectPicture("coupon-whole", *list);
}

TEST_F(Pictures, OfTheLists) {
  Form* kept = open("frmRndLst");
  expectPicture("random-list", *kept);
  press(kept, Qt::Key_PageDown);
  expectPicture("random-list-2", *kept);
  expectPicture("combination-list", *open("frmComLst"));
}

TEST_F(Pictures, OfTheSmallWindows) {
  world.boxes.expectBeep();
  expectPicture("deletion", *open("frmRndDel"));
  expectPicture("random-listing", *open("frmRLPrint"));
  expectPicture("combination-listing", *open("frmCLPrint"));
  expectPicture("generator-append", *open("frmRnd"));
}

TEST_F(Pictures, OfAGeneratorWithoutAList) {
  world.files.folder.clear();
  expectPicture("generator", *open("frmRnd"));
}

TEST_F(Pictures, OfAToolTip) {
  Form* loto = openLoto();
  QToolTip::showText(loto->pos(), u"Yeni Kolon"_s, loto);
  QWidget* tip = nullptr;
  ASSERT_TRUE(waitFor([&] {
    for (QWidget* top : QApplication::topLevelWidgets()) {
      if (top->inherits("QTipLabel") && top->isVisible()) tip = top;
    }
    return tip != nullptr;
  }));
  expectPicture("tip", *tip);
  QToolTip::hideText();
}

/// Opens a real box with `open` and compares it with its picture.
void expectBox(const char* name, const std::function<void(QtBoxes&)>& open) {
  QtBoxes boxes;
  seeing<QDialog>([&] { open(boxes); },
                  [&](QDialog& box) {
                    ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
                    expectPicture(name, box);
                  });
}

TEST_F(Pictures, OfBoxes) {
  const std::string lines = "Kolon\rSatır";
  for (const auto& [name, icon] :
       {std::pair("box-plain", Icon::none), std::pair("box-warning", Icon::exclamation),
        std::pair("box-critical", Icon::critical)}) {
    expectBox(name,
              [&, shown = icon](QtBoxes& boxes) { boxes.message(lines, standardTitle, shown); });
  }
  expectBox("box-question", [&](QtBoxes& boxes) { boxes.ask("Silinsin mi?", standardTitle); });
  expectBox("box-input", [&](QtBoxes& boxes) {
    boxes.input("Numaraları\rgirin.", standardTitle, "", "örnek: 7,20");
  });
}

TEST_F(Pictures, OfATextThatIsScrolled) {
  std::string high;
  for (int line = 1; line <= 60; ++line) high += std::to_string(line) + "\r";
  expectBox("box-scrolled", [&](QtBoxes& boxes) { boxes.ask(high, standardTitle); });
}

}  // namespace
}  // namespace karvenis
