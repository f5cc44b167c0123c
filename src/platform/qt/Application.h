#pragma once

#include <QApplication>

class QKeyEvent;

namespace karvenis {

/// The toolkit's application. It sees every key before anybody else, also before the toolkit hands
/// it to assistive technology and gets back a copy that no longer tells when it was pressed.
///
/// It tells the repeat of a key that is held from a new press (QKeyEvent::isAutoRepeat), and keeps
/// it from any other window than the one it was pressed in: a box is not answered, and a list not
/// paged, by a key that was already held when it came.
class Application final : public QApplication {
  Q_OBJECT

 public:
  using QApplication::QApplication;

  bool notify(QObject* receiver, QEvent* event) override;

 private:
  bool isRepeat(const QKeyEvent& press) const;
  bool pressed(QObject* window, QKeyEvent& press);
  bool released(QObject* window, QKeyEvent& release);

  const QObject* pressedIn_ = nullptr;  // only compared
  int releasedKey_ = 0;
  quint64 releasedAt_ = 0;
};

}  // namespace karvenis
