#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>

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
