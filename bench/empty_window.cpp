// Shows an empty window of the main window's size and ends as soon as it has been painted: what
// startup.py times the main window against.

#include <QMainWindow>

#include "EndAtFirstPaint.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  EndAtFirstPaint end;
  QMainWindow window;
  window.setFixedSize(760, 484);
  window.installEventFilter(&end);
  window.show();
  return QApplication::exec();
}
