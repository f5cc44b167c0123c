#pragma once

#include <QLineEdit>

namespace karvenis {

/// A box that a number is typed into. The number in it is selected, so that the first digit typed
/// replaces it, when the window opens with the focus in the box, when Tab, Enter or the program
/// moves the focus there, and when the program has rewritten or refused the number. It is not
/// selected while it is typed in, and not when the focus only comes back from a box, a menu or
/// another program.
class NumberBox final : public QLineEdit {
  Q_OBJECT

 public:
  using QLineEdit::QLineEdit;

  /// Puts the program's own number in and selects it.
  void write(const QString& number);
  /// Takes the focus and selects the number, which was refused.
  void askAgain();
  /// Whether the program is putting its own number in at this moment.
  bool isBeingWritten() const { return written_; }

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  bool written_ = false;
};

}  // namespace karvenis
