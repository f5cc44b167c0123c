#pragma once

#include <QSize>

class QString;
class QWidget;

namespace karvenis {

/// The size that `text` takes in the letters of `widget` when its lines are broken at `width`.
QSize textSize(const QWidget& widget, const QString& text, int width);

/// How wide `text` reads best in the letters of `widget`: in full lines up to about a hundred
/// letters and up to `room`; lines that must be broken are about as long as each other, so that no
/// word is left alone on the last one.
int readableWidth(const QWidget& widget, const QString& text, int room);

}  // namespace karvenis
