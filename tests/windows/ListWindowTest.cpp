#include "windows/ListWindowTest.h"

#include "comblist/frmComLst.h"
#include "platform/qt/Look.h"
#include "randomlist/frmRndLst.h"
#include "windows/BigLetters.h"

// What the windows of the kept columns and of the combination list do alike.

namespace karvenis {
namespace {

class ListWindows : public ListWindowTest, public testing::WithParamInterface<const ListWindow*> {
 protected:
  ListWindows() : ListWindowTest(*GetParam()) {
    add<frmRndLst>("frmRndLst");
    add<frmComLst>("frmComLst");
  }
  Surface* page() const { return list->findChild<Surface*>(); }
  /// How far from the left the first ball of each row stands, in pixels.
  std::vector<int> ballColumn() const {
    const QImage image = page()->grab().toImage();
    std::vector<int> starts;
    for (std::size_t row = 0; row < page()->lines().size(); ++row) {
      const QRect place(page()->lineRect(row).topLeft() * image.devicePixelRatio(),
                        page()->lineRect(row).size() * image.devicePixelRatio());
      int left = image.width();
      for (int y = place.top(); y < place.bottom(); ++y) {
        for (int x = 0; x < left; ++x) {
          const QColor colour = image.pixelColor(x, y);
          if (colour.blue() > 200 && colour.red() < 128 && colour.green() < 128) left = x;
        }
      }
      starts.push_back(left);
    }
    return starts;
  }
};

TEST_P(ListWindows, ShowsItsFirstPage) {
  openOver(60);
  EXPECT_EQ(list->caption(), pageTitled(1));
  ASSERT_TRUE(showsFrom(1, 25));
  EXPECT_EQ(shown()[1], "Kolon - 2 :  1   2   3   4   5   7  [ 022 ]");
}

TEST_P(ListWindows, PagesByEveryKey) {
  openOver(60);
  press(list, Qt::Key_PageDown);
  EXPECT_TRUE(showsFrom(26, 25));
  EXPECT_EQ(list->caption(), pageTitled(2));
  press(list, Qt::Key_Space);
  EXPECT_TRUE(showsFrom(51, 10));
  EXPECT_EQ(list->caption(), pageTitled(3));
  press(list, Qt::Key_PageDown);
  EXPECT_TRUE(showsFrom(51, 10));
  press(list, Qt::Key_Home);
  EXPECT_TRUE(showsFrom(1, 25));
  press(list, Qt::Key_Return);
  EXPECT_TRUE(showsFrom(26, 25));
  press(list, Qt::Key_Enter);
  EXPECT_TRUE(showsFrom(51, 10));
  press(list, Qt::Key_PageUp);
  EXPECT_TRUE(showsFrom(26, 25));
  press(list, Qt::Key_End);
  EXPECT_TRUE(showsFrom(36, 25));
  press(list, Qt::Key_Up);
  EXPECT_TRUE(showsFrom(35, 25));
  press(list, Qt::Key_Down);
  EXPECT_TRUE(showsFrom(36, 25));
}

TEST_P(ListWindows, DownFromTheLastOfThirtyShowsTheLastFullPage) {
  openOver(30);
  press(list, Qt::Key_PageDown);
  for (int i = 0; i < 4; ++i) press(list, Qt::Key_Down);
  EXPECT_TRUE(showsFrom(30, 1));
  press(list, Qt::Key_Down);
  EXPECT_TRUE(showsFrom(6, 25));
}

TEST_P(ListWindows, CtrlAndShiftMakeNoDifference) {
  openOver(60);
  press(list, Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_TRUE(showsFrom(26, 25));
  press(list, Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_TRUE(showsFrom(27, 25));
  for (const auto held : {Qt::ControlModifier, Qt::ShiftModifier}) {
    world.boxes.expectBeep().expectQuestion(GetParam()->deleteQuestion, false);
    press(list, Qt::Key_F4, held);
    EXPECT_TRUE(world.boxes.finished());
  }
}

TEST_P(ListWindows, AHeldPagingKeyRepeatsAndAHeldFunctionKeyDoesNot) {
  openOver(60);
  WindowTest::hold(list, Qt::Key_Down, 4);
  EXPECT_TRUE(showsFrom(6, 25));
  world.boxes.expectBeep().expectQuestion(GetParam()->deleteQuestion, false);
  WindowTest::hold(list, Qt::Key_F4, 4);
}

TEST_P(ListWindows, AClickPagesOnceAndADoubleClickToo) {
  openOver(30);
  click(list);
  EXPECT_TRUE(showsFrom(26, 5));
  click(list);
  EXPECT_TRUE(showsFrom(6, 25));
  press(list, Qt::Key_Home);
  doubleClick(list, {50, 50});
  EXPECT_TRUE(showsFrom(26, 5));
}

TEST_P(ListWindows, TheOtherButtonsDoNotPage) {
  openOver(60);
  QTest::mouseClick(list->windowHandle(), Qt::RightButton, {}, {50, 50});
  QTest::mouseClick(list->windowHandle(), Qt::MiddleButton, {}, {50, 50});
  EXPECT_TRUE(showsFrom(1, 25));
}

TEST_P(ListWindows, AltF4IsNoCommand) {
  openOver(3);
  press(list, Qt::Key_F4, Qt::AltModifier);
  EXPECT_EQ(shown().size(), 3U);
}

TEST_P(ListWindows, TwentyFiveRowsAndTheLongestOneFit) {
  openOver(60);
  EXPECT_LE(page()->lineRect(24).bottom(), page()->height());
  EXPECT_LE(page()->pixels(fitRows(*page())), page()->width());
  list->resize(10, 10);
  EXPECT_TRUE(list->rect().contains(page()->geometry())) << "the page is always whole";
}

TEST_P(ListWindows, ThePageIsNotMuchWiderThanItsRows) {
  for (const double growth : {1.0, 2.0}) {
    const BigLetters letters("DejaVu Sans", growth);
    openOver(60);
    EXPECT_LE(page()->width() * page()->devicePixelRatioF(), 1.3 * inkEdge(*page()));
    EXPECT_GE(list->width(), 430) << "a frame has room for the whole title";
    list->unload();
    settle();
  }
}

TEST_P(ListWindows, ThePageHasTheGroundOfTheHouseAroundItWhereTheScreenHasRoom) {
  for (const double growth : {1.0, 1.5}) {
    const BigLetters letters("DejaVu Sans", growth);
    openOver(60);
    const QRect place = page()->geometry();
    EXPECT_GT(place.left(), 0) << growth;
    EXPECT_GT(place.top(), 0) << growth;
    EXPECT_LT(place.bottom(), list->height() - 1) << growth;
    EXPECT_TRUE(fitsOnScreen(*list));
    list->unload();
    settle();
  }
}

TEST_P(ListWindows, ThePageKeepsItsSizeInTheUpperMiddleOfALargerWindow) {
  openOver(60);
  const QSize size = page()->size();
  const double twip = page()->pixels(1);
  list->resize(1000, 700);
  EXPECT_EQ(page()->size(), size);
  EXPECT_EQ(page()->pixels(1), twip);
  const QRect place = page()->geometry();
  EXPECT_NEAR(place.left(), list->width() - place.right() - 1, 1);
  EXPECT_GT(place.top(), 0);
  EXPECT_LT(place.top(), list->height() - place.bottom());
  const QImage image = list->grab().toImage();
  EXPECT_EQ(image.pixelColor(5, 5), QColor(look::ground));
  EXPECT_EQ(image.pixelColor((place.topLeft() + QPoint(3, 3)) * image.devicePixelRatio()),
            QColor(Qt::white));
  click(list, {5, 5});
  EXPECT_TRUE(showsFrom(26, 25)) << "a click beside the page is one on the window";
}

TEST_P(ListWindows, TheBallsOfRecordsUpTo9999StandInOneColumn) {
  for (const char* family : {"DejaVu Sans", "Noto Sans"}) {
    for (const double growth : {1.0, 2.0}) {
      SCOPED_TRACE(std::string(family) + " " + std::to_string(growth));
      const BigLetters letters(family, growth);
      world.files.folder[GetParam()->file] =
          columnBytes(std::vector<ColumnRecord>(10000, {1, column(8, 10, 12, 14, 16, 18)}));
      list = open(GetParam()->form);
      const int first = ballColumn().front();
      for (int i = 0; i < 39; ++i) press(list, Qt::Key_PageDown);
      ASSERT_TRUE(shown().back().starts_with("Kolon - 1000 : "));
      EXPECT_EQ(ballColumn(), std::vector<int>(25, first));
      press(list, Qt::Key_End);
      press(list, Qt::Key_Up);
      ASSERT_TRUE(shown().back().starts_with("Kolon - 9999 : "));
      EXPECT_EQ(ballColumn(), std::vector<int>(25, first));
      if (growth == 1) {
        EXPECT_EQ(page()->font().pixelSize(), 13) << "9.75 points";
      }
      list->unload();
      settle();
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Both, ListWindows, testing::Values(&keptList, &combinations),
                         [](const auto& row) { return std::string(row.param->form); });

TEST_F(WindowTest, BothListWindowsHaveOneWidth) {
  world.files.folder[randomColumns] = world.files.folder[combinationList] = countedColumns(1);
  add<frmRndLst>("frmRndLst");
  add<frmComLst>("frmComLst");
  EXPECT_EQ(open("frmRndLst")->size(), open("frmComLst")->size());
}

}  // namespace
}  // namespace karvenis
