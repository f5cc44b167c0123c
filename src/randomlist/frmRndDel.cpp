#include "randomlist/frmRndDel.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/Numbers.h"
#include "platform/qt/NumberField.h"
#include "platform/qt/Text.h"

using namespace Qt::StringLiterals;

namespace karvenis {

frmRndDel::frmRndDel(Surroundings& around)
    : Form(around.windows),
      deletion_(around),
      Label1(control<QLabel>(u"Label1"_s, u"Silmek istediğiniz kolon numarasını girin."_s)),
      Text1(control<NumberField>(u"Text1"_s)),
      Command1(command("Command1", u"Tamam", u"", [this] { Command1_Click(); })),
      Command2(command("Command2", u"İptal", u"", [this] { Command2_Click(); })) {
  setCaption(" Kolon Silme");
  buildLayout();
  onEnter(Text1, [this] { Text1_KeyPress(); });
  Text1->setFocus();
}

void frmRndDel::buildLayout() {
  Label1->setBuddy(Text1);
  auto* whole = new QVBoxLayout(this);
  whole->setSizeConstraint(QLayout::SetFixedSize);
  whole->addWidget(Label1);
  whole->addWidget(Text1);
  whole->addLayout(commandRow({Command1, Command2}));
}

void frmRndDel::Form_Load() {
  if (!deletion_.load()) unload();
}

void frmRndDel::Form_KeyPress(int KeyAscii) {
  if (KeyAscii == keyEscape) unload();
}

void frmRndDel::Text1_KeyPress() { Command1_Click(); }

void frmRndDel::Command1_Click() {
  const std::int32_t DelNo = typedNumber32(fromQt(Text1->text()));
  Text1->setText(QString::number(DelNo));
  if (deletion_.remove(DelNo)) {
    unload();
  } else {
    Text1->askAgain();
  }
}

void frmRndDel::Command2_Click() { unload(); }

}  // namespace karvenis
