#pragma once

class QKeyEvent;

namespace karvenis {

/// The KeyCode of a key event (see platform/Keys.h).
[[nodiscard]] int keyCodeOf(const QKeyEvent& key);

/// The Shift argument of a key event: ShiftMask bits.
[[nodiscard]] int shiftOf(const QKeyEvent& key);

/// Whether the key is the desktop's own: Alt with a function key or with Esc.
[[nodiscard]] bool isOfDesktop(const QKeyEvent& key);

/// Whether a screen reader is running and the key is one that operates it: Ctrl, Insert or Caps
/// Lock alone.
[[nodiscard]] bool isOfScreenReader(const QKeyEvent& key);

}  // namespace karvenis
