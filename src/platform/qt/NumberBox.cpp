#include "platform/qt/NumberBox.h"

#include <QFocusEvent>

namespace karvenis {

void NumberBox::write(const QString& number) {
  written_ = true;
  setText(number);
  selectAll();
  written_ = false;
}

void NumberBox::askAgain() {
  setFocus();
  selectAll();
}

/// The toolkit selects by itself if Tab moves the focus, but not if the program does.
void NumberBox::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  if (event->reason() == Qt::OtherFocusReason) selectAll();
}

/// For a box that has the focus when its window opens, the focus event looks as if the window only
/// came back, so the number is selected here.
void NumberBox::showEvent(QShowEvent* event) {
  QLineEdit::showEvent(event);
  if (!event->spontaneous() && window()->focusWidget() == this) selectAll();
}

}  // namespace karvenis
