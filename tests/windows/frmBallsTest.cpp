#include "bag/frmBalls.h"

#include <QAccessible>
#include <QLabel>

#include "bag/Texts.h"
#include "bag/frmBanko.h"
#include "doubles/Sets.h"
#include "windows/WindowTest.h"

namespace karvenis {
namespace {

class FrmBalls : public WindowTest {
 protected:
  Form* balls = nullptr;

  void SetUp() override {
    add<frmBalls>("frmBalls");
    add<frmBanko>("frmBanko");
  }
  void start() { balls = open("frmBalls"); }

  QAbstractButton* ball(int number) const {
    return control<QAbstractButton>(balls, QStringLiteral("cmdBall_%1").arg(number));
  }
  QString tag(int number) const { return ball(number)->property("Tag").toString(); }
  /// The balls that are marked in every way that a mark has; a half mark fails the test.
  Set marked() const {
    Set all;
    for (std::int16_t number = 1; number <= 49; ++number) {
      const bool is = ball(number)->font().bold();
      const QColor ground = ball(number)->palette().color(QPalette::Button);
      EXPECT_EQ(ground == QColor(Qt::white), is) << number;
      EXPECT_EQ(tag(number), is ? "1" : "0") << number;
      QAccessibleInterface* told = QAccessible::queryAccessibleInterface(ball(number));
      EXPECT_EQ(told->role(), QAccessible::CheckBox);
      EXPECT_EQ(told->text(QAccessible::Name), QString::number(number));
      EXPECT_EQ(told->state().checked == 1, is) << number;
      if (is) all.push_back(number);
    }
    EXPECT_EQ(fromQt(control<QLabel>(balls, "Label1")->text()),
              std::to_string(all.size()) + " top işaretli");
    return all;
  }
  void mark(const Set& numbers) const {
    for (const std::int16_t number : numbers) click(ball(number));
  }
  int focused() const {
    const QString name = balls->focusWidget()->objectName();
    return name.startsWith("cmdBall_") ? name.mid(8).toInt() : 0;
  }
  void expectSaved() {
    world.boxes.expectBeep()
        .expectQuestion("Topları KARVENIS.DAT dosyasına kayıtlamak istiyormusunuz ?", true)
        .expectBeep()
        .expectMessage("Seçilen toplar KARVENIS.DAT dosyasına kayıtlandı...");
  }
  void expectLoaded() {
    world.boxes.expectBeep()
        .expectQuestion("Topları KARVENIS.DAT dosyasından yüklemek istiyormusunuz ?", true)
        .expectBeep();
  }
};

TEST_F(FrmBalls, ShowsItsWords) {
  start();
  EXPECT_EQ(balls->caption(), "6/49 Top Seçme Tablosu");
  for (int number = 1; number <= 49; ++number) {
    const QString digits = QString::number(number);
    EXPECT_EQ(ball(number)->text(), digits.rightJustified(2, '0'));
    EXPECT_EQ(ball(number)->toolTip(), digits);
  }
  EXPECT_EQ(control<QLabel>(balls, "Label2")->text(), "F10= Yardım");
  EXPECT_EQ(control<QLabel>(balls, "Label2")->toolTip(), "KARVENIS 2005");
  const char* const words[4][3] = {{"Command1", "Uygula", "Uygula"},
                                   {"Command2", "Kapat", "Çıkış"},
                                   {"Command3", "Yükle", "Dosyadan Yükle"},
                                   {"Command4", "Kayıtla", "Dosyaya Kayıtla"}};
  for (const auto& [name, text, tip] : words) {
    EXPECT_EQ(control<QAbstractButton>(balls, name)->text(), text);
    EXPECT_EQ(control(balls, name)->toolTip(), tip);
  }
}

TEST_F(FrmBalls, ShowsItsMenus) {
  start();
  const std::vector<std::pair<QString, QStringList>> menus = {
      {"Seçim", {"Seçimi Uygula", "", "Hepsini Seç", "Hiçbirini Seçme", "", "Kapat"}},
      {"Dosya", {"Dosyadan Yükle", "Dosyaya Kayıtla"}},
      {"Yardım", {"Fonksiyon Tuşları", "Bu Seçim Niçin ve Nasıl Uygulanır"}}};
  EXPECT_EQ(menusOf(balls), menus);
  EXPECT_EQ(menuNamesOf(balls),
            (QStringList{"mnuSecim", "mnuUygula", "mnuL1", "mnuHepsi", "mnuHicbiri", "mnuL2",
                         "mnuKapat", "mnuDosya", "mnuYukle", "mnuKayitla", "mnuYardim",
                         "mnuFunctionKeys", "mnuNasil"}));
}

TEST_F(FrmBalls, TheTemplateIsNeverShownNorTouched) {
  start();
  const QVariant before = ball(0)->property("Tag");
  EXPECT_EQ(ball(0)->text(), "top");
  EXPECT_EQ(ball(0)->toolTip(), "Top");
  world.boxes.expectBeep();
  press(balls, Qt::Key_F4);
  press(balls, Qt::Key_F1);
  EXPECT_TRUE(ball(0)->isHidden());
  EXPECT_FALSE(ball(0)->font().bold());
  EXPECT_EQ(ball(0)->property("Tag"), before);
}

TEST_F(FrmBalls, ShowsTheBagWhenItOpens) {
  setBag(world.state, {49, 7, 1});
  start();
  EXPECT_EQ(marked(), (Set{1, 7, 49}));
}

TEST_F(FrmBalls, AClickTurnsTheMark) {
  start();
  click(ball(7));
  EXPECT_EQ(marked(), Set{7});
  click(ball(7));
  EXPECT_EQ(marked(), Set{});
  EXPECT_EQ(bagOf(world.state), Set{}) << "marks alone change no bag";
}

TEST_F(FrmBalls, TheFontTurnsTheMarkAndTheTagCountsForApply) {
  start();
  click(ball(7));
  ball(7)->setProperty("Tag", "0");
  ball(8)->setProperty("Tag", " 1x");
  click(ball(7));
  EXPECT_FALSE(ball(7)->font().bold()) << "the bold font made the click unmark";
  world.boxes.expectBeep();
  press(balls, Qt::Key_F1);
  EXPECT_EQ(bagOf(world.state), Set{8});
  EXPECT_EQ(marked(), Set{8});
}

TEST_F(FrmBalls, ApplyTakesTheMarkedBallsAndDropsTheBankos) {
  setBanko(world.state, {9});
  start();
  mark({9, 5});
  world.boxes.expectBeep();
  click(control(balls, "Command1"));
  EXPECT_EQ(bagOf(world.state), Set{5});
  EXPECT_EQ(marked(), Set{5});
  EXPECT_TRUE(balls->isVisible());
}

TEST_F(FrmBalls, MarksAllAndNone) {
  start();
  press(balls, Qt::Key_F4);
  EXPECT_EQ(marked(), allBalls());
  press(balls, Qt::Key_F5);
  EXPECT_EQ(marked(), Set{});
  trigger(balls, "mnuHepsi");
  EXPECT_EQ(marked(), allBalls());
  trigger(balls, "mnuHicbiri");
  EXPECT_EQ(marked(), Set{});
  EXPECT_EQ(bagOf(world.state), Set{});
}

TEST_F(FrmBalls, SavesAndLoadsByKeyButtonAndMenu) {
  start();
  mark({5, 6});
  expectSaved();
  press(balls, Qt::Key_F3);
  mark({7});
  expectSaved();
  click(control(balls, "Command4"));
  mark({8});
  expectSaved();
  trigger(balls, "mnuKayitla");
  EXPECT_EQ(bagOf(world.state), (Set{5, 6, 7, 8}));
  EXPECT_EQ(world.files.bytes("KARVENIS.DAT").size(), 100U);

  world.state.Bag.clear();
  press(balls, Qt::Key_F5);
  expectLoaded();
  press(balls, Qt::Key_F2);
  EXPECT_EQ(marked(), (Set{5, 6, 7, 8}));
  press(balls, Qt::Key_F5);
  expectLoaded();
  click(control(balls, "Command3"));
  EXPECT_EQ(marked(), (Set{5, 6, 7, 8}));
  press(balls, Qt::Key_F5);
  expectLoaded();
  trigger(balls, "mnuYukle");
  EXPECT_EQ(marked(), (Set{5, 6, 7, 8}));
}

TEST_F(FrmBalls, AppliesByMenu) {
  start();
  mark({3});
  world.boxes.expectBeep();
  trigger(balls, "mnuUygula");
  EXPECT_EQ(bagOf(world.state), Set{3});
}

TEST_F(FrmBalls, ASavedBankoStaysMarkedUntilTheNextApply) {
  setBanko(world.state, {9});
  start();
  mark({5, 9});
  expectSaved();
  press(balls, Qt::Key_F3);
  EXPECT_EQ(marked(), (Set{5, 9}));
  open("frmBanko");
  open("frmBalls");
  EXPECT_EQ(marked(), (Set{5, 9}));
}

TEST_F(FrmBalls, RefusingTheSaveAndReadingTheHelpKeepTheMarks) {
  start();
  mark({5, 9});
  world.boxes.expectBeep().expectQuestion(
      "Topları KARVENIS.DAT dosyasına kayıtlamak istiyormusunuz ?", false);
  press(balls, Qt::Key_F3);
  EXPECT_EQ(marked(), (Set{5, 9}));
  EXPECT_EQ(bagOf(world.state), Set{});
}

TEST_F(FrmBalls, AnotherWindowOfTheProgramRedrawsTheMarks) {
  setBag(world.state, {1});
  start();
  mark({5, 9});
  open("frmBanko");
  open("frmBalls");
  EXPECT_EQ(marked(), Set{1});
}

TEST_F(FrmBalls, ABrokenFileIsToldAndKeepsTheMarks) {
  start();
  mark({5});
  world.files.folder["KARVENIS.DAT"] = words({9, 1, 2});
  world.boxes.expectBeep()
      .expectQuestion("Topları KARVENIS.DAT dosyasından yüklemek istiyormusunuz ?", true)
      .expectWarning("'KARVENIS.DAT' dosyası bozuk !", "! HATA !");
  press(balls, Qt::Key_F2);
  EXPECT_EQ(marked(), Set{5});
}

TEST_F(FrmBalls, TheBallWithoutANumberTakesNoPart) {
  start();
  ball(0)->click();
  EXPECT_TRUE(ball(0)->isHidden());
  EXPECT_EQ(ball(0)->parentWidget(), control(balls, "Frame1"));
  EXPECT_EQ(marked(), Set{});
}

TEST_F(FrmBalls, ArrowsMoveInsideTheGridAndSpaceMarks) {
  forms.show("frmBalls");
  balls = forms.find("frmBalls");
  ASSERT_NE(balls->focusWidget(), nullptr) << "also before it has the keyboard";
  EXPECT_EQ(focused(), 1);
  start();
  const std::vector<std::pair<Qt::Key, int>> walk = {
      {Qt::Key_Up, 1},    {Qt::Key_Left, 1},  {Qt::Key_Right, 2}, {Qt::Key_Down, 9},
      {Qt::Key_Left, 8},  {Qt::Key_Left, 8},  {Qt::Key_Up, 1},    {Qt::Key_Down, 8},
      {Qt::Key_Down, 15}, {Qt::Key_Down, 22}, {Qt::Key_Down, 29}, {Qt::Key_Down, 36},
      {Qt::Key_Down, 43}, {Qt::Key_Down, 43}, {Qt::Key_Right, 44}};
  for (const auto& [key, reached] : walk) {
    press(balls, key);
    EXPECT_EQ(focused(), reached);
  }
  press(balls, Qt::Key_Space);
  EXPECT_EQ(marked(), Set{44});
  press(balls, Qt::Key_Enter);
  EXPECT_EQ(marked(), Set{});
}

TEST_F(FrmBalls, TheLastColumnIsABorderToo) {
  start();
  click(ball(7));
  press(balls, Qt::Key_Right);
  EXPECT_EQ(focused(), 7);
  click(ball(49));
  press(balls, Qt::Key_Right);
  press(balls, Qt::Key_Down);
  EXPECT_EQ(focused(), 49);
}

TEST_F(FrmBalls, TabLeavesTheGridAndComesBackToTheSameBall) {
  start();
  click(ball(20));
  click(ball(5));
  press(balls, Qt::Key_Tab);
  EXPECT_EQ(balls->focusWidget()->objectName(), "Command1") << "one ball only is a stop";
  press(balls, Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(focused(), 5);
}

TEST_F(FrmBalls, AHeldFunctionKeyCountsOnce) {
  start();
  world.boxes.expectBeep();
  hold(balls, Qt::Key_F1, 5);
}

TEST_F(FrmBalls, OtherKeysDoNothing) {
  setBag(world.state, {1});
  start();
  mark({5});
  for (const Qt::Key key : {Qt::Key_F6, Qt::Key_F7, Qt::Key_F8, Qt::Key_F9, Qt::Key_F12, Qt::Key_A,
                            Qt::Key_5, Qt::Key_Home, Qt::Key_Delete}) {
    press(balls, key);
  }
  press(balls, Qt::Key_F4, Qt::AltModifier);
  EXPECT_EQ(marked(), (Set{1, 5}));
  EXPECT_TRUE(balls->isVisible());
}

TEST_F(FrmBalls, ClosesWithoutApplying) {
  for (const int way : {0, 1, 2, 3, 4}) {
    start();
    mark({5});
    if (way == 0) press(balls, Qt::Key_Escape);
    if (way == 1) click(control(balls, "Command2"));
    if (way == 2) trigger(balls, "mnuKapat");
    if (way == 3) balls->close();
    if (way == 4) press(balls, Qt::Key_Escape, Qt::ShiftModifier);
    settle();
    EXPECT_EQ(forms.find("frmBalls"), nullptr);
    EXPECT_EQ(bagOf(world.state), Set{});
  }
}

TEST_F(FrmBalls, ListsItsKeysAfterABeepAndKeepsTheMarks) {
  start();
  mark({5});
  world.boxes.expectBeep().expectMessage(bagKeys);
  press(balls, Qt::Key_F10);
  world.boxes.expectBeep().expectMessage(bagKeys);
  trigger(balls, "mnuFunctionKeys");
  EXPECT_EQ(marked(), Set{5});
}

TEST_F(FrmBalls, ExplainsTheBagWithoutABeep) {
  start();
  world.boxes.expectMessage(bagExplained, bagExplainedTitle);
  press(balls, Qt::Key_F11);
  world.boxes.expectMessage(bagExplained, bagExplainedTitle);
  trigger(balls, "mnuNasil");
}

}  // namespace
}  // namespace karvenis
