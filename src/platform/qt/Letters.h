#pragma once

#include <QSize>
#include <functional>

class QWidget;

namespace karvenis {

/// How many times larger the desktop's letters are than those that the windows are drawn for, which
/// are 13 pixels (9.75 points) high; at least 1.
double letterGrowth();

/// The room that a window has on the screen inside its frame, in device independent pixels.
QSize roomOnScreen();

/// Calls `size` with the factor by which the pictures and large numbers of `window` grow: that of
/// the letters if the window then fits on the screen, else the largest with which it fits, at
/// least 1. `size` may be called several times; the last call counts. Precondition: the window has
/// a layout.
void growWithLetters(QWidget& window, const std::function<void(double)>& size);

}  // namespace karvenis
