#pragma once

#include <QPointF>

class QWidget;

namespace karvenis {

/// Whether a program can learn where its windows are. On a Wayland desktop it cannot: the places
/// that the toolkit reports there mean nothing.
[[nodiscard]] bool desktopTellsPlaces();

/// Moves the frame of `window` to `place` (device independent pixels). If its title would lie on no
/// screen, the window goes to the nearest one.
void moveFrame(QWidget& window, QPointF place);

/// Moves `window` to the point nearest to `place` (device independent pixels) at which it lies
/// wholly on one screen.
void moveOntoScreen(QWidget& window, QPoint place);

}  // namespace karvenis
