#include "platform/qt/Artwork.h"

#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QResource>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

namespace karvenis {

QPixmap prerenderedDrawing(const QString& name, const QSize& size) {
  const QResource resource(
      u":/prerendered/%1-%2x%3"_s.arg(name).arg(size.width()).arg(size.height()));
  if (!resource.isValid()) return {};
  const QByteArray bytes = resource.uncompressedData();
  Q_ASSERT(bytes.size() == qsizetype{4} * size.width() * size.height());
  const QImage pixels(reinterpret_cast<const uchar*>(bytes.constData()), size.width(),
                      size.height(), QImage::Format_ARGB32_Premultiplied);
  return QPixmap::fromImage(pixels.copy());
}

Artwork::Artwork() = default;
Artwork::~Artwork() = default;

QPixmap Artwork::pixmap(const QString& file, const QString& element, const QSize& size,
                        qreal ratio) {
  const QSize pixels = (QSizeF(size) * ratio).toSize();
  const QString key = u"%1#%2 %3x%4"_s.arg(file, element).arg(pixels.width()).arg(pixels.height());
  QPixmap& drawing = drawn_[key];
  if (!drawing.isNull() || pixels.isEmpty()) return drawing;

  // What the first painted window shows on a plain screen was rendered when the program was built.
  if (element.isEmpty()) drawing = prerenderedDrawing(QFileInfo(file).baseName(), pixels);
  if (drawing.isNull()) drawing = render(file, element, pixels);
  drawing.setDevicePixelRatio(ratio);
  return drawing;
}

QPixmap Artwork::render(const QString& file, const QString& element, const QSize& pixels) {
  QPixmap drawing(pixels);
  drawing.fill(Qt::transparent);
  QPainter painter(&drawing);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF all(QPointF(0, 0), QSizeF(pixels));
  if (element.isEmpty()) {
    renderer(file).render(&painter, all);
  } else {
    renderer(file).render(&painter, element, all);
  }
  return drawing;
}

QSvgRenderer& Artwork::renderer(const QString& file) {
  if (loaded_ != file) {
    renderer_ = std::make_unique<QSvgRenderer>(u":/assets/"_s + file);
    loaded_ = file;
  }
  return *renderer_;
}

}  // namespace karvenis
