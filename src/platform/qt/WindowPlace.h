#pragma once

#include <QPointF>

class QWidget;

namespace karvenis {

/// Moves the frame of `window` to `place` (device independent pixels). Where its title would lie on
/// no screen, the window goes to the nearest one.
void moveFrame(QWidget& window, QPointF place);

/// Moves `window` as near to `place` as it lies wholly on a screen there.
void moveOntoScreen(QWidget& window, QPoint place);

}  // namespace karvenis
