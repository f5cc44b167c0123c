// Shows the program's main window and ends as soon as it has been painted; startup.py times this as
// a whole process.

#include "EndAtFirstPaint.h"
#include "core/Surroundings.h"
#include "main/frmLoto.h"
#include "platform/SystemChance.h"
#include "platform/SystemFiles.h"
#include "platform/qt/Application.h"
#include "platform/qt/Forms.h"
#include "platform/qt/Look.h"
#include "platform/qt/QtBoxes.h"
#include "platform/qt/QtClock.h"
#include "platform/qt/QtPrinter.h"

int main(int argc, char** argv) {
  using namespace karvenis;
  Application application(argc, argv);
  EndAtFirstPaint end;
  applyLook();
  SharedState state;
  QtBoxes boxes;
  QtClock clock;
  SystemChance chance;
  SystemFiles files;
  QtPrinter printer;
  Forms forms(boxes);
  Surroundings around{state, boxes, clock, chance, files, printer, forms};
  forms.add("frmLoto", [&] {
    auto* window = new frmLoto(around);
    window->installEventFilter(&end);
    return window;
  });
  forms.show("frmLoto");
  return QApplication::exec();
}
