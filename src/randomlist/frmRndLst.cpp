#include "randomlist/frmRndLst.h"

#include <QVBoxLayout>
#include <algorithm>

#include "platform/qt/Surface.h"
#include "randomlist/RandomColumnFile.h"
#include "randomlist/RandomColumnList.h"

namespace karvenis {

frmRndLst::frmRndLst(Surroundings& around)
    : Form(around.windows, "frmRndLst"), around_(around), surface_(new Surface(this)) {
  setCaption(" RASTGELE KOLON LİSTESİ   [ F10= YARDIM ]");
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addWidget(surface_);
  surface_->setFocusPolicy(Qt::StrongFocus);
  surface_->setFocus();
  const double edge = std::max(widestRow(*surface_), titleEdge);
  surface_->setMinimumSize(surface_->sizeFor(pageMargin, rowsOnPage, edge));
}

void frmRndLst::Form_Activate() { showFirstPage(); }
void frmRndLst::Form_Resize() { showFirstPage(); }

void frmRndLst::Form_Click() {
  page_.click();
  redraw();
}

void frmRndLst::Form_KeyDown(int KeyCode, int) {
  if (KeyCode == keyEscape) {
    unload();
    return;
  }
  runCommand(KeyCode);
  redraw();
}

void frmRndLst::runCommand(int KeyCode) {
  switch (KeyCode) {
    case keyF1:
      return appendToCombinationList(around_, page_);
    case keyF2:
      return saveAsCombinationList(around_);
    case keyF3:
      return DeleteOneColumn(around_, page_);
    case keyF4:
      askAndDeleteRndFile(around_);
      return;
    case keyF9:
      return openRndListing(around_);
    case keyF10:
      return showRndListKeys(around_.boxes);
    default:
      return page_.key(KeyCode);
  }
}

void frmRndLst::showFirstPage() {
  page_.PageStart = 0;
  redraw();
}

void frmRndLst::redraw() {
  ShowRndPage(around_, page_, *surface_, *this);
  surface_->setPage(page_.PageNo);
}

}  // namespace karvenis
