#include "comblist/frmRnd.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "platform/qt/NumberField.h"
#include "platform/qt/Text.h"

using namespace Qt::StringLiterals;

namespace karvenis {
namespace {

constexpr int titleWidth = 350;  // with it the frame shows the whole title

}  // namespace

frmRnd::frmRnd(Surroundings& around)
    : Form(around.windows), boxes_(around.boxes), generator_(around, *this) {
  setCaption(generatorTitle);
  auto* whole = new QVBoxLayout(this);
  whole->setSizeConstraint(QLayout::SetFixedSize);
  whole->addLayout(buildCount());
  whole->addLayout(buildOptions());
  Line1 = control<QFrame>(u"Line1"_s);
  Line1->setFrameStyle(QFrame::HLine | QFrame::Sunken);
  Line1->setMinimumWidth(titleWidth);
  whole->addWidget(Line1);
  Label2 = control<QLabel>(u"Label2"_s, u"KARVENIS.LST dosyasına kayıtlanacak."_s);
  Label2->setToolTip(u"Kombinasyon Listesi dosyasına kayıtlanacak."_s);
  whole->addWidget(Label2);
  whole->addLayout(buildCommands());
  Text1->setFocus();
}

QLayout* frmRnd::buildCount() {
  Label1 = control<QLabel>(u"Label1"_s, u"Kolon Sayısı:"_s);
  Text1 = control<NumberField>(u"Text1"_s, u"32767"_s);
  Text1->setToolTip(u"Rastgele küme oluşturmak için en çok deneme sayısı."_s);
  Label1->setBuddy(Text1);
  auto* row = new QHBoxLayout;
  row->addWidget(Label1);
  row->addWidget(Text1);
  return row;
}

QLayout* frmRnd::buildOptions() {
  Option1 = control<QRadioButton>(u"Option1"_s, u"Yeni Liste"_s);
  Option2 = control<QRadioButton>(u"Option2"_s, u"Mevcut Listeye Ekle"_s);
  Option1->setChecked(true);
  onOption(Option1, &frmRnd::Option1_Click);
  onOption(Option2, &frmRnd::Option2_Click);
  auto* column = new QVBoxLayout;
  column->addWidget(Option1);
  column->addWidget(Option2);
  return column;
}

/// Runs `procedure` whenever the option is chosen, and also if a click chooses it again.
void frmRnd::onOption(QRadioButton* option, void (frmRnd::*procedure)()) {
  on(option, &QRadioButton::clicked, [this, procedure] { (this->*procedure)(); });
  onChosen(option, [this, procedure] { (this->*procedure)(); });
}

QLayout* frmRnd::buildCommands() {
  Command1 = command("Command1", u"Oluştur", u"", [this] { Command1_Click(); });
  Command2 = command("Command2", u"Kapat", u"", [this] { Command2_Click(); });
  return commandRow({Command1, Command2});
}

void frmRnd::Form_Activate() {
  Option2->setEnabled(generator_.canAppend());
  if (!generator_.canAppend()) return;
  Text1->write(toQt(generator_.countForAppend()));
  Option2->setChecked(true);
}

void frmRnd::Form_KeyDown(int KeyCode, int) {
  switch (KeyCode) {
    case keyEscape:
      return unload();
    case keyF1:
      return Command1_Click();
    case keyF10:
      boxes_.beep();
      return boxes_.message("F1= Oluştur\r\rESC= İptal/Kapat", functionKeysTitle);
    default:
      return;
  }
}

void frmRnd::Option1_Click() {
  Text1->write(toQt(generator_.countForNewList(fromQt(Text1->text()))));
}

void frmRnd::Option2_Click() { Text1->write(toQt(generator_.countForAppend())); }

void frmRnd::Command2_Click() { unload(); }

void frmRnd::Command1_Click() {
  const auto mode = Option1->isChecked() ? Generator::Mode::newList : Generator::Mode::append;
  switch (generator_.start(mode, fromQt(Text1->text()))) {
    case Generator::Outcome::refused:
      return Text1->askAgain();
    case Generator::Outcome::kept:
      return;
    case Generator::Outcome::done:
      return unload();
  }
}

}  // namespace karvenis
