#include "platform/qt/ReadableText.h"

#include <QFontMetrics>
#include <QWidget>
#include <algorithm>

#include "platform/qt/Letters.h"

namespace karvenis {
namespace {

constexpr int widest = 700;  // with letters of the size that the windows are drawn for

/// The least width at which `text` is as high as at `width`.
int narrowest(const QWidget& widget, const QString& text, int width) {
  const int height = textSize(widget, text, width).height();
  int tooNarrow = 0;
  while (width - tooNarrow > 1) {
    const int middle = (width + tooNarrow) / 2;
    const QSize size = textSize(widget, text, middle);
    if (size.height() == height && size.width() <= middle) {
      width = middle;
    } else {
      tooNarrow = middle;
    }
  }
  return width;
}

}  // namespace

QSize textSize(const QWidget& widget, const QString& text, int width) {
  return widget.fontMetrics()
      .boundingRect(QRect({}, QSize(width, QWIDGETSIZE_MAX)), Qt::TextWordWrap | Qt::AlignLeft,
                    text)
      .size();
}

int readableWidth(const QWidget& widget, const QString& text, int room) {
  const int natural = textSize(widget, text, QWIDGETSIZE_MAX).width();
  const int most = std::min(qRound(widest * letterGrowth()), room);
  return natural <= most ? natural : narrowest(widget, text, most);
}

}  // namespace karvenis
