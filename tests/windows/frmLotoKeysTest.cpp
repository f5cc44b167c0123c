#include "core/Draw.h"
#include "main/Texts.h"
#include "windows/frmLotoTest.h"

// The main window's menus and keys, and how it keeps its place and ends.

namespace karvenis {
namespace {

class FrmLotoKeys : public FrmLotoTest {};

TEST_F(FrmLotoKeys, OtherKeysDoNothing) {
  control(loto, "Option1")->setFocus();
  for (const auto key : {Qt::Key_A, Qt::Key_7, Qt::Key_Home, Qt::Key_Delete, Qt::Key_PageDown}) {
    press(loto, key);
  }
  EXPECT_FALSE(forms.ending());
  EXPECT_TRUE(world.files.folder.empty());
}

TEST_F(FrmLotoKeys, APlaceOnNoScreenBecomesTheNearestOne) {
  for (const char* bytes : {"00 24 74 C9 00 24 74 C9", "00 24 74 49 00 24 74 49"}) {
    forms.find("frmLoto")->unload();
    settle();
    world.files.folder["KV2005.CFG"] = hex(bytes);  // a million twips off
    loto = open("frmLoto");
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    EXPECT_TRUE(screen.intersects(QRect(loto->pos(), QSize(loto->width(), 20)))) << bytes;
  }
}

TEST_F(FrmLotoKeys, APlaceThatShowsALittleIsKeptExactly) {
  forms.find("frmLoto")->unload();
  settle();
  world.files.folder["KV2005.CFG"] = hex("00 00 A0 41 00 00 16 C6");  // 20 twips down, 9600 left
  loto = open("frmLoto");
  EXPECT_EQ(loto->pos(), QPoint(-640, 1));
}

TEST_F(FrmLotoKeys, EscEndsWithoutWriting) {
  press(loto, Qt::Key_Escape);
  EXPECT_TRUE(forms.ending());
  EXPECT_TRUE(world.files.folder.empty());
}

TEST_F(FrmLotoKeys, ShiftEscEndsToo) {
  press(loto, Qt::Key_Escape, Qt::ShiftModifier);
  EXPECT_TRUE(forms.ending());
}

TEST_F(FrmLotoKeys, CtrlAltAndARepeatedEscDoNotEnd) {
  press(loto, Qt::Key_Escape, Qt::ControlModifier);
  press(loto, Qt::Key_Escape, Qt::AltModifier);
  QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, QString(), true);
  QCoreApplication::sendEvent(loto->windowHandle(), &repeat);
  EXPECT_FALSE(forms.ending());
}

TEST_F(FrmLotoKeys, DoubleClickOnTheFreeSurfaceEnds) {
  doubleClick(loto, {5, loto->height() - 5});
  EXPECT_TRUE(forms.ending());
  EXPECT_TRUE(world.files.folder.empty());
}

/// A place of `holder` where none of its controls is.
QPoint freePlace(const QWidget* holder) {
  for (int y = 2; y < holder->height(); ++y) {
    for (int x = 2; x < holder->width(); ++x) {
      if (holder->childAt(x, y) == nullptr) return {x, y};
    }
  }
  ADD_FAILURE() << "all of it is covered";
  return {};
}

TEST_F(FrmLotoKeys, DoubleClickBetweenTheBallsEnds) {
  uncover();
  QWidget* stage = control(loto, "Image1_4")->parentWidget();
  doubleClick(stage, freePlace(stage));
  EXPECT_TRUE(forms.ending());
}

TEST_F(FrmLotoKeys, DoubleClickBesideTheClockEnds) {
  QWidget* plate = control(loto, "Label3")->parentWidget();
  doubleClick(plate, freePlace(plate));
  EXPECT_TRUE(forms.ending());
}

TEST_F(FrmLotoKeys, DoubleClickOnTheOpeningPictureDoesNotEnd) {
  world.boxes.expectBeep();
  doubleClick(control(loto, "Picture0"), {364, 20});
  EXPECT_TRUE(hidden("Picture0"));
  EXPECT_FALSE(forms.ending());
}

TEST_F(FrmLotoKeys, DoubleClickOnABallANumberOrTheDateDoesNotEnd) {
  uncover();
  for (const char* name : {"Image1_4", "Label1_0", "Label1_1", "Label2", "Label3", "Picture1"}) {
    QWidget* target = control(loto, name);
    doubleClick(target, target->rect().center());
    EXPECT_FALSE(forms.ending()) << name;
  }
}

TEST_F(FrmLotoKeys, ClosingByTheFrameEndsWithoutWriting) {
  loto->close();
  EXPECT_TRUE(forms.ending());
  EXPECT_TRUE(world.files.folder.empty());
}

TEST_F(FrmLotoKeys, ExitWritesTheFramesPlace) {
  loto->move(40, 60);
  click(control(loto, "Command2"));
  EXPECT_TRUE(forms.ending());
  EXPECT_EQ(world.files.bytes("KV2005.CFG"), hex("00 00 61 44 00 00 16 44"));  // 900, 600
}

TEST_F(FrmLotoKeys, ModifiedFunctionKeysDoNothing) {
  for (const auto held : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier}) {
    for (int key = Qt::Key_F1; key <= Qt::Key_F12; ++key) {
      press(loto, static_cast<Qt::Key>(key), held);
    }
  }
  EXPECT_TRUE(world.files.folder.empty());
}

TEST_F(FrmLotoKeys, F10ListsTheKeysWithoutABeepAndAboutBeeps) {
  world.boxes.expectMessage(keyList, " KARVENIS 2005 Randomizer  [26.9.2005]");
  press(loto, Qt::Key_F10);
  EXPECT_TRUE(world.boxes.finished());
  EXPECT_EQ(std::ranges::count(std::string_view(keyList), '\r'), 15);
  world.boxes.expectBeep().expectMessage(
      "Bu program, 6/49 Sayısal Loto için seçtiğiniz toplardan (torbadan) rastgele kolonlar çeker; "
      "çıkmasını mutlaka istediğiniz banko topları her kolona ekler, kolonları gösterir ve "
      "listeler.\r\r"
      "KARVENIS 2005 Randomizer, kuponunu elle dolduranlara yardım etmek için yazılmış, bağımsız "
      "bir masaüstü programıdır. Kolonlarınız yalnızca sizin bilgisayarınızda durur.\r"
      "Sürüm: " KARVENIS_VERSION
      "\r"
      "Lisans: MIT, resimler CC0-1.0\r"
      "Kılavuz: /usr/share/doc/karvenis/KULLANIM.html (paketle kurulunca)\r"
      "Dosyaların durduğu klasör: /memory\r\r"
      "Tam formüllü kombinasyon listeleri için, bu programın yanında, yapımcının formül programını "
      "kullanmanızı öneririz.",
      " KARVENIS 2005 Randomizer Hakkında");
  trigger(loto, "mnuAbout");
}

TEST_F(FrmLotoKeys, F1KeepsTheColumnAndF1AgainKeepsItAgain) {
  world.state.Drawn = column(6, 5, 4, 3, 2, 1);
  world.boxes.expectBeep(2);
  press(loto, Qt::Key_F1);
  EXPECT_EQ(loto->caption(), " KARVENIS.RND Kayıt No= 1");
  press(loto, Qt::Key_F1);
  EXPECT_EQ(loto->caption(), " KARVENIS.RND Kayıt No= 2");
  EXPECT_EQ(world.files.bytes("KARVENIS.RND"),
            columnBytes({{0, column(1, 2, 3, 4, 5, 6)}, {0, column(1, 2, 3, 4, 5, 6)}}));
}

TEST_F(FrmLotoKeys, AHeldF1SavesOnce) {
  world.state.Drawn = column(6, 5, 4, 3, 2, 1);
  world.boxes.expectBeep();
  hold(loto, Qt::Key_F1, 5);
  EXPECT_EQ(world.files.bytes("KARVENIS.RND").size(), 16U);
}

TEST_F(FrmLotoKeys, MenuCaptionsAreTheProgramsOwn) {
  const std::vector<std::pair<const char*, const char*>> captions = {
      {"mnuSaveRndColumn", "Kolunu KARVENIS.RND dosyasına kayıtla (F1)"},
      {"mnuShowRndList", "KARVENIS.RND dosyasını göster (F2)"},
      {"mnuChangeRndFile", "KARVENIS.RND dosyasının adını değiştir (F3)"},
      {"mnuDeleteRndFile", "KARVENIS.RND dosyasını sil (F4)"},
      {"mnuShowBag", "Torbayı Göster (F5)"},
      {"mnuLoadBag", "Torbayı KARVENIS.DAT dosyasından yükle (F6)"},
      {"mnuShowBanko", "Bankoyu Göster (F7)"},
      {"mnuLoadBanko", "Bankoyu KARVENIS.DAT dosyasından yükle (F8)"},
      {"mnuShow8Columns", "8 rastgele kolon listele (F9)"},
      {"mnuFKeys", "Fonksiyon tuşları (F10)"},
      {"mnuCreateRndCList", "Yeni kombinasyon listesi oluştur (F11)"},
      {"mnuShowClist", "Kombinasyon listesini göster (F12)"},
      {"mnuAbout", "Program hakkında"}};
  for (const auto& [name, text] : captions) {
    EXPECT_EQ(fromQt(loto->findChild<QAction*>(name)->text()), text) << name;
  }
  const std::vector<std::pair<const char*, const char*>> heads = {{"mnuDosya", "Dosya"},
                                                                  {"mnuBag", "Torba"},
                                                                  {"mnuBanko", "Banko"},
                                                                  {"mnuListe", "Liste"},
                                                                  {"mnuHelp", "Yardım"}};
  for (const auto& [name, text] : heads) {
    EXPECT_EQ(fromQt(loto->findChild<QMenu*>(name)->title()), text) << name;
  }
}

}  // namespace
}  // namespace karvenis
