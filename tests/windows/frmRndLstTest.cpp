#include "randomlist/frmRndLst.h"

#include "listing/frmRLPrint.h"
#include "randomlist/frmRndDel.h"
#include "windows/ListWindowTest.h"

namespace karvenis {
namespace {

class FrmRndLst : public ListWindowTest {
 protected:
  FrmRndLst() : ListWindowTest(keptList) {
    add<frmRndLst>("frmRndLst");
    add<frmRndDel>("frmRndDel");
    add<frmRLPrint>("frmRLPrint");
  }
};

TEST_F(FrmRndLst, CarriesItsDesignTitleUntilTheFirstRedraw) {
  frmRndLst window(around);
  EXPECT_EQ(window.caption(), " RASTGELE KOLON LİSTESİ   [ F10= YARDIM ]");
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
  world.files.folder.clear();
  press(list, Qt::Key_Escape);
  settle();
  EXPECT_EQ(forms.find("frmRndLst"), nullptr);
  EXPECT_TRUE(world.files.folder.empty()) << "a redraw would have made the file again";
}

TEST_F(FrmRndLst, RedrawsAfterANo) {
  openOver(3);
  world.boxes.expectBeep().expectQuestion(keptList.deleteQuestion, false);
  world.boxes.whileOpen = [this] { hold(5); };
  press(list, Qt::Key_F4);
  EXPECT_EQ(shown().size(), 5U);
}

TEST_F(FrmRndLst, DeletingTheFileLeavesAnEmptyOneAndPage0) {
  openOver(3);
  world.boxes.expectBeep().expectQuestion(keptList.deleteQuestion, true);
  press(list, Qt::Key_F4);
  EXPECT_EQ(world.files.folder, (std::map<std::string, Bytes>{{"KARVENIS.RND", {}}}));
  EXPECT_TRUE(shown().empty());
  EXPECT_EQ(list->caption(), pageTitled(0));
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
  open("frmRndLst");
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

}  // namespace
}  // namespace karvenis
