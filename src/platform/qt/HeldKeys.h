#pragma once

#include <QObject>

class QKeyEvent;

namespace karvenis {

/// Tells the repeat of a key that is held from a new press, and keeps it from any other window than
/// the one it was pressed in: a box is not answered, and a list not paged, by a key that was
/// already held when it came. An X server sends a repeat as a release and a press of the same
/// moment; the toolkit knows the two for a repeat only where it happens to read them together, and
/// else takes them for a key pressed anew.
class HeldKeys final : public QObject {
  Q_OBJECT

 public:
  HeldKeys();

  /// Whether the key press that is being handled is a repeat.
  bool repeats() const { return repeats_; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool isRepeat(const QKeyEvent& press) const;

  bool repeats_ = false;
  const QObject* pressedIn_ = nullptr;  // only compared
  int releasedKey_ = 0;
  quint64 releasedAt_ = 0;
};

}  // namespace karvenis
