#include "bag/frmBanko.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "bag/Texts.h"
#include "bag/frmBalls.h"
#include "doubles/Sets.h"
#include "windows/WindowTest.h"

namespace karvenis {
namespace {

class FrmBanko : public WindowTest {
 protected:
  Form* banko = nullptr;

  void SetUp() override {
    add<frmBanko>("frmBanko");
    add<frmBalls>("frmBalls");
  }
  void start() { banko = open("frmBanko"); }

  QLineEdit* field(int index) const {
    return control<QLineEdit>(banko, QStringLiteral("Text1_%1").arg(index));
  }
  QRadioButton* option(int count) const {
    return control<QRadioButton>(banko, QStringLiteral("Option%1").arg(count + 1));
  }
  /// The chosen number of bankos; -1 if none is chosen. The fields and their caption must go with
  /// it.
  int chosen() const {
    int found = -1;
    for (int count = 0; count <= 5; ++count) {
      if (option(count)->isChecked()) found = count;
    }
    for (int index = 0; index < 5; ++index) EXPECT_EQ(field(index)->isVisible(), index < found);
    const char* const captions[] = {"", "", "Banko Top:", "Banko Toplar:"};
    EXPECT_EQ(control<QLabel>(banko, "Label2")->text(), captions[std::min(found, 2) + 1]);
    return found;
  }
  QStringList texts() const {
    QStringList all;
    for (int index = 0; index < 5; ++index) all.append(field(index)->text());
    return all;
  }
  void typeInto(int index, const QString& text) {
    click(field(index));
    type(banko, text);
  }
  QString focused() const { return banko->focusWidget()->objectName(); }
  void apply() {
    world.boxes.expectBeep();
    press(banko, Qt::Key_F1);
  }
  void expectSaved() {
    world.boxes.expectBeep()
        .expectQuestion("Banko topları (topu) KARVENIS.DAT dosyasına kayıtlamak istiyormusunuz ?",
                        true)
        .expectBeep(2)
        .expectMessage("Seçilen toplar KARVENIS.DAT dosyasına kayıtlandı...");
  }
  void expectLoaded() {
    world.boxes.expectBeep().expectQuestion(
        "Banko topları KARVENIS.DAT dosyasından yüklemek istiyormusunuz ?", true);
  }
};

TEST_F(FrmBanko, ShowsItsWords) {
  start();
  EXPECT_EQ(banko->caption(), "Banko");
  EXPECT_EQ(control<QLabel>(banko, "Label1")->text(), "Banko Top Sayısı:");
  EXPECT_EQ(control<QLabel>(banko, "Label4")->text(), "F10= Yardım");
  EXPECT_FALSE(control<QLabel>(banko, "Label3")->text().isEmpty());
  for (int count = 0; count <= 5; ++count) EXPECT_EQ(option(count)->text(), QString::number(count));
  const char* const words[4][3] = {{"Command1", "Uygula", "Uygula"},
                                   {"Command2", "Kapat", "Çıkış"},
                                   {"Command3", "Yükle", "Dosyadan Yükle"},
                                   {"Command4", "Kayıtla", "Dosyaya Kayıtla"}};
  for (const auto& [name, text, tip] : words) {
    EXPECT_EQ(control<QAbstractButton>(banko, name)->text(), text);
    EXPECT_EQ(control(banko, name)->toolTip(), tip);
  }
}

TEST_F(FrmBanko, ShowsItsMenus) {
  start();
  const std::vector<std::pair<QString, QStringList>> menus = {
      {"Seçim", {"Seçimi Uygula", "Seçimi Sil", "", "Kapat"}},
      {"Dosya", {"Dosyadan Yükle", "Dosyaya Kayıtla"}},
      {"Yardım", {"Fonksiyon Tuşları", "Banko Nedir ve Niçin Kullanılır"}}};
  EXPECT_EQ(menusOf(banko), menus);
  EXPECT_EQ(menuNamesOf(banko), (QStringList{"mnuSecim", "mnuUygula", "mnuSil", "mnuL1", "mnuKapat",
                                             "mnuDosya", "mnuYukle", "mnuKayitla", "mnuYardim",
                                             "mnuFunctionKeys", "mnuBankoNedir"}));
}

TEST_F(FrmBanko, StartsWithNoneWhereThereIsNone) {
  start();
  EXPECT_EQ(chosen(), 0);
}

TEST_F(FrmBanko, ShowsTheBankosWhenItOpens) {
  setBanko(world.state, {30, 7});
  start();
  EXPECT_EQ(chosen(), 2);
  EXPECT_EQ(texts(), (QStringList{"30", "7", "", "", ""}));
}

TEST_F(FrmBanko, TheFocusGoesWithTheChoiceUnlessItIsElsewhere) {
  setBanko(world.state, {30, 7});
  start();
  EXPECT_EQ(focused(), "Option3");
  option(4)->setChecked(true);
  EXPECT_EQ(focused(), "Option5");
  click(field(1));
  option(2)->setChecked(true);
  EXPECT_EQ(focused(), "Text1_1");
}

TEST_F(FrmBanko, BacktabLeadsToTheCountThatAKeyHasChosen) {
  start();
  for (const auto key : {Qt::Key_F5, Qt::Key_F7, Qt::Key_Backtab}) press(banko, key);
  EXPECT_EQ(focused(), "Option4");
}

TEST_F(FrmBanko, AKeyThatChoosesTheCountLeadsToTheFirstEmptyField) {
  setBanko(world.state, {30, 7});
  start();
  press(banko, Qt::Key_F8);
  EXPECT_EQ(focused(), "Text1_2");
  type(banko, "5");
  EXPECT_EQ(texts(), (QStringList{"30", "7", "5", "", ""}));
  press(banko, Qt::Key_F8);
  EXPECT_EQ(focused(), "Text1_3") << "also where the count stays";
}

TEST_F(FrmBanko, AKeyThatChoosesTheCountLeavesTheFocusWhereNoBoxIsEmpty) {
  setBanko(world.state, {30, 7});
  start();
  press(banko, Qt::Key_F5);
  EXPECT_EQ(focused(), "Option2");
  press(banko, Qt::Key_F4);
  EXPECT_EQ(focused(), "Option1") << "no field is to be seen";
  press(banko, Qt::Key_F6);
  click(field(1));
  press(banko, Qt::Key_F6);
  EXPECT_EQ(focused(), "Text1_1");
}

TEST_F(FrmBanko, KeysChooseTheCountAndKeepTheNumbers) {
  setBanko(world.state, {1, 2, 3, 4, 5});
  start();
  for (int count = 0; count <= 5; ++count) {
    press(banko, static_cast<Qt::Key>(Qt::Key_F4 + count));
    EXPECT_EQ(chosen(), count);
    EXPECT_EQ(texts(), (QStringList{"1", "2", "3", "4", "5"}));
  }
}

TEST_F(FrmBanko, ClicksAndArrowsChooseTheCount) {
  start();
  for (const int count : {3, 1, 5, 0}) {
    click(option(count), {8, option(count)->height() / 2});
    EXPECT_EQ(chosen(), count);
  }
  press(banko, Qt::Key_Right);
  EXPECT_EQ(chosen(), 1);
}

TEST_F(FrmBanko, TypingIsFiltered) {
  start();
  press(banko, Qt::Key_F5);
  const std::vector<std::pair<const char*, const char*>> rows = {
      {"49", "49"}, {"50", ""},  {"0", ""},    {"07", "7"}, {"7x", "7"},  {"abc", ""},
      {"-5", "5"},  {" 7", "7"}, {"12.7", ""}, {"123", ""}, {"1234", "4"}};
  for (const auto& [typed, left] : rows) {
    field(0)->clear();
    typeInto(0, typed);
    EXPECT_EQ(field(0)->text(), left) << typed;
  }
}

TEST_F(FrmBanko, PastedTextIsFiltered) {
  start();
  press(banko, Qt::Key_F5);
  const std::vector<std::pair<const char*, const char*>> rows = {
      {"12.7", "12"}, {" 7", ""}, {"-5", ""}, {"99999999999", ""}, {"٧", ""}, {"9 10", "9"}};
  for (const auto& [pasted, left] : rows) {
    field(0)->clear();
    click(field(0));
    field(0)->insert(pasted);
    EXPECT_EQ(field(0)->text(), left) << pasted;
  }
}

TEST_F(FrmBanko, TheCaretStaysWhereTheTextStays) {
  start();
  press(banko, Qt::Key_F5);
  typeInto(0, "9");
  press(banko, Qt::Key_Home);
  type(banko, "4");
  EXPECT_EQ(field(0)->text(), "49");
  EXPECT_EQ(field(0)->cursorPosition(), 1);
}

TEST_F(FrmBanko, EnterWalksTheVisibleBoxesThenTheButton) {
  start();
  press(banko, Qt::Key_F6);
  typeInto(0, "7");
  press(banko, Qt::Key_Return);
  EXPECT_EQ(focused(), "Text1_1");
  type(banko, "8");
  press(banko, Qt::Key_Enter);
  EXPECT_EQ(focused(), "Command1");
  EXPECT_EQ(bankoOf(world.state), Set{}) << "the Enter that came here does not press it too";
  world.boxes.expectBeep();
  press(banko, Qt::Key_Return);
  EXPECT_EQ(bankoOf(world.state), (Set{7, 8}));
}

TEST_F(FrmBanko, EnterInTheFifthBoxGoesToTheButton) {
  start();
  press(banko, Qt::Key_F9);
  typeInto(4, "7");
  press(banko, Qt::Key_Return);
  EXPECT_EQ(focused(), "Command1");
}

TEST_F(FrmBanko, AHeldEnterWalksOneStepAndPressesNothing) {
  start();
  press(banko, Qt::Key_F5);
  typeInto(0, "7");
  hold(banko, Qt::Key_Return, 5);
  EXPECT_EQ(focused(), "Command1");
  EXPECT_EQ(bankoOf(world.state), Set{});
}

TEST_F(FrmBanko, ABlankAndARepeatDropOut) {
  setBag(world.state, {12, 13});
  start();
  press(banko, Qt::Key_F7);
  typeInto(0, "12");
  typeInto(2, "12");
  world.boxes.expectBeep();
  click(control(banko, "Command1"));
  EXPECT_EQ(bankoOf(world.state), Set{12});
  EXPECT_EQ(chosen(), 1);
  EXPECT_EQ(texts(), (QStringList{"12", "", "", "", ""}));
  EXPECT_EQ(bagOf(world.state), Set{13});
  EXPECT_TRUE(banko->isVisible());
}

TEST_F(FrmBanko, NoCountClearsAllAndNoBallReturns) {
  setBag(world.state, {12, 13});
  start();
  press(banko, Qt::Key_F5);
  typeInto(0, "12");
  apply();
  press(banko, Qt::Key_F4);
  apply();
  EXPECT_EQ(bankoOf(world.state), Set{});
  EXPECT_EQ(bagOf(world.state), Set{13});
  EXPECT_EQ(chosen(), 0);
}

TEST_F(FrmBanko, ClearTouchesTheCountOnly) {
  setBag(world.state, {1});
  setBanko(world.state, {7, 8});
  start();
  trigger(banko, "mnuSil");
  EXPECT_EQ(bankoOf(world.state), Set{});
  EXPECT_EQ(bagOf(world.state), Set{1});
  EXPECT_EQ(chosen(), 2);
  EXPECT_EQ(texts(), (QStringList{"7", "8", "", "", ""}));
}

TEST_F(FrmBanko, SavesAndLoadsByKeyButtonAndMenu) {
  start();
  press(banko, Qt::Key_F6);
  typeInto(0, "30");
  typeInto(1, "7");
  expectSaved();
  press(banko, Qt::Key_F3);
  expectSaved();
  click(control(banko, "Command4"));
  expectSaved();
  trigger(banko, "mnuKayitla");
  EXPECT_EQ(world.files.bytes("KARVENIS.DAT").size(), 106U);
  for (int way = 0; way < 3; ++way) {
    press(banko, Qt::Key_F4);
    apply();
    EXPECT_EQ(chosen(), 0);
    expectLoaded();
    if (way == 0) press(banko, Qt::Key_F2);
    if (way == 1) click(control(banko, "Command3"));
    if (way == 2) trigger(banko, "mnuYukle");
    EXPECT_EQ(bankoOf(world.state), (Set{30, 7}));
    EXPECT_EQ(chosen(), 2);
    EXPECT_EQ(texts(), (QStringList{"30", "7", "", "", ""}));
  }
}

TEST_F(FrmBanko, AppliesByMenu) {
  start();
  press(banko, Qt::Key_F5);
  typeInto(0, "7");
  world.boxes.expectBeep();
  trigger(banko, "mnuUygula");
  EXPECT_EQ(bankoOf(world.state), Set{7});
}

TEST_F(FrmBanko, ABankoThatIsNoBallShowsAnEmptyField) {
  setBanko(world.state, {77, 7});
  start();
  EXPECT_EQ(chosen(), 2);
  EXPECT_EQ(texts(), (QStringList{"", "7", "", "", ""}));
  EXPECT_EQ(bankoOf(world.state), (Set{77, 7}));
}

TEST_F(FrmBanko, RefusingTheSaveKeepsWhatIsTyped) {
  start();
  press(banko, Qt::Key_F6);
  typeInto(1, "9");
  world.boxes.expectBeep().expectQuestion(
      "Banko topları (topu) KARVENIS.DAT dosyasına kayıtlamak istiyormusunuz ?", false);
  press(banko, Qt::Key_F3);
  EXPECT_EQ(chosen(), 2);
  EXPECT_EQ(texts(), (QStringList{"", "9", "", "", ""}));
  EXPECT_EQ(bankoOf(world.state), Set{});
}

TEST_F(FrmBanko, AnotherWindowOfTheProgramRedrawsTheBankos) {
  setBanko(world.state, {7});
  start();
  press(banko, Qt::Key_F6);
  field(0)->clear();
  typeInto(0, "9");
  typeInto(1, "8");
  open("frmBalls");
  open("frmBanko");
  EXPECT_EQ(chosen(), 1);
  EXPECT_EQ(texts(), (QStringList{"7", "8", "", "", ""})) << "beyond the count it stays";
}

TEST_F(FrmBanko, ABrokenFileIsTold) {
  start();
  std::vector<int> file(50);
  file.push_back(7);
  world.files.folder["KARVENIS.DAT"] = words(file);
  expectLoaded();
  world.boxes.expectWarning("'KARVENIS.DAT' dosyası bozuk !", "! HATA !");
  press(banko, Qt::Key_F2);
}

TEST_F(FrmBanko, OtherKeysDoNothing) {
  start();
  for (const Qt::Key key : {Qt::Key_F12, Qt::Key_A, Qt::Key_Delete}) press(banko, key);
  press(banko, Qt::Key_F5, Qt::AltModifier);
  EXPECT_EQ(chosen(), 0);
}

TEST_F(FrmBanko, ClosesWithoutApplying) {
  for (const int way : {0, 1, 2, 3, 4}) {
    start();
    press(banko, Qt::Key_F5);
    typeInto(0, "7");
    if (way == 0) press(banko, Qt::Key_Escape);
    if (way == 1) click(control(banko, "Command2"));
    if (way == 2) trigger(banko, "mnuKapat");
    if (way == 3) banko->close();
    if (way == 4) press(banko, Qt::Key_Escape, Qt::ShiftModifier);
    settle();
    EXPECT_EQ(forms.find("frmBanko"), nullptr);
    EXPECT_EQ(bankoOf(world.state), Set{});
  }
}

TEST_F(FrmBanko, ListsItsKeysAfterABeepAndKeepsWhatIsTyped) {
  start();
  press(banko, Qt::Key_F5);
  typeInto(0, "7");
  world.boxes.expectBeep().expectMessage(bankoKeys);
  press(banko, Qt::Key_F10);
  world.boxes.expectBeep().expectMessage(bankoKeys);
  trigger(banko, "mnuFunctionKeys");
  EXPECT_EQ(texts().first(), "7");
}

TEST_F(FrmBanko, ExplainsBankosWithoutABeep) {
  start();
  world.boxes.expectMessage(bankoExplained, bankoExplainedTitle);
  press(banko, Qt::Key_F11);
  world.boxes.expectMessage(bankoExplained, bankoExplainedTitle);
  trigger(banko, "mnuBankoNedir");
}

}  // namespace
}  // namespace karvenis
