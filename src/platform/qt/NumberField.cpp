#include "platform/qt/NumberField.h"

#include <QFocusEvent>

namespace karvenis {

void NumberField::write(const QString& number) {
  written_ = true;
  setText(number);
  selectAll();
  written_ = false;
}

void NumberField::askAgain() {
  setFocus();
  selectAll();
}

/// The toolkit selects by itself if Tab moves the focus, but not if the program does.
void NumberField::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  if (event->reason() == Qt::OtherFocusReason) selectAll();
}

/// For a field that has the focus when its window opens, the focus event looks as if the window
/// only came back, so the number is selected here.
void NumberField::showEvent(QShowEvent* event) {
  QLineEdit::showEvent(event);
  if (!event->spontaneous() && window()->focusWidget() == this) selectAll();
}

}  // namespace karvenis
