#include "main/frmLoto.h"

#include <QAccessible>
#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>

#include "core/Draw.h"
#include "doubles/Sets.h"
#include "main/Texts.h"
#include "main/widgets/Picture.h"
#include "windows/WindowTest.h"

namespace karvenis {
namespace {

class FrmLoto : public WindowTest {
 protected:
  Form* loto = nullptr;

  void SetUp() override {
    add<frmLoto>("frmLoto");
    loto = open("frmLoto");
  }
  QLabel* number(int index) const {
    return control<QLabel>(loto, QStringLiteral("Label1_%1").arg(index));
  }
  QWidget* image(int index) const { return control(loto, QStringLiteral("Image1_%1").arg(index)); }
  QString focused() const { return loto->focusWidget()->objectName(); }
  bool hidden(const char* name) const { return control(loto, QLatin1String(name))->isHidden(); }
  std::string caption(int index) const { return fromQt(number(index)->text()); }
  void pressKolon() { click(control(loto, "Command1")); }
  void uncover() {
    world.boxes.expectBeep();
    click(control(loto, "Picture0"));
  }
  void drawToTheEnd() {
    world.boxes.expectBeep(6);
    pressKolon();
    EXPECT_TRUE(waitFor([this] { return world.boxes.finished() && !number(11)->isHidden(); }));
  }
  std::vector<std::string> shownColumn() const {
    std::vector<std::string> shown;
    for (int k = 0; k < 6; ++k) shown.push_back(caption(2 * k));
    return shown;
  }
};

using Shown = std::vector<std::string>;

TEST_F(FrmLoto, StartsCoveredWithEmptyNumbersAndTheBallsAtRest) {
  EXPECT_EQ(loto->caption(), " KARVENIS 2005 Randomizer");
  EXPECT_FALSE(hidden("Picture0"));
  EXPECT_TRUE(control<QRadioButton>(loto, "Option1")->isChecked());
  EXPECT_FALSE(control<QCheckBox>(loto, "Check1")->isChecked());
  for (int index = 0; index < 12; ++index) {
    EXPECT_EQ(caption(index), "");
    EXPECT_FALSE(number(index)->isHidden());
  }
  for (int k = 1; k <= 6; ++k) {
    for (int step = 0; step < 4; ++step) {
      EXPECT_EQ(image(5 * (k - 1) + 1 + step)->isHidden(), step < 3) << k << " step " << step;
    }
  }
  EXPECT_EQ(world.journal.of("seed").size(), 1U) << "the first activation seeds";
  EXPECT_TRUE(world.files.folder.empty()) << "nothing is made at start";
}

TEST_F(FrmLoto, DrawsFromTheBagBallByBall) {
  drawToTheEnd();
  EXPECT_TRUE(hidden("Picture0"));
  for (int k = 1; k <= 6; ++k) {
    const std::string ball = std::to_string(ballAt(world.state.Drawn, k));
    EXPECT_EQ(caption(2 * k - 2), ball);
    EXPECT_EQ(caption(2 * k - 1), ball);
    EXPECT_FALSE(number(2 * k - 2)->isHidden());
    EXPECT_FALSE(number(2 * k - 1)->isHidden());
    EXPECT_FALSE(image(5 * (k - 1) + 4)->isHidden());
    for (int step = 1; step <= 3; ++step) EXPECT_TRUE(image(5 * (k - 1) + step)->isHidden());
  }
}

TEST_F(FrmLoto, RefusesWhereSixBallsAreMissing) {
  setBag(world.state, {1, 2, 3});
  setBanko(world.state, {7, 8});
  loto->setCaption(" KARVENIS.RND Kayıt No= 3");
  world.boxes.expectWarning("En az 6 top seçmiş olmanız gerekiyor!", " ! Eksik top seçimi !");
  pressKolon();
  EXPECT_TRUE(world.boxes.finished());
  EXPECT_EQ(world.state.Drawn, Column{});
  EXPECT_TRUE(hidden("Picture0")) << "hidden even after a refusal";
  EXPECT_EQ(loto->caption(), " KARVENIS.RND Kayıt No= 3") << "a refusal leaves the title";
}

TEST_F(FrmLoto, RefusesWhereTheBallsAreNotDistinct) {
  setBag(world.state, {7, 20, 1, 2});
  setBanko(world.state, {7, 20});
  world.boxes.expectWarning(tooFewBalls, tooFewBallsTitle);
  pressKolon();
}

TEST_F(FrmLoto, AnAcceptedDrawPutsTheTitleBack) {
  loto->setCaption(" KARVENIS.RND Kayıt No= 3");
  drawToTheEnd();
  EXPECT_EQ(loto->caption(), " KARVENIS 2005 Randomizer");
}

TEST_F(FrmLoto, PicksFromTheListAtOnceInStoredOrder) {
  world.files.folder["KARVENIS.LST"] =
      columnBytes({{7, column(1, 2, 3, 4, 5, 6)}, {8, column(49, 3, 48, 2, 47, 1)}});
  click(control(loto, "Check1"));
  click(control(loto, "Option2"));
  world.chance.script = {0.5F};
  world.boxes.expectBeep();
  pressKolon();
  EXPECT_EQ(shownColumn(), (Shown{"49", "3", "48", "2", "47", "1"}));
  EXPECT_EQ(loto->caption(), " KARVENIS.LST  Kayıt = 2 [ 2 ]");
  EXPECT_EQ(world.state.Drawn, column(49, 3, 48, 2, 47, 1));
  EXPECT_TRUE(hidden("Picture0"));
}

TEST_F(FrmLoto, AListPickDuringADrawIsShownAtOnceAndTheBallsRollOn) {
  world.files.folder["KARVENIS.LST"] = columnBytes({{7, column(49, 3, 48, 2, 47, 1)}});
  world.boxes.expectBeep();
  pressKolon();
  EXPECT_TRUE(waitFor([this] { return world.boxes.finished(); })) << "the first ball";
  click(control(loto, "Option2"));
  world.boxes.expectBeep();
  pressKolon();
  const Shown picked{"49", "3", "48", "2", "47", "1"};
  EXPECT_EQ(shownColumn(), picked);
  EXPECT_EQ(loto->caption(), " KARVENIS.LST  Kayıt = 1 [ 1 ]");
  EXPECT_TRUE(number(11)->isHidden());
  world.boxes.expectBeep(5);
  EXPECT_TRUE(waitFor([this] { return world.boxes.finished() && !number(11)->isHidden(); }));
  EXPECT_EQ(shownColumn(), picked);
}

TEST_F(FrmLoto, ListPickWithoutAListWarnsAndUncovers) {
  click(control(loto, "Option2"));
  world.boxes.expectWarning("Kombinasyon Listesi dosyası yok!", " ! KARVENIS.LST bulunamadı !");
  pressKolon();
  EXPECT_TRUE(hidden("Picture0"));
}

TEST_F(FrmLoto, SortsAndShowsWhenTheBoxBecomesChecked) {
  world.state.Drawn = column(9, 8, 7, 3, 2, 1);
  click(control(loto, "Check1"));
  EXPECT_EQ(shownColumn(), (Shown{"1", "2", "3", "7", "8", "9"}));
  world.state.Drawn = column(9, 8, 7, 3, 2, 1);
  click(control(loto, "Check1"));
  EXPECT_EQ(shownColumn(), (Shown{"1", "2", "3", "7", "8", "9"})) << "unchecking shows nothing";
  EXPECT_EQ(world.state.Drawn, column(9, 8, 7, 3, 2, 1));
}

TEST_F(FrmLoto, CheckingBeforeAnyDrawShowsZeros) {
  click(control(loto, "Check1"));
  for (int index = 0; index < 12; ++index) EXPECT_EQ(caption(index), "0");
}

TEST_F(FrmLoto, TheCoverGoesWithABeepAndComesBackInTheNextMinute) {
  uncover();
  EXPECT_TRUE(hidden("Picture0"));
  world.clock.now = "12:34:59";
  EXPECT_TRUE(waitFor([this] { return control<QLabel>(loto, "Label3")->text() == "12:34:59"; }));
  EXPECT_TRUE(hidden("Picture0"));
  world.clock.minuteOfHour = 35;
  EXPECT_TRUE(waitFor([this] { return !hidden("Picture0"); }));
}

TEST_F(FrmLoto, ShowsDateAndTime) {
  EXPECT_TRUE(waitFor([this] { return control<QLabel>(loto, "Label3")->text() == "12:34:56"; }));
  EXPECT_EQ(control<QLabel>(loto, "Label2")->text(), "21.11.2026");
}

TEST_F(FrmLoto, TheBannerSwaysWithItsCompanion) {
  const int before = control(loto, "Picture3")->x();
  EXPECT_TRUE(waitFor([&] { return control(loto, "Picture3")->x() < before - 2; }));
  EXPECT_EQ(control(loto, "Picture3")->x(), control(loto, "Picture4")->x());
}

TEST_F(FrmLoto, ANumberTellsItselfUnderThePointer) {
  world.state.Drawn = column(9, 8, 7, 3, 2, 1);
  click(control(loto, "Check1"));
  uncover();
  for (int index = 0; index < 12; ++index) {
    QTest::mouseMove(loto->windowHandle(), number(index)->mapTo(loto, QPoint(20, 18)));
    EXPECT_TRUE(waitFor([&] { return number(index)->toolTip() == number(index)->text(); }));
  }
}

TEST_F(FrmLoto, TheCheckMayBeSetByWhateverMeans) {
  world.state.Drawn = column(9, 8, 7, 3, 2, 1);
  control<QCheckBox>(loto, "Check1")->toggle();
  EXPECT_EQ(shownColumn(), (Shown{"1", "2", "3", "7", "8", "9"}));
}

TEST_F(FrmLoto, EveryPressOfKolonStampsTheMinuteAndTakesThePicture) {
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

TEST_F(FrmLoto, OtherKeysDoNothing) {
  control(loto, "Option1")->setFocus();
  for (const auto key : {Qt::Key_A, Qt::Key_7, Qt::Key_Home, Qt::Key_Delete, Qt::Key_PageDown}) {
    press(loto, key);
  }
  EXPECT_FALSE(forms.ending());
  EXPECT_TRUE(world.files.folder.empty());
}

TEST_F(FrmLoto, KeepingAColumnDoesNotRefreshTheNumbers) {
  world.files.folder["KARVENIS.LST"] = columnBytes({{1, column(9, 8, 7, 3, 2, 1)}});
  click(control(loto, "Option2"));
  world.boxes.expectBeep(2);
  pressKolon();
  press(loto, Qt::Key_F1);
  EXPECT_EQ(shownColumn(), (Shown{"9", "8", "7", "3", "2", "1"}));
  EXPECT_EQ(world.state.Drawn, column(1, 2, 3, 7, 8, 9));
}

TEST_F(FrmLoto, BallsOfADamagedRecordAreShownAsTheyStand) {
  world.files.folder["KARVENIS.LST"] = columnBytes({{1, column(-32768, 0, 50, 32767, -1, 7)}});
  click(control(loto, "Option2"));
  world.boxes.expectBeep();
  pressKolon();
  EXPECT_EQ(shownColumn(), (Shown{"-32768", "0", "50", "32767", "-1", "7"}));
}

TEST_F(FrmLoto, AFileOfBagAndBankosIsNotReadAtStart) {
  forms.find("frmLoto")->unload();
  settle();
  world.files.folder["KARVENIS.DAT"] = words({2, 5, 9});
  loto = open("frmLoto");
  EXPECT_TRUE(world.state.Bag.empty());
  EXPECT_TRUE(world.state.Banko.empty());
}

TEST_F(FrmLoto, APlaceOnNoScreenBecomesTheNearestOne) {
  for (const char* bytes : {"00 24 74 C9 00 24 74 C9", "00 24 74 49 00 24 74 49"}) {
    forms.find("frmLoto")->unload();
    settle();
    world.files.folder["KV2005.CFG"] = hex(bytes);  // a million twips off
    loto = open("frmLoto");
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    EXPECT_TRUE(screen.intersects(QRect(loto->pos(), QSize(loto->width(), 20)))) << bytes;
  }
}

TEST_F(FrmLoto, APlaceThatShowsALittleIsKeptExactly) {
  forms.find("frmLoto")->unload();
  settle();
  world.files.folder["KV2005.CFG"] = hex("00 00 A0 41 00 00 16 C6");  // 20 twips down, 9600 left
  loto = open("frmLoto");
  EXPECT_EQ(loto->pos(), QPoint(-640, 1));
}

TEST_F(FrmLoto, EscEndsWithoutWriting) {
  press(loto, Qt::Key_Escape);
  EXPECT_TRUE(forms.ending());
  EXPECT_TRUE(world.files.folder.empty());
}

TEST_F(FrmLoto, ShiftEscEndsToo) {
  press(loto, Qt::Key_Escape, Qt::ShiftModifier);
  EXPECT_TRUE(forms.ending());
}

TEST_F(FrmLoto, CtrlAltAndARepeatedEscDoNotEnd) {
  press(loto, Qt::Key_Escape, Qt::ControlModifier);
  press(loto, Qt::Key_Escape, Qt::AltModifier);
  QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, QString(), true);
  QCoreApplication::sendEvent(loto->windowHandle(), &repeat);
  EXPECT_FALSE(forms.ending());
}

TEST_F(FrmLoto, DoubleClickOnTheFreeSurfaceEnds) {
  doubleClick(loto, {5, loto->height() - 5});
  EXPECT_TRUE(forms.ending());
  EXPECT_TRUE(world.files.folder.empty());
}

TEST_F(FrmLoto, DoubleClickOnTheOpeningPictureDoesNotEnd) {
  world.boxes.expectBeep();
  doubleClick(control(loto, "Picture0"), {364, 20});
  EXPECT_TRUE(hidden("Picture0"));
  EXPECT_FALSE(forms.ending());
}

TEST_F(FrmLoto, DoubleClickOnABallANumberOrTheDateDoesNotEnd) {
  uncover();
  for (const char* name : {"Image1_4", "Label1_0", "Label1_1", "Label2", "Label3", "Picture1"}) {
    QWidget* target = control(loto, name);
    doubleClick(target, target->rect().center());
    EXPECT_FALSE(forms.ending()) << name;
  }
}

TEST_F(FrmLoto, ClosingByTheFrameEndsWithoutWriting) {
  loto->close();
  EXPECT_TRUE(forms.ending());
  EXPECT_TRUE(world.files.folder.empty());
}

TEST_F(FrmLoto, ExitWritesTheFramesPlace) {
  loto->move(40, 60);
  click(control(loto, "Command2"));
  EXPECT_TRUE(forms.ending());
  EXPECT_EQ(world.files.bytes("KV2005.CFG"), hex("00 00 61 44 00 00 16 44"));  // 900, 600
}

TEST_F(FrmLoto, ModifiedFunctionKeysDoNothing) {
  for (const auto held : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier}) {
    for (int key = Qt::Key_F1; key <= Qt::Key_F12; ++key) {
      press(loto, static_cast<Qt::Key>(key), held);
    }
  }
  EXPECT_TRUE(world.files.folder.empty());
}

TEST_F(FrmLoto, F10ListsTheKeysWithoutABeepAndAboutBeeps) {
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

TEST_F(FrmLoto, F1KeepsTheColumnAndF1AgainKeepsItAgain) {
  world.state.Drawn = column(6, 5, 4, 3, 2, 1);
  world.boxes.expectBeep(2);
  press(loto, Qt::Key_F1);
  EXPECT_EQ(loto->caption(), " KARVENIS.RND Kayıt No= 1");
  press(loto, Qt::Key_F1);
  EXPECT_EQ(loto->caption(), " KARVENIS.RND Kayıt No= 2");
  EXPECT_EQ(world.files.bytes("KARVENIS.RND"),
            columnBytes({{0, column(1, 2, 3, 4, 5, 6)}, {0, column(1, 2, 3, 4, 5, 6)}}));
}

TEST_F(FrmLoto, AHeldF1SavesOnce) {
  world.state.Drawn = column(6, 5, 4, 3, 2, 1);
  world.boxes.expectBeep();
  hold(loto, Qt::Key_F1, 5);
  EXPECT_EQ(world.files.bytes("KARVENIS.RND").size(), 16U);
}

TEST_F(FrmLoto, TellsByNameWhatIsNoText) {
  EXPECT_EQ(control(loto, "Picture0")->accessibleName(), "Açılış resmi");
  EXPECT_EQ(control(loto, "Picture1")->accessibleName(), "KARVENIS amblemi");
  EXPECT_EQ(control(loto, "Frame1")->accessibleName(), "Kolonun kaynağı ve sırası");
  EXPECT_EQ(number(10)->accessibleName(), "6. top: boş");
  world.state.Drawn = column(9, 8, 7, 3, 2, 1);
  click(control(loto, "Check1"));
  EXPECT_EQ(number(10)->accessibleName(), "6. top: 9");
  EXPECT_EQ(number(1)->accessibleName(), "1. sayı: 1");
}

TEST_F(FrmLoto, TheOpeningPictureIsTheLastStopOfTab) {
  EXPECT_EQ(focused(), "Command1") << "it takes no focus by itself";
  std::vector<QString> stops;
  for (int i = 0; i < 6; ++i) {
    stops.push_back(focused());
    press(loto, Qt::Key_Tab);
  }
  EXPECT_EQ(stops, (std::vector<QString>{"Command1", "Command2", "Picture0", "Option1", "Check1",
                                         "Command1"}));
}

TEST_F(FrmLoto, SpaceOrEnterLiftsTheOpeningPictureAndTheFocusGoesToKolon) {
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

TEST_F(FrmLoto, TheOpeningPictureIsLiftedByItsAccessibleAction) {
  auto* picture = QAccessible::queryAccessibleInterface(control(loto, "Picture0"));
  EXPECT_EQ(picture->role(), QAccessible::Button);
  world.boxes.expectBeep();
  picture->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(waitFor([this] { return hidden("Picture0"); }));
}

TEST_F(FrmLoto, TheOpeningPictureThatComesBackLeavesTheFocus) {
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
TEST_F(FrmLoto, PaintsPrerenderedDrawingsAloneAtTheStart) {
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

TEST_F(FrmLoto, MenuCaptionsAreTheProgramsOwn) {
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
