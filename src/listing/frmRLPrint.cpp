#include "listing/frmRLPrint.h"

#include <QGridLayout>
#include <QPushButton>

namespace karvenis {

frmRLPrint::frmRLPrint(Surroundings& around) : frmListing(around, randomColumnListing) {
  layOut(new QGridLayout(this));
  Command1->setFocus();
}

void frmRLPrint::Command1_Click() { listRandomColumns(around_, *this, output()); }

}  // namespace karvenis
