#include "main/widgets/Picture.h"

#include <QPainter>
#include <QPainterPath>

#include "platform/qt/Artwork.h"
#include "platform/qt/Look.h"

namespace karvenis {

Picture::Picture(Artwork& artwork, QString file, QString element, QWidget* parent)
    : QWidget(parent), artwork_(artwork), file_(std::move(file)), element_(std::move(element)) {}

void Picture::paintEvent(QPaintEvent*) {
  QPainter(this).drawPixmap(0, 0, artwork_.pixmap(file_, element_, size(), devicePixelRatioF()));
}

PictureButton::PictureButton(Artwork& artwork, QString file, QWidget* parent)
    : QAbstractButton(parent), artwork_(artwork), file_(std::move(file)) {
  setAutoFillBackground(true);  // so that nothing is painted behind it
  setFocusPolicy(Qt::TabFocus);
  setCursor(Qt::PointingHandCursor);
}

void PictureButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.drawPixmap(0, 0, artwork_.pixmap(file_, {}, size(), devicePixelRatioF()));
  QPainterPath corners;
  corners.addRect(rect());
  corners.addRoundedRect(rect(), radius, radius);
  painter.fillPath(corners, palette().window());
  if (!hasFocus()) return;
  painter.setPen(QPen(QColor(look::amber), 3));
  painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), radius, radius);
}

}  // namespace karvenis
