#include "randomlist/frmRndLst.h"

#include "doubles/Columns.h"
#include "listing/frmRLPrint.h"
#include "randomlist/frmRndDel.h"
#include "windows/WindowTest.h"

namespace karvenis {
namespace {

constexpr char question[] = "'KARVENIS.RND' dosyasını silmek istiyormusunuz ?";

class FrmRndLst : public WindowTest {
 protected:
  Form* list = nullptr;

  /// The list window over `count` columns.
  void openOver(std::int32_t count) {
    add<frmRndLst>("frmRndLst");
    add<frmRndDel>("frmRndDel");
    add<frmRLPrint>("frmRLPrint");
    hold(count);
    list = open("frmRndLst");
  }
  void hold(std::int32_t count) { world.files.folder["KARVENIS.RND"] = countedColumns(count); }
  std::vector<std::string> shown() const { return linesOf(list); }
  bool showsFrom(int first, std::size_t rows) const {
    return shown().size() == rows &&
           shown().front().starts_with("Kolon - " + std::to_string(first) + " : ");
  }
};

std::string pageTitled(int page) {
  return " Rastgele Kolon Listesi - Sayfa " + std::to_string(page) + "  [ F10= Yardım ]";
}

TEST_F(FrmRndLst, CarriesItsDesignTitleUntilTheFirstRedraw) {
  frmRndLst window(around, forms);
  EXPECT_EQ(window.caption(), " RASTGELE KOLON LİSTESİ   [ F10= YARDIM ]");
}

TEST_F(FrmRndLst, ShowsItsFirstPage) {
  openOver(60);
  EXPECT_EQ(list->caption(), pageTitled(1));
  ASSERT_TRUE(showsFrom(1, 25));
  EXPECT_EQ(shown()[1], "Kolon - 2 :  1   2   3   4   5   7  [ 022 ]");
}

TEST_F(FrmRndLst, PagesByEveryKey) {
  openOver(60);
  press(list, Qt::Key_PageDown);
  EXPECT_TRUE(showsFrom(26, 25));
  EXPECT_EQ(list->caption(), pageTitled(2));
  press(list, Qt::Key_Space);
  EXPECT_TRUE(showsFrom(51, 10));
  EXPECT_EQ(list->caption(), pageTitled(3));
  press(list, Qt::Key_Home);
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

TEST_F(FrmRndLst, CtrlAndShiftMakeNoDifference) {
  openOver(60);
  press(list, Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_TRUE(showsFrom(26, 25));
  press(list, Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_TRUE(showsFrom(27, 25));
}

TEST_F(FrmRndLst, AHeldPagingKeyRepeatsAndAHeldFunctionKeyDoesNot) {
  openOver(60);
  WindowTest::hold(list, Qt::Key_Down, 4);
  EXPECT_TRUE(showsFrom(6, 25));
  world.boxes.expectBeep().expectQuestion(question, false);
  WindowTest::hold(list, Qt::Key_F4, 4);
}

TEST_F(FrmRndLst, AClickPagesOnceAndADoubleClickToo) {
  openOver(30);
  click(list);
  EXPECT_TRUE(showsFrom(26, 5));
  click(list);
  EXPECT_TRUE(showsFrom(6, 25));
  press(list, Qt::Key_Home);
  doubleClick(list, {50, 50});
  EXPECT_TRUE(showsFrom(26, 5));
}

TEST_F(FrmRndLst, TheOtherButtonsDoNotPage) {
  openOver(60);
  QTest::mouseClick(list->windowHandle(), Qt::RightButton, {}, {50, 50});
  QTest::mouseClick(list->windowHandle(), Qt::MiddleButton, {}, {50, 50});
  EXPECT_TRUE(showsFrom(1, 25));
}

TEST_F(FrmRndLst, EveryKeyButEscShowsTheFileAsItIsNow) {
  openOver(3);
  for (const Qt::Key key : {Qt::Key_F5, Qt::Key_F6, Qt::Key_F7, Qt::Key_F8, Qt::Key_F11,
                            Qt::Key_F12, Qt::Key_A, Qt::Key_Left, Qt::Key_Tab}) {
    hold(2);
    press(list, key);
    EXPECT_EQ(shown().size(), 2U) << key;
    hold(3);
    press(list, key);
    EXPECT_EQ(shown().size(), 3U) << key;
  }
  hold(9);
  press(list, Qt::Key_Escape);
  settle();
  EXPECT_EQ(forms.find("frmRndLst"), nullptr);
}

TEST_F(FrmRndLst, RedrawsAfterANo) {
  openOver(3);
  world.boxes.expectBeep().expectQuestion(question, false);
  world.boxes.whileOpen = [this] { hold(5); };
  press(list, Qt::Key_F4);
  EXPECT_EQ(shown().size(), 5U);
}

TEST_F(FrmRndLst, DeletingTheFileLeavesAnEmptyOneAndPage0) {
  openOver(3);
  world.boxes.expectBeep().expectQuestion(question, true);
  press(list, Qt::Key_F4);
  EXPECT_EQ(world.files.folder, (std::map<std::string, Bytes>{{"KARVENIS.RND", {}}}));
  EXPECT_TRUE(shown().empty());
  EXPECT_EQ(list->caption(), pageTitled(0));
}

TEST_F(FrmRndLst, AltF4IsNoCommand) {
  openOver(3);
  press(list, Qt::Key_F4, Qt::AltModifier);
  EXPECT_EQ(shown().size(), 3U);
}

TEST_F(FrmRndLst, AppendsAndJumpsBehindTheOldList) {
  openOver(60);
  world.files.folder["KARVENIS.LST"] = countedColumns(30);
  world.boxes.expectBeep()
      .expectQuestion("Rastgele Kolon Listesi'ni Kombinasyon Listesi'ne eklemek istiyormusunuz ?",
                      true)
      .expectBeep()
      .expectMessage("Rastgele Kolon Listesi Kombinasyon Listesi'ne eklendi.");
  press(list, Qt::Key_F1);
  EXPECT_EQ(world.files.bytes("KARVENIS.LST"), joined(countedColumns(30), countedColumns(60)));
  EXPECT_TRUE(showsFrom(31, 25));
}

TEST_F(FrmRndLst, SavesAsTheCombinationList) {
  openOver(4);
  world.boxes.expectBeep()
      .expectQuestion(
          "Rastgele Kolon Listesi'ni (KARVENIS.RND) Kombinasyon Listesi "
          "(KARVENIS.LST) olarak kayıtlamak istiyormusunuz?",
          true)
      .expectBeep()
      .expectMessage(" 4 kolon 'KARVENIS.LST' dosyasına kayıtlandı.");
  press(list, Qt::Key_F2);
  EXPECT_EQ(world.files.bytes("KARVENIS.LST"), countedColumns(4));
}

TEST_F(FrmRndLst, HelpsAndListsAndDeletesInDialogs) {
  openOver(4);
  world.boxes.expectBeep(2);
  press(list, Qt::Key_F3);
  EXPECT_NE(forms.find("frmRndDel"), nullptr);
  world.boxes.expectBeep();
  press(list, Qt::Key_F9);
  EXPECT_NE(forms.find("frmRLPrint"), nullptr);
  forms.find("frmRndDel")->unload();
  forms.find("frmRLPrint")->unload();
}

TEST_F(FrmRndLst, ShowsPage1AgainWhenADialogCloses) {
  openOver(60);
  press(list, Qt::Key_End);
  world.boxes.expectBeep();
  press(list, Qt::Key_F9);
  EXPECT_TRUE(showsFrom(36, 25));
  Form* dialog = forms.find("frmRLPrint");
  ASSERT_NE(dialog, nullptr);
  press(dialog, Qt::Key_Escape);
  EXPECT_TRUE(showsFrom(1, 25));
}

TEST_F(FrmRndLst, ARealChangeOfSizeShowsPage1) {
  openOver(60);
  press(list, Qt::Key_PageDown);
  list->resize(list->size());
  EXPECT_TRUE(showsFrom(26, 25));
  list->resize(list->size() + QSize(40, 30));
  EXPECT_TRUE(waitFor([this] { return showsFrom(1, 25); }));
}

TEST_F(FrmRndLst, PaintingReadsNoFile) {
  openOver(60);
  world.files.folder.clear();
  list->repaint();
  EXPECT_TRUE(world.files.folder.empty());
  EXPECT_TRUE(showsFrom(1, 25));
}

TEST_F(FrmRndLst, TwentyFiveRowsAndTheLongestOneFit) {
  openOver(60);
  auto* surface = list->findChild<Surface*>();
  const QSize least = list->minimumSizeHint();
  EXPECT_GE(list->width(), least.width());
  EXPECT_GE(list->height(), least.height());
  EXPECT_LE(surface->lineRect(24).bottom(), surface->height());
  EXPECT_LE(surface->pixels(widestRow(*surface)), surface->width());
  list->resize(10, 10);
  EXPECT_GE(list->height(), least.height());
}

}  // namespace
}  // namespace karvenis
