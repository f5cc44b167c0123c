#pragma once

#include <QPushButton>
#include <functional>

namespace karvenis {

/// One ball of the bag window's coupon. A marked ball is told by its bold font, and so it is drawn:
/// bold, ringed and on bright white.
class BallCell final : public QPushButton {
 public:
  BallCell(const QString& caption, QWidget* parent);

  /// An arrow key asks for the cell that many columns and rows away.
  std::function<void(int columns, int rows)> stepped;
  /// The cell has got the focus.
  std::function<void()> entered;

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
};

}  // namespace karvenis
