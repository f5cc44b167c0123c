#include "platform/qt/NumberField.h"

#include <QMenuBar>
#include <QMessageBox>
#include <QRadioButton>

#include "AllWindows.h"
#include "core/ColumnFile.h"
#include "doubles/Columns.h"
#include "doubles/Sets.h"
#include "windows/WindowTest.h"

// When the number in a field is selected, so that the first digit replaces it: in every window that
// has such fields, with real keys.

namespace karvenis {
namespace {

class NumberFields : public WindowTest {
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
  NumberField* field(const char* name) const {
    return control<NumberField>(form, QLatin1String(name));
  }
  std::string text(const char* name) const { return fromQt(field(name)->text()); }
  /// What another window over the form's does to its focus, until it closes.
  void coverAndComeBack() const {
    QMessageBox other(form);
    other.open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    other.reject();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    ASSERT_TRUE(field("Text1")->hasFocus());
  }
};

TEST_F(NumberFields, AreSelectedWhenTheirWindowOpens) {
  start("frmRnd");
  type(form, "5");
  EXPECT_EQ(text("Text1"), "5");
  start("frmCLPrint");
  type(form, "7");
  EXPECT_EQ(text("Text1"), "7");
}

TEST_F(NumberFields, AreNotSelectedWhenTheDesktopShowsTheirWindowAgain) {
  start("frmRnd");
  type(form, "5");
  QShowEvent shown;
  QSpontaneKeyEvent::setSpontaneous(&shown);
  qApp->notify(field("Text1"),
               &shown);  // not sendEvent(), which marks each event as the program's own
  type(form, "6");
  EXPECT_EQ(text("Text1"), "56");
}

TEST_F(NumberFields, AreSelectedWhenTheirWindowOpensOverNoList) {
  world.files.folder.clear();
  start("frmRnd");
  type(form, "500");
  EXPECT_EQ(text("Text1"), "500");
}

TEST_F(NumberFields, AreSelectedWhenTabOrEnterLeadsThere) {
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

TEST_F(NumberFields, OfTheBankosAreSelectedWhenEnterLeadsThere) {
  setBanko(world.state, {30, 7});
  start("frmBanko");
  click(field("Text1_0"));
  press(form, Qt::Key_Return);
  type(form, "8");
  EXPECT_EQ(text("Text1_1"), "8");
}

TEST_F(NumberFields, AreSelectedAfterARefusal) {
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

TEST_F(NumberFields, OfTheGeneratorAreSelectedAfterARefusal) {
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

TEST_F(NumberFields, OfTheDeletionAreSelectedAfterARefusal) {
  start("frmRndDel");
  world.boxes.expectWarning("Silinecek kolon numarası geçersiz! En çok 30 olabilir.",
                            "! DİKKAT ! Geçersiz Kolon Numarası");
  type(form, "99");
  press(form, Qt::Key_Return);
  type(form, "2");
  EXPECT_EQ(text("Text1"), "2");
}

TEST_F(NumberFields, AreSelectedWhenAnOptionHasRewrittenThem) {
  start("frmRnd");
  QCoreApplication::processEvents();  // the toolkit clears selections once, when a window opens
  for (const auto& [option, number] : {std::pair("Option1", "30"), std::pair("Option2", "32737")}) {
    click(control(form, QLatin1String(option)), {10, 10});
    EXPECT_EQ(fromQt(field("Text1")->selectedText()), number);
  }
}

TEST_F(NumberFields, AreSelectedWhenTheirBankoWasApplied) {
  setBanko(world.state, {12});
  start("frmBanko");
  click(field("Text1_0"));
  world.boxes.expectBeep();
  press(form, Qt::Key_F1);
  type(form, "5");
  EXPECT_EQ(text("Text1_0"), "5");
}

TEST_F(NumberFields, AreNotSelectedWhileTheyAreTypedIn) {
  start("frmBanko");
  press(form, Qt::Key_F5);
  type(form, "4");
  EXPECT_FALSE(field("Text1_0")->hasSelectedText());
  type(form, "9");
  EXPECT_EQ(text("Text1_0"), "49");
  press(form, Qt::Key_Home);
  press(form, Qt::Key_Delete);
  type(form, "3");
  EXPECT_EQ(text("Text1_0"), "39") << "rewritten by its own rule";
}

TEST_F(NumberFields, AreNotSelectedWhenTheFocusOnlyComesBackFromABox) {
  start("frmRnd");
  type(form, "12");
  coverAndComeBack();
  type(form, "3");
  EXPECT_EQ(text("Text1"), "123");
}

TEST_F(NumberFields, AreNotSelectedWhenTheFocusOnlyComesBackFromAnotherProgram) {
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

TEST_F(NumberFields, AreNotSelectedWhenTheFocusOnlyComesBackFromAMenu) {
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
  ASSERT_TRUE(waitFor([this] { return field("Text1_0")->hasFocus(); }));
  type(form, "9");
  EXPECT_EQ(text("Text1_0"), "49");
}

TEST_F(NumberFields, AClickIntoThemPutsTheCaretThere) {
  start("frmCLPrint");
  click(field("Text2"));
  EXPECT_FALSE(field("Text2")->hasSelectedText());
}

}  // namespace
}  // namespace karvenis
