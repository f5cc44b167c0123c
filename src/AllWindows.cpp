#include "AllWindows.h"

#include "bag/frmBalls.h"
#include "bag/frmBanko.h"
#include "bag/frmList.h"
#include "comblist/frmComLst.h"
#include "comblist/frmRnd.h"
#include "listing/frmCLPrint.h"
#include "listing/frmRLPrint.h"
#include "main/frmLoto.h"
#include "platform/qt/Forms.h"
#include "randomlist/frmRndDel.h"
#include "randomlist/frmRndLst.h"

namespace karvenis {

void addWindows(Forms& forms, Surroundings& around) {
  forms.add("frmLoto", [&around] { return new frmLoto(around); });
  forms.add("frmBalls", [&around] { return new frmBalls(around); });
  forms.add("frmBanko", [&around] { return new frmBanko(around); });
  forms.add("frmList", [&around] { return new frmList(around); });
  forms.add("frmRndLst", [&around] { return new frmRndLst(around); });
  forms.add("frmRndDel", [&around] { return new frmRndDel(around); });
  forms.add("frmRLPrint", [&around] { return new frmRLPrint(around); });
  forms.add("frmRnd", [&around] { return new frmRnd(around); });
  forms.add("frmComLst", [&around] { return new frmComLst(around); });
  forms.add("frmCLPrint", [&around] { return new frmCLPrint(around); });
}

}  // namespace karvenis
