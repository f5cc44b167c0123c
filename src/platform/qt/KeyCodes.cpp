#include "platform/qt/KeyCodes.h"

#include <QAccessible>
#include <QKeyEvent>

#include "platform/Keys.h"

namespace karvenis {

int keyCodeOf(const QKeyEvent& key) {
  const int code = key.key();
  if (code >= Qt::Key_F1 && code <= Qt::Key_F12) return keyF1 + (code - Qt::Key_F1);
  switch (code) {
    case Qt::Key_Escape:
      return keyEscape;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return keyEnter;
    case Qt::Key_PageUp:
      return keyPageUp;
    case Qt::Key_PageDown:
      return keyPageDown;
    case Qt::Key_End:
      return keyEnd;
    case Qt::Key_Home:
      return keyHome;
    case Qt::Key_Left:
      return keyLeft;
    case Qt::Key_Up:
      return keyUp;
    case Qt::Key_Right:
      return keyRight;
    case Qt::Key_Down:
      return keyDown;
    case Qt::Key_Space:
      return keySpace;
    default:
      break;
  }
  const bool letterOrDigit =
      (code >= Qt::Key_0 && code <= Qt::Key_9) || (code >= Qt::Key_A && code <= Qt::Key_Z);
  return letterOrDigit ? code : static_cast<int>(keyOther);
}

int shiftOf(const QKeyEvent& key) {
  const Qt::KeyboardModifiers held = key.modifiers();
  return (held.testFlag(Qt::ShiftModifier) ? shiftKey : 0) |
         (held.testFlag(Qt::ControlModifier) ? ctrlKey : 0) |
         (held.testFlag(Qt::AltModifier) ? altKey : 0);
}

bool isOfDesktop(const QKeyEvent& key) {
  const int code = keyCodeOf(key);
  return (shiftOf(key) & altKey) != 0 && (isFunctionKey(code) || code == keyEscape);
}

bool isOfScreenReader(const QKeyEvent& key) {
  if (!QAccessible::isActive()) return false;
  return key.key() == Qt::Key_Control || key.key() == Qt::Key_CapsLock ||
         (key.key() == Qt::Key_Insert && shiftOf(key) == 0);
}

}  // namespace karvenis
