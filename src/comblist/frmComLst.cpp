#include "comblist/frmComLst.h"

#include <QVBoxLayout>

#include "comblist/CombinationList.h"
#include "platform/qt/Forms.h"
#include "platform/qt/Surface.h"

namespace karvenis {
namespace {

constexpr int titleWidth = 480;  // the frame shows the whole title of the last page then

}  // namespace

frmComLst::frmComLst(Surroundings& around)
    : Form(around.windows, "frmComLst"), around_(around), surface_(new Surface(this)) {
  setCaption(listTitle);
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addWidget(surface_);
  surface_->setFocusPolicy(Qt::StrongFocus);
  surface_->setFocus();
  const QSize rows = surface_->sizeFor(pageMargin, rowsOnPage, widestRow(*surface_));
  surface_->setMinimumSize(rows.expandedTo({titleWidth, 0}));
}

void frmComLst::Form_Activate() {
  if (!findList(around_)) {
    unload();
    return;
  }
  page_.PageStart = 0;
  redraw();
}

void frmComLst::Form_Click() {
  page_.click();
  redraw();
}

void frmComLst::Form_KeyDown(int KeyCode, int) {
  if (KeyCode == keyEscape) {
    unload();
    return;
  }
  if (runCommand(KeyCode)) redraw();
}

/// Returns whether the page is to be drawn anew.
bool frmComLst::runCommand(int KeyCode) {
  switch (KeyCode) {
    case keyF1:
      openListing(around_);
      return true;
    case keyF2:
      return copyToRandomColumns(around_);
    case keyF3:
      DeleteColumn(around_, page_);
      forms().dropInput();
      return true;
    case keyF4:
      deleteList(around_);
      return true;
    case keyF5:
    case keyF6:
    case keyF7:
    case keyF8:
      runFilter(static_cast<Filter>(KeyCode - keyF5));
      return true;
    case keyF10:
      showListKeys(around_.boxes);
      return true;
    case keyF11:
    case keyF12:
      around_.boxes.beep();
      return true;
    default:
      page_.key(KeyCode);
      return true;
  }
}

void frmComLst::runFilter(Filter filter) {
  if (filterList(filter, around_, page_, *this)) forms().dropInput();
}

void frmComLst::redraw() {
  ShowPage(around_, page_, *surface_, *this);
  surface_->setPage(page_.PageNo);
}

}  // namespace karvenis
