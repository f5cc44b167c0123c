#pragma once

namespace karvenis {

/// Key codes as the windows' key procedures get them. A letter or digit has its ASCII code, a key
/// that is not listed here is keyOther.
enum KeyCode : int {
  keyEnter = 13,
  keyEscape = 27,
  keySpace = 32,
  keyPageUp = 33,
  keyPageDown = 34,
  keyEnd = 35,
  keyHome = 36,
  keyLeft = 37,
  keyUp = 38,
  keyRight = 39,
  keyDown = 40,
  keyF1 = 112,
  keyF2,
  keyF3,
  keyF4,
  keyF5,
  keyF6,
  keyF7,
  keyF8,
  keyF9,
  keyF10,
  keyF11,
  keyF12,
  keyOther = 255,
};

/// Whether `code` is one of F1..F12.
constexpr bool isFunctionKey(int code) { return code >= keyF1 && code <= keyF12; }

/// The bits of the Shift argument of a key procedure: the modifier keys that are held.
enum ShiftMask : int { shiftKey = 1, ctrlKey = 2, altKey = 4 };

}  // namespace karvenis
