#pragma once

#include <QPointF>

class QWidget;

namespace karvenis {

/// Whether the desktop tells a program where its windows stand. A Wayland desktop never does: what
/// the toolkit reports there is not a place.
[[nodiscard]] bool desktopTellsPlaces();

/// Moves the frame of `window` to `place` (device independent pixels). If its title would lie on no
/// screen, the window goes to the nearest one.
void moveFrame(QWidget& window, QPointF place);

/// Moves `window` as near to `place` as it lies wholly on a screen there.
void moveOntoScreen(QWidget& window, QPoint place);

}  // namespace karvenis
