#pragma once

#include <QSize>

class QString;
class QWidget;

namespace karvenis {

/// The size that `text` takes in the letters of `widget` when its lines are broken at `width`.
[[nodiscard]] QSize textSize(const QWidget& widget, const QString& text, int width);

/// The width in which `text` reads best in the letters of `widget`: that of its longest line, but
/// at most `room` and about a hundred letters. If lines must be broken, they become about equally
/// long, so that no word is left alone on the last one.
[[nodiscard]] int readableWidth(const QWidget& widget, const QString& text, int room);

}  // namespace karvenis
