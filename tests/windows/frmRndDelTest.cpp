#include "randomlist/frmRndDel.h"

#include <QLabel>

#include "core/Numbers.h"
#include "doubles/Doubles.h"
#include "randomlist/frmRndLst.h"
#include "windows/WindowTest.h"

namespace karvenis {
namespace {

class FrmRndDel : public WindowTest {
 protected:
  Form* dialog = nullptr;

  void openOver(std::int32_t count) {
    add<frmRndDel>("frmRndDel");
    world.files.folder["KARVENIS.RND"] = countedColumns(count);
    if (count > 0) world.boxes.expectBeep();
    dialog = open("frmRndDel");
  }
  QLineEdit* number() { return control<QLineEdit>(dialog, "Text1"); }
  void expectRefusal(int count) {
    world.boxes.expectWarning(
        "Silinecek kolon numarası geçersiz! En çok" + withBlank(count) + " olabilir.",
        "! DİKKAT ! Geçersiz Kolon Numarası");
  }
  bool isOpen() const { return forms.find("frmRndDel") != nullptr; }
  std::size_t columnsLeft() const { return columnsOf(world.files.bytes("KARVENIS.RND")).size(); }
};

TEST_F(FrmRndDel, AsksForANumber) {
  openOver(3);
  EXPECT_EQ(dialog->caption(), " Kolon Silme");
  EXPECT_EQ(control<QLabel>(dialog, "Label1")->text(),
            "Silmek istediğiniz kolon numarasını girin.");
  EXPECT_EQ(control<QPushButton>(dialog, "Command1")->text(), "Tamam");
  EXPECT_EQ(control<QPushButton>(dialog, "Command2")->text(), "İptal");
  EXPECT_TRUE(number()->hasFocus());
  EXPECT_EQ(number()->text(), "");
}

TEST_F(FrmRndDel, TakesEveryCharacterAsItIsTyped) {
  openOver(3);
  QString typed;
  for (char c = ' '; c <= '~'; ++c) typed += QLatin1Char(c);
  typed += typed;
  type(dialog, typed);
  EXPECT_EQ(number()->text(), typed);
}

TEST_F(FrmRndDel, AFileInSmallLettersIsNoneOfTheirs) {
  add<frmRndDel>("frmRndDel");
  world.files.folder["karvenis.rnd"] = countedColumns(2);
  forms.show("frmRndDel");
  EXPECT_EQ(forms.find("frmRndDel"), nullptr);
}

TEST_F(FrmRndDel, ClosesItselfWithoutAFile) {
  add<frmRndDel>("frmRndDel");
  world.files.folder["KARVENIS.YND"] = countedColumns(2);
  EXPECT_EQ(open("frmRndDel"), nullptr);
  EXPECT_TRUE(world.files.folder.empty());
}

TEST_F(FrmRndDel, EnterDeletesOnceAndCloses) {
  openOver(3);
  type(dialog, "2");
  press(dialog, Qt::Key_Return);
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(columnsLeft(), 2U);
}

TEST_F(FrmRndDel, AHeldEnterWarnsOnce) {
  openOver(3);
  type(dialog, "9");
  expectRefusal(3);
  hold(dialog, Qt::Key_Return, 4);
  EXPECT_TRUE(isOpen());
}

TEST_F(FrmRndDel, EnterOnTamamDeletesOnce) {
  openOver(3);
  type(dialog, "1");
  press(dialog, Qt::Key_Tab);
  EXPECT_TRUE(control(dialog, "Command1")->hasFocus());
  press(dialog, Qt::Key_Enter);
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(columnsLeft(), 2U);
}

TEST_F(FrmRndDel, TamamDeletes) {
  openOver(1);
  type(dialog, "1");
  click(control(dialog, "Command1"));
  EXPECT_FALSE(isOpen());
  EXPECT_TRUE(world.files.folder.empty());
}

TEST_F(FrmRndDel, IptalAndEscClose) {
  openOver(3);
  click(control(dialog, "Command2"));
  EXPECT_FALSE(isOpen());
  settle();
  world.boxes.expectBeep();
  dialog = open("frmRndDel");
  press(dialog, Qt::Key_Escape);
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(columnsLeft(), 3U);
}

struct Typed {
  const char* text;
  const char* taken;
};

TEST_F(FrmRndDel, WritesTheNumberBackBeforeItRefuses) {
  openOver(1);
  for (const Typed& row :
       {Typed{"", "0"}, Typed{"0", "0"}, Typed{"abc", "0"}, Typed{"2.6", "3"}, Typed{"2.5", "2"},
        Typed{"-1", "-1"}, Typed{" 1 2 x", "12"}, Typed{"99999999999", "2147483647"}}) {
    number()->setText(row.text);
    control(dialog, "Command1")->setFocus();
    expectRefusal(1);
    click(control(dialog, "Command1"));
    EXPECT_EQ(number()->text(), row.taken) << row.text;
    EXPECT_TRUE(number()->hasFocus());
    EXPECT_TRUE(isOpen());
  }
  EXPECT_EQ(columnsLeft(), 1U);
}

TEST_F(FrmRndDel, TheListBehindItStaysUsableAndShowsTheShortenedFile) {
  add<frmRndLst>("frmRndLst");
  add<frmRndDel>("frmRndDel");
  world.files.folder["KARVENIS.RND"] = countedColumns(60);
  Form* list = open("frmRndLst");
  world.boxes.expectBeep(2);
  press(list, Qt::Key_F3);
  dialog = forms.find("frmRndDel");
  ASSERT_NE(dialog, nullptr);
  open("frmRndLst");
  press(list, Qt::Key_End);
  EXPECT_TRUE(linesOf(list).front().starts_with("Kolon - 36 : "));
  open("frmRndDel");
  number()->setText("60");
  press(dialog, Qt::Key_Return);
  EXPECT_FALSE(isOpen());
  EXPECT_TRUE(linesOf(list).front().starts_with("Kolon - 1 : "));
  EXPECT_EQ(columnsLeft(), 59U);
}

TEST_F(FrmRndDel, OutlivesItsList) {
  add<frmRndLst>("frmRndLst");
  add<frmRndDel>("frmRndDel");
  world.files.folder["KARVENIS.RND"] = countedColumns(3);
  Form* list = open("frmRndLst");
  world.boxes.expectBeep(2);
  press(list, Qt::Key_F3);
  dialog = forms.find("frmRndDel");
  list->unload();
  settle();
  number()->setText("3");
  click(control(dialog, "Command1"));
  EXPECT_EQ(columnsLeft(), 2U);
}

}  // namespace
}  // namespace karvenis
