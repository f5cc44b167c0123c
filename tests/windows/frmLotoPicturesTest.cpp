#include <QAccessible>
#include <QDir>

#include "core/Draw.h"
#include "doubles/Sets.h"
#include "main/widgets/Picture.h"
#include "windows/frmLotoTest.h"

// The main window's pictures: the opening one, the banner and the background.

namespace karvenis {
namespace {

class FrmLotoPictures : public FrmLotoTest {};

TEST_F(FrmLotoPictures, TheCoverGoesWithABeepAndComesBackInTheNextMinute) {
  uncover();
  EXPECT_TRUE(hidden("Picture0"));
  EXPECT_TRUE(hidden("Picture2")) << "it is the background's picture";
  world.clock.now = "12:34:59";
  EXPECT_TRUE(waitFor([this] { return control<QLabel>(loto, "Label3")->text() == "12:34:59"; }));
  EXPECT_TRUE(hidden("Picture0"));
  world.clock.minuteOfHour = 35;
  EXPECT_TRUE(waitFor([this] { return !hidden("Picture0"); }));
}

TEST_F(FrmLotoPictures, TheBannerSwaysWithItsCompanion) {
  const int before = control(loto, "Picture3")->x();
  EXPECT_TRUE(waitFor([&] { return control(loto, "Picture3")->x() < before - 2; }));
  EXPECT_EQ(control(loto, "Picture3")->x(), control(loto, "Picture4")->x());
}

TEST_F(FrmLotoPictures, EveryPressOfKolonStampsTheMinuteAndTakesThePicture) {
  setBag(world.state, {5});
  world.clock.minuteOfHour = 7;
  const QImage before = loto->grab(QRect(2, loto->height() - 8, 8, 6)).toImage();
  world.boxes.expectWarning(tooFewBalls, tooFewBallsTitle);
  pressKolon();
  EXPECT_NE(loto->grab(QRect(2, loto->height() - 8, 8, 6)).toImage(), before);
  world.clock.now = "12:07:30";
  EXPECT_TRUE(waitFor([this] { return control<QLabel>(loto, "Label3")->text() == "12:07:30"; }));
  EXPECT_TRUE(hidden("Picture0")) << "the minute is the stamped one";
}

TEST_F(FrmLotoPictures, TheOpeningPictureIsTheLastStopOfTab) {
  EXPECT_EQ(focused(), "Command1") << "it takes no focus by itself";
  std::vector<QString> stops;
  for (int i = 0; i < 6; ++i) {
    stops.push_back(focused());
    press(loto, Qt::Key_Tab);
  }
  EXPECT_EQ(stops, (std::vector<QString>{"Command1", "Command2", "Picture0", "Option1", "Check1",
                                         "Command1"}));
}

TEST_F(FrmLotoPictures, SpaceOrEnterLiftsTheOpeningPictureAndTheFocusGoesToKolon) {
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
    control(loto, "Picture0")->show();
    control(loto, "Picture0")->setFocus();
    world.boxes.expectBeep();
    press(loto, key);
    EXPECT_TRUE(hidden("Picture0"));
    EXPECT_EQ(focused(), "Command1");
    EXPECT_FALSE(control<QTimer>(loto, "Timer1")->isActive()) << "the key draws nothing";
  }
}

TEST_F(FrmLotoPictures, TheOpeningPictureIsLiftedByItsAccessibleAction) {
  EXPECT_EQ(control(loto, "Picture0")->cursor().shape(), Qt::PointingHandCursor);
  auto* picture = QAccessible::queryAccessibleInterface(control(loto, "Picture0"));
  EXPECT_EQ(picture->role(), QAccessible::Button);
  world.boxes.expectBeep();
  picture->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(waitFor([this] { return hidden("Picture0"); }));
}

TEST_F(FrmLotoPictures, TheOpeningPictureThatComesBackLeavesTheFocus) {
  uncover();
  EXPECT_EQ(focused(), "Command1");
  control(loto, "Check1")->setFocus();
  world.clock.minuteOfHour = static_cast<std::int16_t>(world.clock.minuteOfHour + 1);
  EXPECT_TRUE(waitFor([this] { return !hidden("Picture0"); }));
  EXPECT_EQ(focused(), "Check1");
  uncover();
  EXPECT_EQ(focused(), "Check1") << "a click on the picture leaves it too";
}

/// Keeps the names of the widgets that paint.
class PaintedNames final : public QObject {
 public:
  std::set<QString> names;
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) names.insert(watched->objectName());
    return false;
  }
};

// A drawing that stands in the program as pixels, and is shown at another size, would be rendered
// at the start for nothing; so would the balls behind the opening picture.
TEST_F(FrmLotoPictures, PaintsPrerenderedDrawingsAloneAtTheStart) {
  PaintedNames painted;
  for (auto* picture : loto->findChildren<Picture*>()) picture->installEventFilter(&painted);
  loto->repaint();
  std::set<std::string> shown;
  const auto note = [&](const QString& file, const QSize& size) {
    shown.insert(fromQt(
        QStringLiteral("%1-%2x%3").arg(file.chopped(4)).arg(size.width()).arg(size.height())));
  };
  for (const auto* picture : loto->findChildren<Picture*>()) {
    if (painted.names.contains(picture->objectName())) note(picture->file(), picture->size());
  }
  const auto* opening = control<PictureButton>(loto, "Picture0");
  note(opening->file(), opening->size());
  for (const QSize& size : QApplication::windowIcon().availableSizes()) note("karvenis.svg", size);
  std::set<std::string> prerendered;
  for (const QString& file : QDir(":/prerendered").entryList()) prerendered.insert(fromQt(file));
  EXPECT_FALSE(prerendered.empty());
  EXPECT_EQ(shown, prerendered);
}

}  // namespace
}  // namespace karvenis
