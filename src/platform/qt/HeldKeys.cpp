#include "platform/qt/HeldKeys.h"

#include <QApplication>
#include <QKeyEvent>

namespace karvenis {

HeldKeys::HeldKeys() { qApp->installEventFilter(this); }

/// Keys come by the native windows first.
bool HeldKeys::eventFilter(QObject* watched, QEvent* event) {
  if (!watched->isWindowType()) return false;
  if (event->type() == QEvent::KeyRelease) {
    const auto& release = *static_cast<QKeyEvent*>(event);
    releasedKey_ = release.key();
    releasedAt_ = release.timestamp();
  } else if (event->type() == QEvent::KeyPress) {
    const auto& press = *static_cast<QKeyEvent*>(event);
    repeats_ = isRepeat(press);
    if (!repeats_) pressedIn_ = watched;
    return watched != pressedIn_;
  }
  return false;
}

bool HeldKeys::isRepeat(const QKeyEvent& press) const {
  if (press.isAutoRepeat()) return true;
  // Elsewhere the moment is that of the event's making, and no repeat is told by it.
  if (QGuiApplication::platformName() != QLatin1String("xcb")) return false;
  return press.key() == releasedKey_ && press.timestamp() == releasedAt_;
}

}  // namespace karvenis
