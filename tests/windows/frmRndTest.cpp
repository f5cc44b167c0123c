#include "comblist/frmRnd.h"

#include <QLabel>
#include <QRadioButton>

#include "windows/KeySoon.h"
#include "windows/WindowTest.h"

namespace karvenis {
namespace {

class FrmRnd : public WindowTest {
 protected:
  Form* form = nullptr;

  void SetUp() override {
    add<Opener>("opener");
    add<frmRnd>("frmRnd");
    open("opener");
  }
  void start(std::size_t records = 0) {
    if (records > 0) putList(records);
    form = open("frmRnd");
    ASSERT_NE(form, nullptr);
  }
  void putList(std::size_t records) {
    world.files.folder[combinationList] = columnBytes(std::vector<ColumnRecord>(records));
  }
  std::size_t records() const { return columnsOf(world.files.bytes(combinationList)).size(); }
  QLineEdit* text1() const { return control<QLineEdit>(form, "Text1"); }
  QRadioButton* option(int k) const {
    return control<QRadioButton>(form, "Option" + QString::number(k));
  }
  void clickOption(int k) const { click(option(k), QPoint(10, option(k)->height() / 2)); }
  void put(const QString& text) {
    text1()->setFocus();
    text1()->selectAll();
    type(form, text);
  }
  bool isOpen() const { return forms.find("frmRnd") != nullptr; }

  /// The window that the generator is opened from.
  class Opener final : public Form {
   public:
    explicit Opener(Surroundings& around) : Form(around.windows) {}
    void Form_Activate() override { ++activations; }
    void Form_KeyDown(int, int) override { ++keys; }
    int activations = 0;
    int keys = 0;
  };
  Opener* opener() { return dynamic_cast<Opener*>(forms.find("opener")); }
};

TEST_F(FrmRnd, ShowsItsTextsAndAllBallsCountWithoutAList) {
  start();
  EXPECT_EQ(form->caption(), "6/49 Rastgele Kolon Üreteci");
  EXPECT_EQ(control<QLabel>(form, "Label1")->text(), "Kolon Sayısı:");
  EXPECT_EQ(text1()->text(), "32767");
  EXPECT_EQ(text1()->toolTip(), "Rastgele küme oluşturmak için en çok deneme sayısı.");
  EXPECT_EQ(option(1)->text(), "Yeni Liste");
  EXPECT_TRUE(option(1)->isChecked());
  EXPECT_EQ(option(2)->text(), "Mevcut Listeye Ekle");
  EXPECT_FALSE(option(2)->isEnabled());
  EXPECT_EQ(control<QPushButton>(form, "Command1")->text(), "Oluştur");
  EXPECT_EQ(control<QPushButton>(form, "Command2")->text(), "Kapat");
  EXPECT_EQ(control<QLabel>(form, "Label2")->text(), "KARVENIS.LST dosyasına kayıtlanacak.");
  EXPECT_EQ(control<QLabel>(form, "Label2")->toolTip(),
            "Kombinasyon Listesi dosyasına kayıtlanacak.");
  EXPECT_NE(control(form, "Line1"), nullptr);
  EXPECT_EQ(form->focusWidget(), text1());
}

TEST_F(FrmRnd, AListThatHasRoomIsOfferedForAppending) {
  start(500);
  EXPECT_TRUE(option(2)->isEnabled());
  EXPECT_TRUE(option(2)->isChecked());
  EXPECT_EQ(text1()->text(), "32267");
}

TEST_F(FrmRnd, AFullListCanOnlyBeReplaced) {
  start(32767);
  EXPECT_FALSE(option(2)->isEnabled());
  EXPECT_TRUE(option(1)->isChecked());
  EXPECT_EQ(text1()->text(), "32767");
}

TEST_F(FrmRnd, TheOptionsSetTheCount) {
  start(500);
  clickOption(1);
  EXPECT_EQ(text1()->text(), "500");
  put("3");
  clickOption(1);
  EXPECT_EQ(text1()->text(), "500") << "also a click on the chosen option";
  clickOption(2);
  EXPECT_EQ(text1()->text(), "32267");
  option(2)->setFocus();
  press(form, Qt::Key_Up);
  EXPECT_TRUE(option(1)->isChecked());
  EXPECT_EQ(text1()->text(), "500") << "also by the arrow keys";
}

TEST_F(FrmRnd, TabLeadsToTheChosenOptionAlone) {
  start(500);
  ASSERT_TRUE(option(2)->isChecked());
  press(form, Qt::Key_Tab);
  EXPECT_EQ(form->focusWidget(), option(2));
  press(form, Qt::Key_Tab);
  EXPECT_EQ(form->focusWidget(), control(form, "Command1"));
  option(1)->setChecked(true);  // as assistive technology does
  press(form, Qt::Key_Backtab);
  EXPECT_EQ(form->focusWidget(), option(1));
  press(form, Qt::Key_Backtab);
  EXPECT_EQ(form->focusWidget(), text1());
}

TEST_F(FrmRnd, ASmallCountForAFirstListIsTakenForASlip) {
  start();
  put("8");
  clickOption(1);
  EXPECT_EQ(text1()->text(), "8");
  put("7");
  clickOption(1);
  EXPECT_EQ(text1()->text(), "32767");
}

TEST_F(FrmRnd, F1MakesANewListAndClosesTheWindow) {
  start();
  put("100");
  std::string duringBox;
  world.boxes.whileOpen = [&] { duringBox = form->caption(); };
  world.boxes.expectBeep().expectMessage(" 100 kolon 'KARVENIS.LST' dosyasına kayıtlandı.");
  press(form, Qt::Key_F1);
  EXPECT_EQ(records(), 100U);
  EXPECT_EQ(duringBox, "KOLON= 100");
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(opener()->activations, 2);
}

TEST_F(FrmRnd, TheButtonAppends) {
  start(500);
  put("2");
  world.boxes.expectBeep().expectMessage(" 2 kolon 'KARVENIS.LST' dosyasına eklendi.");
  click(control(form, "Command1"));
  EXPECT_EQ(records(), 502U);
  EXPECT_FALSE(isOpen());
}

TEST_F(FrmRnd, EnterOnTheButtonPressesIt) {
  start();
  put("1");
  control(form, "Command1")->setFocus();
  world.boxes.expectBeep().expectMessage(" 1 kolon 'KARVENIS.LST' dosyasına kayıtlandı.");
  press(form, Qt::Key_Return);
  EXPECT_FALSE(isOpen());
}

TEST_F(FrmRnd, ARefusedCountKeepsTheWindowAndLeadsBackToTheBox) {
  start();
  put("32768");
  control(form, "Command1")->setFocus();
  world.boxes.expectWarning("En az 1 ve en çok 32767 kolon kayıtlayabilirsiniz!", "! DİKKAT !");
  press(form, Qt::Key_F1);
  EXPECT_TRUE(isOpen());
  EXPECT_EQ(form->focusWidget(), text1());
  EXPECT_EQ(text1()->text(), "32768");
  EXPECT_EQ(form->caption(), "6/49 Rastgele Kolon Üreteci");
}

TEST_F(FrmRnd, NothingToAppendBeepsAndLeadsBackToTheBox) {
  start(5);
  put("0");
  control(form, "Command1")->setFocus();
  world.boxes.expectBeep();
  press(form, Qt::Key_F1);
  EXPECT_TRUE(isOpen());
  EXPECT_EQ(form->focusWidget(), text1());
}

TEST_F(FrmRnd, NoKeepsTheWindowTheListAndTheTypedCount) {
  start(5);
  clickOption(1);
  put("7");
  world.boxes.expectQuestion("Mevcut kombinasyon listesini yenisi ile değiştirmek istiyormusunuz?",
                             false);
  press(form, Qt::Key_F1);
  EXPECT_TRUE(isOpen());
  EXPECT_EQ(text1()->text(), "7");
  EXPECT_EQ(records(), 5U);
}

TEST_F(FrmRnd, F10ShowsTheKeys) {
  start();
  world.boxes.expectBeep().expectMessage("F1= Oluştur\r\rESC= İptal/Kapat", " FONKSİYON TUŞLARI");
  press(form, Qt::Key_F10);
  EXPECT_TRUE(isOpen());
}

TEST_F(FrmRnd, AHeldF1RunsOnce) {
  start();
  put("0");
  world.boxes.expectWarning("En az 1 ve en çok 32767 kolon kayıtlayabilirsiniz!", "! DİKKAT !");
  hold(form, Qt::Key_F1, 5);
}

TEST_F(FrmRnd, OtherKeysDoNothing) {
  start();
  for (const Qt::Key key : {Qt::Key_F2, Qt::Key_F11, Qt::Key_Return, Qt::Key_PageDown}) {
    press(form, key);
  }
  EXPECT_TRUE(isOpen());
  EXPECT_EQ(text1()->text(), "32767");
  EXPECT_TRUE(world.files.folder.empty());
}

TEST_F(FrmRnd, EscAndTheButtonClose) {
  start();
  press(form, Qt::Key_Escape);
  EXPECT_FALSE(isOpen());
  start();
  click(control(form, "Command2"));
  EXPECT_FALSE(isOpen());
}

TEST_F(FrmRnd, AnOpenOneKeepsItsCountAndAFreshOneCountsAnew) {
  start(10);
  clickOption(1);
  put("7");
  putList(20);
  forms.show("opener");
  ASSERT_TRUE(QTest::qWaitForWindowActive(forms.find("opener")));
  start();
  EXPECT_EQ(text1()->text(), "32757") << "shown again: the count of its loading";
  EXPECT_TRUE(option(2)->isChecked());
  press(form, Qt::Key_Escape);
  settle();
  start();
  EXPECT_EQ(text1()->text(), "32747");
}

TEST_F(FrmRnd, AnActivationSetsTheCountAlsoIfAppendingIsChosenAlready) {
  start(10);
  put("7");
  forms.show("opener");
  ASSERT_TRUE(QTest::qWaitForWindowActive(forms.find("opener")));
  start();
  EXPECT_EQ(text1()->text(), "32757");
}

TEST_F(FrmRnd, KeysThatCameDuringTheRunAreNoCommandsAfterIt) {
  start();
  put("3");
  world.boxes.whileOpen = [&] { pressSoon(forms.find("opener"), Qt::Key_F1); };
  world.boxes.expectBeep().expectMessage(" 3 kolon 'KARVENIS.LST' dosyasına kayıtlandı.");
  press(form, Qt::Key_F1);
  EXPECT_TRUE(Application::instance().isDroppingInput());
  EXPECT_TRUE(waitFor([] { return !Application::instance().isDroppingInput(); }));
  EXPECT_EQ(opener()->keys, 0);
  press(opener(), Qt::Key_F1);
  EXPECT_EQ(opener()->keys, 1);
}

TEST_F(FrmRnd, NothingIsCutOff) {
  start(500);
  for (const char* name : {"Label1", "Text1", "Option1", "Option2", "Label2", "Command1"}) {
    const QWidget* part = control(form, name);
    EXPECT_GE(part->width(), part->minimumSizeHint().width()) << name;
    EXPECT_TRUE(form->rect().contains(part->geometry())) << name;
  }
}

}  // namespace
}  // namespace karvenis
