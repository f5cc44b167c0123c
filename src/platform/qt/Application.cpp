#include "platform/qt/Application.h"

#include <QKeyEvent>

namespace karvenis {
namespace {

/// A key press, told as what it is: a repeat.
struct Repeat final : QKeyEvent {
  explicit Repeat(const QKeyEvent& press) : QKeyEvent(press) { m_autoRepeat = true; }
};

}  // namespace

/// Keys come to the native windows first.
bool Application::notify(QObject* receiver, QEvent* event) {
  if (receiver->isWindowType() && event->type() == QEvent::KeyPress) {
    return pressed(receiver, *static_cast<QKeyEvent*>(event));
  }
  if (receiver->isWindowType() && event->type() == QEvent::KeyRelease) {
    return released(receiver, *static_cast<QKeyEvent*>(event));
  }
  return QApplication::notify(receiver, event);
}

bool Application::pressed(QObject* window, QKeyEvent& press) {
  if (!isRepeat(press)) {
    pressedIn_ = window;
    return QApplication::notify(window, &press);
  }
  if (window != pressedIn_) return true;
  Repeat repeat(press);
  return QApplication::notify(window, &repeat);
}

bool Application::released(QObject* window, QKeyEvent& release) {
  if (release.spontaneous()) {
    releasedKey_ = release.key();
    releasedAt_ = release.timestamp();
  } else if (release.key() == Qt::Key_Alt) {
    return true;  // the copy would close the menus that the release itself has opened
  }
  return QApplication::notify(window, &release);
}

/// An X server sends a repeat as a release and a press of the same moment; the toolkit knows the
/// two for a repeat only where it happens to read them together, and else takes them for a key
/// pressed anew. Elsewhere the moment is that of the event's making, and no repeat is told by it.
bool Application::isRepeat(const QKeyEvent& press) const {
  if (press.isAutoRepeat()) return true;
  return press.spontaneous() && platformName() == QLatin1String("xcb") &&
         press.key() == releasedKey_ && press.timestamp() == releasedAt_;
}

}  // namespace karvenis
