#pragma once

#include <QSize>
#include <functional>

class QWidget;

namespace karvenis {

/// How high the letters are that the windows are drawn for: device independent pixels, 9.75 points.
inline constexpr int designedLetters = 13;

/// How many times larger the desktop's letters are than those; at least 1.
[[nodiscard]] double letterGrowth();

/// The room that a window has on the screen inside its frame, in device independent pixels.
[[nodiscard]] QSize roomOnScreen();

/// Gives `widget` letters `pixels` high (device independent).
void setLetters(QWidget& widget, double pixels);

/// Calls `resize` with the factor by which the pictures and large numbers of `window` grow: that of
/// the letters if the window then fits on the screen, else the largest with which it fits, at
/// least 1. `resize` may be called several times; the last call counts. Precondition: the window
/// has a layout.
void growWithLetters(QWidget& window, const std::function<void(double)>& resize);

}  // namespace karvenis
