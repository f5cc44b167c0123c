#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QWidget>
#include <QWindow>
#include <deque>
#include <memory>
#include <optional>

namespace karvenis {

/// The toolkit's application. The user's keys and clicks come here before they reach a window.
/// Assistive technology may hold a key back and send a copy of it later, without its time; so a
/// repeat is recognised here, before that.
///
/// - A repeat of a held key is marked as one (QKeyEvent::isAutoRepeat) and reaches only the window
///   in which the key was pressed: a key that is already held when a box or a list opens does not
///   answer the box and does not page the list.
/// - A key goes to the window that the user works in when the key is handled, not to the one that
///   had the keyboard when it was pressed: the open box, else the working window. No key is lost on
///   the way.
/// - A key waits if the box of a procedure has been answered and the procedure has not gone on yet:
///   it is for the next box of the procedure, or for the window after the procedure.
/// - What came while a long action ran is dropped, so that it does not become a command after it.
class Application final : public QApplication {
  Q_OBJECT

 public:
  Application(int& count, char** words);
  ~Application() override;

  /// The running application. Precondition: one has been made.
  [[nodiscard]] static Application& instance() { return *static_cast<Application*>(qApp); }

  /// Sets the window that has the keys while no box is open; null: the one that has the keyboard.
  void setWorkingWindow(QWidget* window) { working_ = window; }

  /// Tells whether an event procedure runs, whenever one opens a box or ends. The keys that have
  /// waited are served in the next turn of the event loop.
  void setBusy(bool busy);

  /// Drops the keys that wait, and the keys and clicks that come until the event loop has run
  /// again.
  void dropInput();
  [[nodiscard]] bool isDroppingInput() const { return dropping_; }

  bool notify(QObject* receiver, QEvent* event) override;

 Q_SIGNALS:
  /// The user has pressed a key, or a mouse button in `window`, and nobody has seen it yet.
  void keyPressed();
  void clicked(QWindow* window);
  /// The session ends, and the program with it.
  void ending();

 protected:
  bool event(QEvent* event) override;

 private:
  class KeysOfBoxes;

  bool takeKey(QKeyEvent& key);
  /// Whether keys must wait: a procedure's box has been answered, and the procedure goes on.
  bool mustWait() const { return busy_ && activeModalWidget() == nullptr; }
  void serveWaiting();
  void serve(QKeyEvent& key);
  void servePress(QKeyEvent& press, QWindow& window);
  void serveRelease(QKeyEvent& release, QWindow& window);
  bool isRepeat(const QKeyEvent& key) const;
  QWindow* keyWindow() const;

  std::unique_ptr<KeysOfBoxes> keysOfBoxes_;
  std::deque<std::unique_ptr<QKeyEvent>> waiting_;  // keys that have not been served yet
  QPointer<QWidget> working_;
  // The window in which the held key was pressed; only compared, since it may be gone.
  const QWindow* pressedIn_ = nullptr;
  int releasedKey_ = 0;     // the last release,
  quint64 releasedAt_ = 0;  // and its time in milliseconds
  // The modifiers of the last press, if that was Alt alone and nothing was pressed since. The menus
  // must get them unchanged: a key from the desktop and the copy that assistive technology sends on
  // carry different ones.
  std::optional<Qt::KeyboardModifiers> altAlone_;
  bool busy_ = false;
  bool dropping_ = false;
};

}  // namespace karvenis
