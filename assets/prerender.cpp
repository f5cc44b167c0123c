// Renders a drawing while the program is built: prerender DRAWING.svg WIDTH HEIGHT PIXELS
//
// The pixels are written as a QImage of the format ARGB32_Premultiplied holds them, row by row.

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

int main(int argc, char** argv) {
  if (argc != 5) return 2;
  QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
  const QSize size(QByteArray(argv[2]).toInt(), QByteArray(argv[3]).toInt());
  QFile file(QString::fromLocal8Bit(argv[4]));
  if (!drawing.isValid() || size.isEmpty() || !file.open(QIODevice::WriteOnly)) return 1;

  QImage pixels(size, QImage::Format_ARGB32_Premultiplied);
  pixels.fill(Qt::transparent);
  QPainter painter(&pixels);
  painter.setRenderHint(QPainter::Antialiasing);
  drawing.render(&painter, QRectF(pixels.rect()));
  painter.end();
  const auto* bytes = reinterpret_cast<const char*>(pixels.constBits());
  return file.write(bytes, pixels.sizeInBytes()) == pixels.sizeInBytes() && file.flush() ? 0 : 1;
}
