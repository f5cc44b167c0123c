#include "randomlist/frmRndLst.h"

#include "randomlist/RandomColumnFile.h"
#include "randomlist/RandomColumnList.h"

namespace karvenis {

frmRndLst::frmRndLst(Surroundings& around) : PageForm(around.windows), around_(around) {
  setCaption(" RASTGELE KOLON LİSTESİ   [ F10= YARDIM ]");
}

void frmRndLst::Form_Activate() { showFirstPage(); }
void frmRndLst::Form_Resize() { showFirstPage(); }

bool frmRndLst::answerKey(int KeyCode) {
  runCommand(KeyCode);
  return true;
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

void frmRndLst::printPage(TextSurface& surface) { ShowRndPage(around_, page_, surface, *this); }

}  // namespace karvenis
