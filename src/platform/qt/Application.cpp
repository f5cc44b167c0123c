#include "platform/qt/Application.h"

#include <qpa/qwindowsysteminterface_p.h>

#include <QKeyEvent>
#include <QTimer>
#include <utility>

namespace karvenis {
namespace {

/// A key press that is marked as a repeat.
struct Repeat final : QKeyEvent {
  explicit Repeat(const QKeyEvent& press) : QKeyEvent(press) { m_autoRepeat = true; }
};

/// Whether `receiver` belongs to a window that has closed.
bool isOfClosedWindow(const QObject* receiver) {
  return receiver->isWidgetType() && static_cast<const QWidget*>(receiver)->window()->isHidden();
}

}  // namespace

/// Gives the keys to the open box from the start. The desktop sends them to the window behind it
/// until it has moved the keyboard, and the toolkit drops what comes for such a window before
/// anybody sees it; only its private interface comes earlier.
class Application::KeysOfBoxes final : public QWindowSystemEventHandler {
 public:
  KeysOfBoxes() { QWindowSystemInterfacePrivate::installWindowSystemEventHandler(this); }

  bool sendEvent(QWindowSystemInterfacePrivate::WindowSystemEvent* event) override {
    const QWidget* box = activeModalWidget();
    if (box != nullptr && event->type == QWindowSystemInterfacePrivate::Key) {
      static_cast<QWindowSystemInterfacePrivate::KeyEvent*>(event)->window = box->windowHandle();
    }
    return QWindowSystemEventHandler::sendEvent(event);
  }
};

Application::Application(int& count, char** words)
    : QApplication(count, words), keysOfBoxes_(std::make_unique<KeysOfBoxes>()) {}

Application::~Application() = default;

/// Takes the keys and the presses and releases of the mouse that the desktop sends to native
/// windows (spontaneous events) before any window sees them. All other events pass.
bool Application::notify(QObject* receiver, QEvent* event) {
  // Assistive technology sees every event. It need not see that a closed window is no longer
  // active: if it is busy with a key at that moment, it takes the next window for one that it has
  // read already, and does not read it. That window's own events tell it enough.
  if (event->type() == QEvent::WindowDeactivate && isOfClosedWindow(receiver)) {
    return receiver->event(event);
  }
  if (!receiver->isWindowType() || !event->spontaneous()) {
    return QApplication::notify(receiver, event);
  }
  switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      return takeKey(*static_cast<QKeyEvent*>(event));
    case QEvent::ShortcutOverride:
      // The menus hear of Alt when it is served, in its turn among the other keys.
      return static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt ||
             QApplication::notify(receiver, event);
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      if (dropping_ || mustWait()) return true;
      altAlone_.reset();
      Q_EMIT clicked(static_cast<QWindow*>(receiver));
      return QApplication::notify(receiver, event);
    case QEvent::MouseButtonRelease:
      return dropping_ || QApplication::notify(receiver, event);
    default:
      return QApplication::notify(receiver, event);
  }
}

/// Sends the key to the application itself and not to a window: assistive technology may stop a key
/// on its way and send it on later to the same receiver, and a window may be closed by then.
bool Application::takeKey(QKeyEvent& key) {
  if (key.type() == QEvent::KeyRelease) {
    releasedKey_ = key.key();
    releasedAt_ = key.timestamp();
  }
  if (dropping_) return true;
  if (isRepeat(key)) {
    Repeat repeat(key);
    return QApplication::notify(this, &repeat);
  }
  if (key.type() == QEvent::KeyPress) Q_EMIT keyPressed();
  return QApplication::notify(this, &key);
}

/// Every key comes by here in its turn, itself or the copy of it.
bool Application::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      if (dropping_) return true;
      if (!mustWait() && waiting_.empty()) {
        serve(*static_cast<QKeyEvent*>(event));
      } else {
        waiting_.emplace_back(static_cast<QKeyEvent*>(event->clone()));
      }
      return true;
    case QEvent::Quit:
      // The toolkit's own way to end would close window after window, a box before the one behind
      // it, and stop at the first that refuses.
      Q_EMIT ending();
      exit(0);
      return true;
    default:
      return QApplication::event(event);
  }
}

void Application::setBusy(bool busy) {
  busy_ = busy;
  if (waiting_.empty()) return;
  QMetaObject::invokeMethod(
      this, [this] { serveWaiting(); }, Qt::QueuedConnection);
}

void Application::serveWaiting() {
  while (!waiting_.empty() && !mustWait()) {
    const std::unique_ptr<QKeyEvent> key = std::move(waiting_.front());
    waiting_.pop_front();
    serve(*key);
  }
}

void Application::serve(QKeyEvent& key) {
  QWindow* window = keyWindow();
  if (window == nullptr) return;
  if (key.type() == QEvent::KeyPress) {
    servePress(key, *window);
  } else {
    serveRelease(key, *window);
  }
}

void Application::servePress(QKeyEvent& press, QWindow& window) {
  if (!press.isAutoRepeat()) {
    pressedIn_ = &window;
    altAlone_.reset();
    if (press.key() == Qt::Key_Alt && activePopupWidget() == nullptr) {
      altAlone_ = press.QInputEvent::modifiers();  // the menus look whether others are held
    }
  }
  if (&window == pressedIn_) sendEvent(&window, &press);
}

/// Alt alone opens and closes the menus, which want to be told of its press and its release
/// without another key in between.
void Application::serveRelease(QKeyEvent& release, QWindow& window) {
  if (release.key() == Qt::Key_Alt && altAlone_) {
    QKeyEvent press(QEvent::ShortcutOverride, Qt::Key_Alt, *std::exchange(altAlone_, std::nullopt));
    sendEvent(&window, &press);
  }
  sendEvent(&window, &release);
}

QWindow* Application::keyWindow() const {
  if (const QWidget* box = activeModalWidget()) return box->windowHandle();
  return working_ ? working_->windowHandle() : focusWindow();
}

/// An X server sends a repeat as a release and a press with the same time. The toolkit recognises
/// the two only if it happens to read them together. On other platforms an event's time is when it
/// was made, and says nothing about repeats.
bool Application::isRepeat(const QKeyEvent& key) const {
  if (key.type() != QEvent::KeyPress) return false;
  return key.isAutoRepeat() || (platformName() == QLatin1String("xcb") &&
                                key.key() == releasedKey_ && key.timestamp() == releasedAt_);
}

/// The second timer of 0 ms fires one turn of the event loop after the first, when what came
/// meanwhile has been delivered.
void Application::dropInput() {
  dropping_ = true;
  waiting_.clear();
  QTimer::singleShot(0, this,
                     [this] { QTimer::singleShot(0, this, [this] { dropping_ = false; }); });
}

}  // namespace karvenis
