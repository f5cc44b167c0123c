#pragma once

#include <QLineEdit>

namespace karvenis {

/// A line to type into.
class TextBox final : public QLineEdit {
  Q_OBJECT

 public:
  using QLineEdit::QLineEdit;

 protected:
  void focusInEvent(QFocusEvent* event) override;
};

}  // namespace karvenis
