#include "platform/qt/Application.h"

#include <QDialog>
#include <QKeyEvent>
#include <QTimer>

namespace karvenis {
namespace {

/// A key press that is marked as a repeat.
struct Repeat final : QKeyEvent {
  explicit Repeat(const QKeyEvent& press) : QKeyEvent(press) { m_autoRepeat = true; }
};

/// Whether `receiver` belongs to a box that has closed.
bool isOfClosedBox(const QObject* receiver) {
  if (!receiver->isWidgetType()) return false;
  const QWidget* window = static_cast<const QWidget*>(receiver)->window();
  return window->isHidden() && qobject_cast<const QDialog*>(window) != nullptr;
}

}  // namespace

/// Input comes from the desktop to the native windows.
bool Application::notify(QObject* receiver, QEvent* event) {
  // Assistive technology sees every event. It need not see that a closed box is no longer active:
  // if it is busy with a key at that moment, it takes the next window for one that it has read
  // already, and does not read it. That window's own events tell it enough.
  if (event->type() == QEvent::WindowDeactivate && isOfClosedBox(receiver)) {
    return receiver->event(event);
  }
  if (!receiver->isWindowType()) return QApplication::notify(receiver, event);
  switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      if (event->spontaneous()) return takeKey(*static_cast<QKeyEvent*>(event));
      break;
    case QEvent::MouseButtonPress:
      if (!dropping_) Q_EMIT clicked(static_cast<QWindow*>(receiver));
      break;
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
      break;
    default:
      return QApplication::notify(receiver, event);
  }
  return dropping_ || QApplication::notify(receiver, event);
}

/// Sends the key to the application itself and not to a window: assistive technology may stop a key
/// on its way and send it on later to the same receiver, and a window may be closed by then.
bool Application::takeKey(QKeyEvent& key) {
  const bool repeats = isRepeat(key);
  if (dropping_) return true;
  if (!repeats) {
    if (key.type() == QEvent::KeyPress) Q_EMIT keyPressed();
    return QApplication::notify(this, &key);
  }
  Repeat repeat(key);
  return QApplication::notify(this, &repeat);
}

bool Application::event(QEvent* event) {
  if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) {
    return QApplication::event(event);
  }
  if (!dropping_) serve(*static_cast<QKeyEvent*>(event));
  return true;
}

void Application::serve(QKeyEvent& key) {
  QWindow* window = keyWindow();
  if (window == nullptr) return;
  if (key.type() == QEvent::KeyPress) {
    if (!key.isAutoRepeat()) pressedIn_ = window;
    if (window != pressedIn_) return;
  } else if (key.key() == Qt::Key_Alt && !key.spontaneous()) {
    return;  // a copy, which would close the menus that the release itself has opened
  }
  sendEvent(window, &key);
}

QWindow* Application::keyWindow() const {
  if (const QWidget* box = activeModalWidget()) return box->windowHandle();
  return working_ ? working_->windowHandle() : focusWindow();
}

/// An X server sends a repeat as a release and a press with the same time. The toolkit recognises
/// the two only if it happens to read them together. On other platforms an event's time is when it
/// was made, and says nothing about repeats.
bool Application::isRepeat(const QKeyEvent& key) {
  if (key.type() == QEvent::KeyRelease) {
    releasedKey_ = key.key();
    releasedAt_ = key.timestamp();
    return false;
  }
  return key.isAutoRepeat() || (platformName() == QLatin1String("xcb") &&
                                key.key() == releasedKey_ && key.timestamp() == releasedAt_);
}

/// The first turn of the event loop brings what came meanwhile; idle timers fire after it.
void Application::dropInput() {
  dropping_ = true;
  QTimer::singleShot(0, this,
                     [this] { QTimer::singleShot(0, this, [this] { dropping_ = false; }); });
}

}  // namespace karvenis
