#include "platform/qt/Announcer.h"

#include <QTimer>

using namespace std::chrono_literals;

namespace karvenis {

Announcer::Announcer(QWidget* window, const QString& words) : QWidget(window) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  resize(1, 1);
  setAccessibleName(words);
  show();
  QTimer::singleShot(30s, this, &QObject::deleteLater);
}

}  // namespace karvenis
