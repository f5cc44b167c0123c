#pragma once

#include <QHash>
#include <QPixmap>
#include <QString>
#include <memory>

class QSvgRenderer;

namespace karvenis {

/// The pixels of the drawing `name` in `size`, rendered when the program was built; null if they
/// were not.
[[nodiscard]] QPixmap prerenderedDrawing(const QString& name, const QSize& size);

/// The program's drawings. Each is rendered once for each size, and then kept.
class Artwork {
 public:
  Artwork();
  ~Artwork();
  Artwork(const Artwork&) = delete;
  Artwork& operator=(const Artwork&) = delete;

  /// The drawing `file`, or its named part `element`, at `size` (device independent) for a screen
  /// with `ratio` device pixels to each device independent pixel.
  [[nodiscard]] QPixmap pixmap(const QString& file, const QString& element, const QSize& size,
                               qreal ratio);

 private:
  QPixmap render(const QString& file, const QString& element, const QSize& pixels);
  QSvgRenderer& renderer(const QString& file);

  QHash<QString, QPixmap> drawn_;
  QString loaded_;  // the file in renderer_: the parts of one file are asked for in a row
  std::unique_ptr<QSvgRenderer> renderer_;
};

}  // namespace karvenis
