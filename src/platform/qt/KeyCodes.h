#pragma once

#include <QtGlobal>

class QKeyEvent;

namespace karvenis {

/// The KeyCode of a key event (see platform/Keys.h).
int keyCodeOf(const QKeyEvent& key);

/// The Shift argument of a key event: ShiftMask bits.
int shiftOf(const QKeyEvent& key);

/// Tells the repeat of a key that is held from a new press. An X server sends a repeat as a release
/// and a press of the same moment; the toolkit knows the two for a repeat only where it happens to
/// read them together, and else takes them for a key pressed anew.
class KeyRepeats {
 public:
  void released(const QKeyEvent& key);
  bool isRepeat(const QKeyEvent& press) const;

 private:
  int releasedKey_ = 0;
  quint64 releasedAt_ = 0;
};

}  // namespace karvenis
