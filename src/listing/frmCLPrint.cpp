#include "listing/frmCLPrint.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "core/Numbers.h"
#include "platform/qt/NumberField.h"
#include "platform/qt/Text.h"

using namespace Qt::StringLiterals;

namespace karvenis {

frmCLPrint::frmCLPrint(Surroundings& around)
    : frmListing(around, combinationListing),
      Label1(control<QLabel>(u"Label1"_s, u"Başlangıç :"_s)),
      Text1(control<NumberField>(u"Text1"_s, u"1"_s)),
      Label2(control<QLabel>(u"Label2"_s, u"Bitiş :"_s)),
      Text2(control<NumberField>(u"Text2"_s)) {
  Label1->setBuddy(Text1);
  Label2->setBuddy(Text2);
  auto* grid = new QGridLayout(this);
  grid->addWidget(Label1, 0, 0);
  grid->addWidget(Text1, 0, 1);
  grid->addWidget(Label2, 1, 0);
  grid->addWidget(Text2, 1, 1);
  layOut(grid);
  onEnter(Text1, [this] { Text1_KeyPress(); });
  onEnter(Text2, [this] { Text2_KeyPress(); });
  Text1->setFocus();
}

void frmCLPrint::Form_Activate() {
  Text2->setText(QString::number(columnCountOrNone(around_.files, combinationList)));
}

void frmCLPrint::Text1_KeyPress() { Text2->setFocus(); }
void frmCLPrint::Text2_KeyPress() { Command1->setFocus(); }

void frmCLPrint::Command1_Click() {
  const ListRange range{.first = typedNumber32(fromQt(Text1->text())),
                        .last = typedNumber32(fromQt(Text2->text()))};
  Text1->setText(QString::number(range.first));
  Text2->setText(QString::number(range.last));
  switch (listCombinations(around_, *this, output(), range)) {
    case RangeRefusal::first:
      return Text1->askAgain();
    case RangeRefusal::last:
      return Text2->askAgain();
    case RangeRefusal::none:
      return;
  }
}

}  // namespace karvenis
