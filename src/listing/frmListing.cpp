#include "listing/frmListing.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace karvenis {

frmListing::frmListing(Surroundings& around, const Listing& listing)
    : Form(around.windows),
      around_(around),
      Label3(control<QLabel>(u"Label3"_s, u"Çıktı:"_s)),
      Option1(control<QRadioButton>(u"Option1"_s, u"Text Dosyası"_s)),
      Option2(control<QRadioButton>(u"Option2"_s, u"Printer"_s)),
      Command1(command("Command1", u"Yaz", u"", [this] { Command1_Click(); })),
      Command2(command("Command2", u"Kapat", u"", [this] { Command2_Click(); })) {
  setCaption(listing.title);
  Option1->setChecked(true);
  onChosen(Option1, [this] { Option1_Click(); });
  onChosen(Option2, [this] { Option2_Click(); });
}

void frmListing::layOut(QGridLayout* grid) {
  const int row = grid->rowCount();
  grid->addWidget(Label3, row, 0);
  grid->addWidget(Option1, row, 1);
  grid->addWidget(Option2, row + 1, 1);
  grid->addLayout(commandRow({Command1, Command2}), row + 2, 0, 1, 2);
  grid->setColumnMinimumWidth(1, 200);
  grid->setSizeConstraint(QLayout::SetFixedSize);
}

void frmListing::Form_KeyDown(int KeyCode, int) {
  switch (KeyCode) {
    case keyEscape:
      return unload();
    case keyF1:
      return Command1_Click();
    case keyF10:
      around_.boxes.beep();
      return around_.boxes.message("F1= Yaz/Bas\r\rESC= Kapat", functionKeysTitle);
    default:
      return;
  }
}

Output frmListing::output() const { return Option1->isChecked() ? Output::text : Output::printer; }

void frmListing::Option1_Click() { Command1->setText(u"Yaz"_s); }
void frmListing::Option2_Click() { Command1->setText(u"Bas"_s); }
void frmListing::Command2_Click() { unload(); }

}  // namespace karvenis
