#pragma once

#include <QAbstractButton>
#include <QString>
#include <QWidget>

namespace karvenis {

class Artwork;

/// Shows a drawing, or a part of one, that fills the widget. A click on it goes to its parent.
class Picture final : public QWidget {
  Q_OBJECT

 public:
  /// `element` is a named part of the drawing `file`; empty for all of it.
  Picture(Artwork& artwork, QString file, QString element, QWidget* parent);

  const QString& file() const { return file_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Artwork& artwork_;
  QString file_;
  QString element_;
};

/// A drawing with rounded corners that is pressed like a button. It is reached by Tab, and a click
/// leaves the focus where it is.
class PictureButton final : public QAbstractButton {
  Q_OBJECT

 public:
  PictureButton(Artwork& artwork, QString file, QWidget* parent);

  const QString& file() const { return file_; }

  static constexpr double radius = 10;  // of the corners, device independent pixels

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Artwork& artwork_;
  QString file_;
};

}  // namespace karvenis
