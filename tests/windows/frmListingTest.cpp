#include "listing/frmListing.h"

#include <QLabel>
#include <QRadioButton>

#include "doubles/Doubles.h"
#include "listing/frmCLPrint.h"
#include "listing/frmRLPrint.h"
#include "randomlist/frmRndLst.h"
#include "windows/WindowTest.h"

namespace karvenis {
namespace {

constexpr char bareTitle[] = "KARVENIS 2005 Randomizer";
constexpr char textQuestionR[] =
    "Rastgele Kolon Listesi'ni KARVENIS.TXT dosyasına yazdırmak istiyormusunuz ?";
constexpr char printQuestionR[] = "Rastgele Kolon Listesi'ni printere bastırmak istiyormusunuz ?";
constexpr char textQuestionC[] =
    "Kombinasyon Listesi'ni KARVENIS.TXT dosyasına yazdırmak istiyormusunuz ?";
constexpr char printQuestionC[] = "Kombinasyon Listesi'ni printere bastırmak istiyormusunuz ?";

class Listings : public WindowTest {
 protected:
  Form* dialog = nullptr;

  void openRL(std::int32_t count) {
    add<frmRLPrint>("frmRLPrint");
    world.files.folder["KARVENIS.RND"] = countedColumns(count);
    dialog = open("frmRLPrint");
  }
  void openCL(std::int32_t count) {
    add<frmCLPrint>("frmCLPrint");
    world.files.folder["KARVENIS.LST"] = countedColumns(count);
    dialog = open("frmCLPrint");
  }
  QString command() { return control<QPushButton>(dialog, "Command1")->text(); }
  QLineEdit* text(const char* name) { return control<QLineEdit>(dialog, QLatin1String(name)); }
  void pressCommand() {
    click(control(dialog, "Command1"));
    EXPECT_TRUE(waitFor([] { return !Application::instance().isDroppingInput(); }));
  }
  void expectWritten(const char* question, const char* title) {
    world.boxes.expectBeep()
        .expectQuestion(question, true, title)
        .expectBeep()
        .expectMessage(" 136 byte \"KARVENIS.TXT\" dosyasına yazıldı.", bareTitle);
  }
};

TEST_F(Listings, StartWithTheTextFile) {
  openRL(1);
  EXPECT_EQ(dialog->caption(), " Rastgele Kolonlar");
  EXPECT_TRUE(control<QRadioButton>(dialog, "Option1")->isChecked());
  EXPECT_EQ(command(), "Yaz");
  openCL(3);
  EXPECT_EQ(dialog->caption(), "Kombinasyon Listesi");
  EXPECT_TRUE(control<QRadioButton>(dialog, "Option1")->isChecked());
  EXPECT_EQ(command(), "Yaz");
  EXPECT_EQ(text("Text1")->text(), "1");
  EXPECT_EQ(text("Text2")->text(), "3");
}

TEST_F(Listings, SayWhatTheyAskFor) {
  openCL(3);
  const std::vector<std::pair<const char*, const char*>> captions = {
      {"Label1", "Başlangıç :"}, {"Label2", "Bitiş :"}, {"Label3", "Çıktı:"}};
  for (const auto& [name, caption] : captions) {
    EXPECT_EQ(fromQt(control<QLabel>(dialog, QLatin1String(name))->text()), caption);
  }
  const std::vector<std::pair<const char*, const char*>> buttons = {
      {"Option1", "Text Dosyası"}, {"Option2", "Printer"}, {"Command2", "Kapat"}};
  for (const auto& [name, caption] : buttons) {
    EXPECT_EQ(fromQt(control<QAbstractButton>(dialog, QLatin1String(name))->text()), caption);
  }
}

// The list behind was made larger while the closing box of the text was open; its redraw took the
// shared file number, which the listing then closed a second time.
TEST_F(Listings, OutliveARedrawOfTheListBehindTheirBox) {
  add<frmRndLst>("frmRndLst");
  world.files.folder["KARVENIS.RND"] = countedColumns(1);
  Form* list = open("frmRndLst");
  openRL(1);
  world.boxes.whileOpen = [&] { list->resize(list->size() + QSize(10, 10)); };
  expectWritten(textQuestionR, standardTitle);
  pressCommand();
  world.printer.refuses = true;
  click(control(dialog, "Option2"), {8, 8});
  world.boxes.expectBeep()
      .expectQuestion(printQuestionR, true)
      .expectBeep()
      .expectMessage("Printer hazır değil !", "! HATA !");
  pressCommand();
  world.boxes.whileOpen = nullptr;
}

TEST_F(Listings, TheOptionsNameTheCommand) {
  openRL(1);
  click(control(dialog, "Option2"), {8, 8});
  EXPECT_EQ(command(), "Bas");
  click(control(dialog, "Option1"), {8, 8});
  EXPECT_EQ(command(), "Yaz");
  press(dialog, Qt::Key_Down);
  EXPECT_EQ(command(), "Bas") << "an arrow key chooses the next option";
}

TEST_F(Listings, AnOptionThatIsChosenAlreadyIsNotChosenAgain) {
  openRL(1);
  for (const char* option : {"Option1", "Option2"}) {
    click(control(dialog, QLatin1String(option)), {8, 8});
    control<QPushButton>(dialog, "Command1")->setText("?");
    click(control(dialog, QLatin1String(option)), {8, 8});
    EXPECT_EQ(command(), "?") << option;
  }
}

TEST_F(Listings, WriteAndStayOpen) {
  openRL(1);
  expectWritten(textQuestionR, standardTitle);
  pressCommand();
  EXPECT_EQ(world.files.bytes("KARVENIS.TXT").size(), 136U);
  EXPECT_EQ(dialog->caption(), " Rastgele Kolonlar");
  EXPECT_NE(forms.find("frmRLPrint"), nullptr);
}

TEST_F(Listings, F1IsTheCommandAndRunsOnceHoweverLongItIsHeld) {
  openRL(1);
  expectWritten(textQuestionR, standardTitle);
  hold(dialog, Qt::Key_F1, 5);
}

TEST_F(Listings, EnterPressesTheCommandOnce) {
  openRL(1);
  EXPECT_TRUE(control(dialog, "Command1")->hasFocus());
  expectWritten(textQuestionR, standardTitle);
  hold(dialog, Qt::Key_Return, 5);
}

TEST_F(Listings, Print) {
  openRL(2);
  click(control(dialog, "Option2"), {8, 8});
  world.boxes.expectBeep().expectQuestion(printQuestionR, true);
  pressCommand();
  EXPECT_EQ(world.printed().back(), "end");
  openCL(2);
  click(control(dialog, "Option2"), {8, 8});
  world.boxes.expectBeep()
      .expectQuestion(printQuestionC, true, bareTitle)
      .expectBeep()
      .expectMessage("Printer hazır değil !", errorTitle);
  world.printer.refuses = true;
  pressCommand();
  EXPECT_NE(forms.find("frmCLPrint"), nullptr);
}

TEST_F(Listings, HelpAndClose) {
  openRL(1);
  world.boxes.expectBeep().expectMessage("F1= Yaz/Bas\r\rESC= Kapat", " FONKSİYON TUŞLARI");
  press(dialog, Qt::Key_F10);
  press(dialog, Qt::Key_Escape);
  EXPECT_EQ(forms.find("frmRLPrint"), nullptr);
  openCL(1);
  click(control(dialog, "Command2"));
  EXPECT_EQ(forms.find("frmCLPrint"), nullptr);
}

TEST_F(Listings, EnterLeadsThroughTheRange) {
  openCL(3);
  EXPECT_TRUE(text("Text1")->hasFocus());
  press(dialog, Qt::Key_Return);
  EXPECT_TRUE(text("Text2")->hasFocus());
  press(dialog, Qt::Key_Return);
  EXPECT_TRUE(control(dialog, "Command1")->hasFocus()) << "and nothing is written yet";
}

TEST_F(Listings, AHeldEnterLeadsOneStep) {
  openCL(3);
  hold(dialog, Qt::Key_Return, 5);
  EXPECT_TRUE(text("Text2")->hasFocus());
}

TEST_F(Listings, ActivationTakesTheCountButKeepsTheStart) {
  openCL(30);
  text("Text1")->setText("7");
  text("Text2")->setText("9");
  world.files.folder["KARVENIS.LST"] = countedColumns(12);
  dialog->Form_Activate();
  EXPECT_EQ(text("Text1")->text(), "7");
  EXPECT_EQ(text("Text2")->text(), "12");
  world.files.folder.clear();
  dialog->Form_Activate();
  EXPECT_EQ(text("Text2")->text(), "0");
}

TEST_F(Listings, NumbersAreWrittenBackBeforeTheQuestion) {
  openCL(30);
  text("Text1")->setText(" 2.6 a");
  text("Text2")->setText("abc");
  world.boxes.expectBeep().expectQuestion(textQuestionC, false, bareTitle);
  world.boxes.whileOpen = [this] {
    EXPECT_EQ(text("Text1")->text(), "3");
    EXPECT_EQ(text("Text2")->text(), "0");
  };
  pressCommand();
}

TEST_F(Listings, ARefusedEndGetsTheFocus) {
  openCL(30);
  text("Text1")->setText("abc");
  text("Text2")->setText("99");
  world.boxes.expectBeep()
      .expectQuestion(textQuestionC, true, bareTitle)
      .expectWarning("Başlangıç numarası GEÇERSİZ !", errorTitle);
  pressCommand();
  EXPECT_TRUE(text("Text1")->hasFocus());
  text("Text1")->setText("5");
  world.boxes.expectBeep()
      .expectQuestion(textQuestionC, true, bareTitle)
      .expectWarning("Bitiş Numarası GEÇERSİZ !", errorTitle);
  pressCommand();
  EXPECT_TRUE(text("Text2")->hasFocus());
  EXPECT_FALSE(world.files.exists("KARVENIS.TXT"));
}

}  // namespace
}  // namespace karvenis
