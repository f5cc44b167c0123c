#pragma once

#include <QLineEdit>

namespace karvenis {

/// A text field for a number. The number is selected, so that the first digit typed replaces it,
/// - when the window opens with the focus in the field,
/// - when Tab, Enter or the program moves the focus there,
/// - when the program has rewritten or refused the number.
/// It is not selected while the user types, nor when the focus comes back from a dialog, a menu or
/// another program.
class NumberField final : public QLineEdit {
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
