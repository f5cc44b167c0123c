#include "platform/qt/NumberBox.h"

#include <QMenuBar>
#include <QMessageBox>
#include <QRadioButton>

#include "AllWindows.h"
#include "core/ColumnFile.h"
#include "doubles/Columns.h"
#include "doubles/Sets.h"
#include "windows/WindowTest.h"

// When the number in a box is selected, so that the first digit replaces it: in every window that
// has such boxes, with real keys.

namespace karvenis {
namespace {

class NumberBoxes : public WindowTest {
 protected:
  Form* form = nullptr;

  void SetUp() override {
    addWindows(forms, around);
    world.files.folder[randomColumns] = countedColumns(30);
    world.files.folder[combinationList] = countedColumns(30);
  }
  void start(const char* name) {
    if (name == std::string_view("frmRndDel")) world.boxes.expectBeep();
    form = open(name);
    ASSERT_NE(form, nullptr);
  }
  NumberBox* box(const char* name) const { return control<NumberBox>(form, QLatin1String(name)); }
  std::string text(const char* name) const { return fromQt(box(name)->text()); }
  /// What another window over the form's does to its focus, until it closes.
  void coverAndComeBack() const {
    QMessageBox other(form);
    other.open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    other.reject();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    ASSERT_TRUE(box("Text1")->hasFocus());
  }
};

TEST_F(NumberBoxes, AreSelectedWhenTheirWindowOpens) {
  start("frmRnd");
  type(form, "5");
  EXPECT_EQ(text("Text1"), "5");
  start("frmCLPrint");
  type(form, "7");
  EXPECT_EQ(text("Text1"), "7");
}

TEST_F(NumberBoxes, AreSelectedWhenTheirWindowOpensOverNoList) {
  world.files.folder.clear();
  start("frmRnd");
  type(form, "500");
  EXPECT_EQ(text("Text1"), "500");
}

TEST_F(NumberBoxes, AreSelectedWhenTabOrEnterLeadsThere) {
  start("frmCLPrint");
  press(form, Qt::Key_Tab);
  type(form, "9");
  EXPECT_EQ(text("Text2"), "9");
  press(form, Qt::Key_Tab, Qt::ShiftModifier);
  type(form, "2");
  EXPECT_EQ(text("Text1"), "2");
  press(form, Qt::Key_Return);
  type(form, "8");
  EXPECT_EQ(text("Text2"), "8");
}

TEST_F(NumberBoxes, OfTheBankosAreSelectedWhenEnterLeadsThere) {
  setBanko(world.state, {30, 7});
  start("frmBanko");
  click(box("Text1_0"));
  press(form, Qt::Key_Return);
  type(form, "8");
  EXPECT_EQ(text("Text1_1"), "8");
}

TEST_F(NumberBoxes, AreSelectedAfterARefusal) {
  start("frmCLPrint");
  world.boxes.expectBeep()
      .expectQuestion("Kombinasyon Listesi'ni KARVENIS.TXT dosyasına yazdırmak istiyormusunuz ?",
                      true, "KARVENIS 2005 Randomizer")
      .expectWarning("Bitiş Numarası GEÇERSİZ !", "! HATA !");
  press(form, Qt::Key_Tab);
  type(form, "99");
  press(form, Qt::Key_F1);
  type(form, "4");
  EXPECT_EQ(text("Text2"), "4");
}

TEST_F(NumberBoxes, OfTheGeneratorAreSelectedAfterARefusal) {
  start("frmRnd");
  world.boxes.expectWarning("En çok 32737 kolon ekleyebilirsiniz!", "! DİKKAT !");
  type(form, "40000");
  press(form, Qt::Key_F1);
  type(form, "5");
  EXPECT_EQ(text("Text1"), "5");
  world.boxes.expectBeep();
  type(form, "\b0");
  press(form, Qt::Key_F1);
  type(form, "6");
  EXPECT_EQ(text("Text1"), "6") << "refused without a box";
}

TEST_F(NumberBoxes, OfTheDeletionAreSelectedAfterARefusal) {
  start("frmRndDel");
  world.boxes.expectWarning("Silinecek kolon numarası geçersiz! En çok 30 olabilir.",
                            "! DİKKAT ! Geçersiz Kolon Numarası");
  type(form, "99");
  press(form, Qt::Key_Return);
  type(form, "2");
  EXPECT_EQ(text("Text1"), "2");
}

TEST_F(NumberBoxes, AreSelectedWhenAnOptionHasRewrittenThem) {
  start("frmRnd");
  QCoreApplication::processEvents();  // the toolkit clears selections once, when a window opens
  for (const auto& [option, number] : {std::pair("Option1", "30"), std::pair("Option2", "32737")}) {
    click(control(form, QLatin1String(option)), {10, 10});
    EXPECT_EQ(fromQt(box("Text1")->selectedText()), number);
  }
}

TEST_F(NumberBoxes, AreSelectedWhenTheirBankoWasApplied) {
  setBanko(world.state, {12});
  start("frmBanko");
  click(box("Text1_0"));
  world.boxes.expectBeep();
  press(form, Qt::Key_F1);
  type(form, "5");
  EXPECT_EQ(text("Text1_0"), "5");
}

TEST_F(NumberBoxes, AreNotSelectedWhileTheyAreTypedIn) {
  start("frmBanko");
  press(form, Qt::Key_F5);
  type(form, "4");
  EXPECT_FALSE(box("Text1_0")->hasSelectedText());
  type(form, "9");
  EXPECT_EQ(text("Text1_0"), "49");
  press(form, Qt::Key_Home);
  press(form, Qt::Key_Delete);
  type(form, "3");
  EXPECT_EQ(text("Text1_0"), "39") << "rewritten by its own rule";
}

TEST_F(NumberBoxes, AreNotSelectedWhenTheFocusOnlyComesBackFromABox) {
  start("frmRnd");
  type(form, "12");
  coverAndComeBack();
  type(form, "3");
  EXPECT_EQ(text("Text1"), "123");
}

TEST_F(NumberBoxes, AreNotSelectedWhenTheFocusOnlyComesBackFromAnotherProgram) {
  start("frmRnd");
  type(form, "12");
  QWidget otherProgram;
  otherProgram.show();
  otherProgram.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&otherProgram));
  form->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(form));
  type(form, "3");
  EXPECT_EQ(text("Text1"), "123");
}

TEST_F(NumberBoxes, AreNotSelectedWhenTheFocusOnlyComesBackFromAMenu) {
  start("frmBanko");
  press(form, Qt::Key_F5);
  type(form, "4");
  auto* menu = form->findChild<QMenu*>("mnuSecim");
  click(form->findChild<QMenuBar*>(),
        form->findChild<QMenuBar*>()->actionGeometry(menu->menuAction()).center());
  ASSERT_TRUE(waitFor([menu] { return menu->isVisible(); }));
  QTest::keyClick(menu, Qt::Key_Escape);
  ASSERT_TRUE(waitFor([menu] { return !menu->isVisible(); }));
  press(form, Qt::Key_Escape);  // leaves the menu bar
  ASSERT_TRUE(waitFor([this] { return box("Text1_0")->hasFocus(); }));
  type(form, "9");
  EXPECT_EQ(text("Text1_0"), "49");
}

TEST_F(NumberBoxes, AClickIntoThemPutsTheCaretThere) {
  start("frmCLPrint");
  click(box("Text2"));
  EXPECT_FALSE(box("Text2")->hasSelectedText());
}

}  // namespace
}  // namespace karvenis
