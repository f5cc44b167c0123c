#pragma once

#include <QString>
#include <QWidget>

namespace karvenis {

class Artwork;

/// A widget that shows a drawing, as large as the widget is.
class Picture final : public QWidget {
  Q_OBJECT

 public:
  /// `element` is a named part of the drawing `file`; empty for all of it.
  Picture(Artwork& artwork, QString file, QString element, QWidget* parent);

 Q_SIGNALS:
  /// A left click (press and release) on the picture. A picture whose signal is not connected lets
  /// the click through to what lies behind it.
  void clicked();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  bool isClickable() const;

  Artwork& artwork_;
  QString file_;
  QString element_;
  bool pressed_ = false;
};

}  // namespace karvenis
