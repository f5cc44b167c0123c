#include "platform/qt/NumberBox.h"

#include <QFocusEvent>

namespace karvenis {

void NumberBox::write(const QString& number) {
  setText(number);
  selectNumber();
}

void NumberBox::askAgain() {
  setFocus();
  selectNumber();
}

/// The toolkit selects by itself if Tab moves the focus, but not if the program does.
void NumberBox::focusInEvent(QFocusEvent* event) {
  QFocusEvent plain(QEvent::FocusIn, Qt::OtherFocusReason);
  QLineEdit::focusInEvent(text().isEmpty() ? &plain : event);
  if (event->reason() == Qt::OtherFocusReason) selectNumber();
}

/// A box that has the focus when its window opens hears of it as if its window only came back.
void NumberBox::showEvent(QShowEvent* event) {
  QLineEdit::showEvent(event);
  if (!event->spontaneous() && window()->focusWidget() == this) selectNumber();
}

/// Of an empty box nothing is selected: a screen reader that hears of a selection before it hears
/// of the focus names the box no more.
void NumberBox::selectNumber() {
  if (!text().isEmpty()) selectAll();
}

}  // namespace karvenis
