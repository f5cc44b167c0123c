#include "platform/qt/Picture.h"

#include <QMetaMethod>
#include <QMouseEvent>
#include <QPainter>

#include "platform/qt/Artwork.h"

namespace karvenis {

Picture::Picture(Artwork& artwork, QString file, QString element, QWidget* parent)
    : QWidget(parent), artwork_(artwork), file_(std::move(file)), element_(std::move(element)) {}

void Picture::paintEvent(QPaintEvent*) {
  QPainter(this).drawPixmap(0, 0, artwork_.pixmap(file_, element_, size(), devicePixelRatioF()));
}

bool Picture::isClickable() const {
  return isSignalConnected(QMetaMethod::fromSignal(&Picture::clicked));
}

void Picture::mousePressEvent(QMouseEvent* event) {
  pressed_ = isClickable() && event->button() == Qt::LeftButton;
  if (!isClickable()) event->ignore();
}

void Picture::mouseReleaseEvent(QMouseEvent* event) {
  const bool click = pressed_ && rect().contains(event->pos());
  pressed_ = false;
  if (click) Q_EMIT clicked();
}

}  // namespace karvenis
