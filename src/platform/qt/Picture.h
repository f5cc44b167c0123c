#pragma once

#include <QString>
#include <QWidget>
#include <functional>

namespace karvenis {

class Artwork;

/// A widget that shows a drawing, as large as the widget is.
class Picture final : public QWidget {
 public:
  /// `element` is a named part of the drawing `file`; empty for all of it.
  Picture(Artwork& artwork, QString file, QString element, QWidget* parent);

  /// What a left click (press and release) on the picture does; without it the click passes
  /// through.
  std::function<void()> clicked;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  Artwork& artwork_;
  QString file_;
  QString element_;
  bool pressed_ = false;
};

}  // namespace karvenis
