// Shows a window and ends as soon as it has been painted: the program's main window ("karvenis") or
// an empty one of the same size ("empty"). startup.py times both as whole processes.

#include <QApplication>
#include <QMainWindow>
#include <QTimer>
#include <cstring>

#include "core/Surroundings.h"
#include "main/frmLoto.h"
#include "platform/SystemChance.h"
#include "platform/SystemFiles.h"
#include "platform/qt/Forms.h"
#include "platform/qt/Look.h"
#include "platform/qt/QtBoxes.h"
#include "platform/qt/QtClock.h"
#include "platform/qt/QtPrinter.h"

namespace {

/// Ends the program behind the first paint of the window it watches.
class EndAtFirstPaint : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      watched->removeEventFilter(this);
      QTimer::singleShot(0, qApp, &QApplication::quit);
    }
    return false;
  }
};

int showEmpty(EndAtFirstPaint& end) {
  QMainWindow window;
  window.setFixedSize(760, 484);
  window.installEventFilter(&end);
  window.show();
  return QApplication::exec();
}

int showMain(QApplication& application, EndAtFirstPaint& end) {
  using namespace karvenis;
  applyLook(application);
  SharedState state;
  QtBoxes boxes;
  QtClock clock;
  SystemChance chance;
  SystemFiles files;
  QtPrinter printer;
  Forms forms(boxes);
  Surroundings around{state, boxes, clock, chance, files, printer, forms};
  forms.add("frmLoto", [&] {
    auto* window = new frmLoto(around, forms);
    window->installEventFilter(&end);
    return window;
  });
  forms.show("frmLoto");
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  EndAtFirstPaint end;
  const bool empty = argc > 1 && std::strcmp(argv[1], "empty") == 0;
  return empty ? showEmpty(end) : showMain(application, end);
}
