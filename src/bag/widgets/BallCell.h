#pragma once

#include <QPushButton>

namespace karvenis {

/// The button of one ball in the bag window. If it looks marked, it is drawn bold, ringed and on
/// bright white.
class BallCell final : public QPushButton {
  Q_OBJECT

 public:
  BallCell(const QString& caption, QWidget* parent);

  /// Whether the cell shows a mark: its font is bold.
  [[nodiscard]] bool looksMarked() const { return font().bold(); }
  QSize sizeHint() const override { return size(); }
  /// Makes the cell `growth` times as large as it was designed, 1 at first.
  void grow(double growth);

 Q_SIGNALS:
  /// An arrow key asks for the cell that many columns and rows away.
  void stepped(int columns, int rows);
  /// The cell has got the focus.
  void entered();

 protected:
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  void reportMark();

  bool reportedMark_ = false;  // what assistive technology knows of the mark
  double growth_ = 1;
};

}  // namespace karvenis
