#include "randomlist/frmRndDel.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "core/Numbers.h"
#include "platform/qt/Text.h"
#include "platform/qt/TextBox.h"

using namespace Qt::StringLiterals;

namespace karvenis {

frmRndDel::frmRndDel(Surroundings& around)
    : Form(around.windows, "frmRndDel"),
      deletion_(around),
      Label1(control<QLabel>(u"Label1"_s, u"Silmek istediğiniz kolon numarasını girin."_s)),
      Text1(control<TextBox>(u"Text1"_s)),
      Command1(command("Command1", u"Tamam", u"", [this] { Command1_Click(); })),
      Command2(command("Command2", u"İptal", u"", [this] { Command2_Click(); })) {
  setCaption(" Kolon Silme");
  buildLayout();
  onEnter(Text1, [this] { Text1_KeyPress(); });
  Text1->setFocus();
}

void frmRndDel::buildLayout() {
  Label1->setBuddy(Text1);
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(18, 16, 18, 16);
  grid->setVerticalSpacing(12);
  grid->setHorizontalSpacing(8);
  grid->addWidget(Label1, 0, 0, 1, 3);
  grid->addWidget(Text1, 1, 0, 1, 3);
  grid->setColumnStretch(0, 1);
  grid->addWidget(Command1, 2, 1);
  grid->addWidget(Command2, 2, 2);
  grid->setSizeConstraint(QLayout::SetFixedSize);
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
    Text1->setFocus();
  }
}

void frmRndDel::Command2_Click() { unload(); }

}  // namespace karvenis
