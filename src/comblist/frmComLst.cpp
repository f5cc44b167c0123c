#include "comblist/frmComLst.h"

#include "comblist/CombinationList.h"
#include "comblist/Filters.h"

namespace karvenis {

frmComLst::frmComLst(Surroundings& around) : PageForm(around.windows), around_(around) {
  setCaption(listTitle);
}

void frmComLst::Form_Activate() {
  if (!findList(around_)) return unload();
  page_.PageStart = 0;
  redraw();
}

bool frmComLst::answerKey(int KeyCode) {
  switch (KeyCode) {
    case keyF1:
      openListing(around_);
      return true;
    case keyF2:
      return copyToRandomColumns(around_);
    case keyF3:
      DeleteColumn(around_, page_);
      return true;
    case keyF4:
      deleteList(around_);
      return true;
    case keyF5:
    case keyF6:
    case keyF7:
    case keyF8:
      filterList(static_cast<Filter>(KeyCode - keyF5), around_, page_, *this);
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

void frmComLst::printPage(TextSurface& surface) { ShowPage(around_, page_, surface, *this); }

}  // namespace karvenis
