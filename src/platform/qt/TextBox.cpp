#include "platform/qt/TextBox.h"

#include <QFocusEvent>

namespace karvenis {

/// A box that is tabbed into has its text selected. Of an empty one nothing is: a screen reader
/// that hears of a selection before it hears of the focus names the box no more.
void TextBox::focusInEvent(QFocusEvent* event) {
  QFocusEvent plain(QEvent::FocusIn, Qt::OtherFocusReason);
  QLineEdit::focusInEvent(text().isEmpty() ? &plain : event);
}

}  // namespace karvenis
