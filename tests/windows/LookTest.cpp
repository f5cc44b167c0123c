#include "platform/qt/Look.h"

#include <QMenu>
#include <QPushButton>
#include <QStyle>
#include <QToolTip>

#include "AllWindows.h"
#include "core/ColumnFile.h"
#include "doubles/Columns.h"
#include "platform/qt/Artwork.h"
#include "windows/BigLetters.h"
#include "windows/WindowTest.h"

// What all windows look alike in, and what belongs to a drawing.

namespace karvenis {
namespace {

using namespace Qt::StringLiterals;

class Look : public WindowTest {
 protected:
  void SetUp() override {
    addWindows(forms, around);
    world.files.folder[randomColumns] = countedColumns(30);
    world.files.folder[combinationList] = countedColumns(30);
  }
  static QRect placeOf(QWidget* control) {
    return {control->mapTo(control->window(), QPoint()), control->size()};
  }
};

TEST_F(Look, SmallWindowsHaveTheirButtonsInTheSameCorner) {
  world.boxes.expectBeep();
  for (const char* name : {"frmRndDel", "frmRLPrint", "frmCLPrint", "frmRnd"}) {
    SCOPED_TRACE(name);
    Form* form = open(name);
    const QRect first = placeOf(control(form, "Command1"));
    const QRect last = placeOf(control(form, "Command2"));
    const int padding = QApplication::style()->pixelMetric(QStyle::PM_LayoutLeftMargin);
    EXPECT_EQ(form->rect().bottomRight() - last.bottomRight(), QPoint(padding, padding));
    EXPECT_EQ(first.size(), last.size());
    EXPECT_EQ(first.top(), last.top());
    EXPECT_EQ(last.left() - first.right() - 1,
              QApplication::style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing));
    form->unload();
    settle();
  }
}

TEST_F(Look, WindowsHaveTheSizeOfWhatTheyHold) {
  world.boxes.expectBeep();
  for (const char* name : {"frmLoto", "frmBalls", "frmBanko", "frmList", "frmRnd", "frmRndDel",
                           "frmRLPrint", "frmCLPrint"}) {
    const Form* form = open(name);
    EXPECT_EQ(form->minimumSize(), form->maximumSize()) << name;
  }
}

TEST_F(Look, APageStandsInTheUpperThirdOfALargerWindow) {
  for (const char* name : {"frmRndLst", "frmComLst"}) {
    Form* form = open(name);
    const QWidget* page = control(form, "Surface");
    const int above = page->y();
    form->resize(form->width(), form->height() + 300);
    EXPECT_TRUE(waitFor([&] { return page->y() == above + 100; })) << page->y() - above;
  }
}

TEST_F(Look, TheCommandOfAListingKeepsItsWidthWithItsWord) {
  for (const char* name : {"frmRLPrint", "frmCLPrint"}) {
    Form* form = open(name);
    const QRect yaz = placeOf(control(form, "Command1"));
    control<QAbstractButton>(form, "Option2")->click();
    EXPECT_EQ(control<QPushButton>(form, "Command1")->text(), "Bas");
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(placeOf(control(form, "Command1")), yaz) << name;
  }
}

TEST_F(Look, MenusHaveTheGroundAndThePaddingOfTheHouse) {
  Form* form = open("frmBalls");
  EXPECT_FALSE(form->findChild<QMenuBar*>()->isNativeMenuBar())
      << "they stand in their window on every desktop";
  auto* menu = form->findChild<QMenu*>("mnuSecim");
  QAction* first = menu->actions().first();
  menu->popup(form->pos());
  ASSERT_TRUE(waitFor([menu] { return menu->isVisible(); }));
  const QImage shown = menu->grab().toImage();
  EXPECT_EQ(shown.pixelColor(3, 3), QColor(look::ground));
  EXPECT_GT(menu->actionGeometry(first).left(), 3);
  EXPECT_GE(menu->actionGeometry(first).height(), menu->fontMetrics().height() + 8);
  menu->close();
}

// What is not set comes from the desktop's own theme, black selected letters for instance.
TEST(Colours, OfWhatIsReadAreTheHouses) {
  for (const auto role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::Base,
        QPalette::Highlight, QPalette::HighlightedText, QPalette::PlaceholderText,
        QPalette::ToolTipBase, QPalette::ToolTipText}) {
    EXPECT_TRUE(QApplication::palette().isBrushSet(QPalette::Active, role)) << role;
  }
  EXPECT_EQ(QToolTip::palette().color(QPalette::ToolTipBase), QColor(look::paper));
}

TEST(ScrollBars, GrowWithTheLetters) {
  const auto width = [] { return QApplication::style()->pixelMetric(QStyle::PM_ScrollBarExtent); };
  const int usual = width();
  const BigLetters letters("DejaVu Sans", 2);
  EXPECT_NEAR(width(), 2 * usual, 2);
}

TEST_F(Look, TheOpeningPictureHasTheCornersOfItsPanel) {
  QWidget* picture = control(open("frmLoto"), "Picture0");
  const QImage shown = picture->grab().toImage();
  for (const QPoint& corner : {QPoint(1, 1), QPoint(shown.width() - 2, shown.height() - 2)}) {
    EXPECT_EQ(shown.pixelColor(corner), QColor(look::ground));
  }
  EXPECT_NE(shown.pixelColor(shown.width() / 2, 1), QColor(look::ground));
  EXPECT_NE(shown.pixelColor(shown.width() / 2, 1), QColor(look::amber)) << "it has no focus";
}

TEST(Drawings, TheArrowAtTheEndOfMenusPointsToTheRight) {
  const QIcon icon =
      QApplication::style()->standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton);
  EXPECT_EQ(icon.availableSizes(), QList<QSize>{QSize(9, 9)});
  const QImage arrow = icon.pixmap(9, 9).toImage();
  EXPECT_EQ(arrow.pixelColor(5, 4), QColor(look::ink));
  EXPECT_EQ(arrow.pixelColor(2, 2), QColor(look::ink));
  EXPECT_EQ(arrow.pixelColor(2, 6), QColor(look::ink));
  EXPECT_EQ(arrow.pixelColor(2, 4).alpha(), 0);
  EXPECT_EQ(arrow.pixelColor(8, 4).alpha(), 0);
}

TEST(Drawings, ABallHasAShadowOfItsOwnOnlyWhereItLies) {
  Artwork artwork;
  const auto shadow = [&](const QString& step) {
    const QPixmap ball = artwork.pixmap(u"ball.svg"_s, step, QSize(96, 96), 1);
    return ball.toImage().pixelColor(50, 92).alpha() > 0;
  };
  for (int k = 1; k <= 6; ++k) {
    for (const char step : {'a', 'b', 'c'}) {
      EXPECT_FALSE(shadow(u"p%1-%2"_s.arg(k).arg(QLatin1Char(step)))) << k << step;
    }
    EXPECT_TRUE(shadow(u"p%1-d"_s.arg(k))) << k;
  }
}

}  // namespace
}  // namespace karvenis
