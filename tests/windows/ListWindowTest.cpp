#include "windows/ListWindowTest.h"

#include "comblist/frmComLst.h"
#include "randomlist/frmRndLst.h"

// What the windows of the kept columns and of the combination list do alike.

namespace karvenis {
namespace {

class ListWindows : public ListWindowTest, public testing::WithParamInterface<const ListWindow*> {
 protected:
  ListWindows() : ListWindowTest(*GetParam()) {
    add<frmRndLst>("frmRndLst");
    add<frmComLst>("frmComLst");
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

INSTANTIATE_TEST_SUITE_P(Both, ListWindows, testing::Values(&keptList, &combinations),
                         [](const auto& row) { return std::string(row.param->form); });

}  // namespace
}  // namespace karvenis
