#pragma once

#include "bag/frmBalls.h"
#include "bag/frmBanko.h"
#include "bag/frmList.h"
#include "comblist/frmComLst.h"
#include "comblist/frmRnd.h"
#include "doubles/Doubles.h"
#include "listing/frmCLPrint.h"
#include "listing/frmRLPrint.h"
#include "main/frmLoto.h"
#include "platform/SystemChance.h"
#include "platform/qt/Forms.h"
#include "randomlist/frmRndDel.h"
#include "randomlist/frmRndLst.h"

namespace karvenis {

/// The program with all its windows, over boxes and files of the test's own; the clock is set and
/// the printer only keeps what it gets.
struct WholeProgram {
  WholeProgram(Boxes& boxes, Files& files)
      : forms(boxes), around{state, boxes, clock, chance, files, printer, forms} {
    add<frmLoto>("frmLoto");
    add<frmBalls>("frmBalls");
    add<frmBanko>("frmBanko");
    add<frmList>("frmList");
    add<frmRndLst>("frmRndLst");
    add<frmRndDel>("frmRndDel");
    add<frmRLPrint>("frmRLPrint");
    add<frmRnd>("frmRnd");
    add<frmComLst>("frmComLst");
    add<frmCLPrint>("frmCLPrint");
  }
  /// A fault may have left a file open.
  ~WholeProgram() { state.FileNo.reset(); }
  WholeProgram(const WholeProgram&) = delete;
  WholeProgram& operator=(const WholeProgram&) = delete;

  SharedState state;
  SetClock clock;
  SystemChance chance;
  RecordingPrinter printer;
  Forms forms;
  Surroundings around;

 private:
  template <typename Window>
  void add(const char* name) {
    forms.add(name, [this] { return new Window(around, forms); });
  }
};

}  // namespace karvenis
