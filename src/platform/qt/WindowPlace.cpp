#include "platform/qt/WindowPlace.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace karvenis {
namespace {

/// About as high as window managers make a title, in pixels.
constexpr int titleHeight = 24;

bool isOnScreen(const QRect& area) {
  const auto screens = QGuiApplication::screens();
  return std::ranges::any_of(
      screens, [&](const QScreen* screen) { return screen->geometry().intersects(area); });
}

/// The place nearest to `frame` that lies wholly on a screen; the toolkit always has one.
QPoint nearestPlace(const QRect& frame) {
  const auto placeOn = [&frame](const QScreen* screen) {
    const QRect area = screen->availableGeometry();
    return QPoint(
        std::clamp(frame.x(), area.left(), std::max(area.left(), area.right() + 1 - frame.width())),
        std::clamp(frame.y(), area.top(),
                   std::max(area.top(), area.bottom() + 1 - frame.height())));
  };
  const auto distance = [&](const QScreen* screen) {
    return (placeOn(screen) - frame.topLeft()).manhattanLength();
  };
  return placeOn(std::ranges::min(QGuiApplication::screens(), {}, distance));
}

}  // namespace

bool desktopTellsPlaces() { return !QGuiApplication::platformName().startsWith("wayland"_L1); }

void moveOntoScreen(QWidget& window, QPoint place) {
  window.adjustSize();
  window.move(nearestPlace({place, window.size() + QSize(0, titleHeight)}));
}

void moveFrame(QWidget& window, QPointF place) {
  constexpr double farthest = 1'000'000;  // beyond any screen, and safe to compute with
  const QPoint wanted = QPointF(std::clamp(place.x(), -farthest, farthest),
                                std::clamp(place.y(), -farthest, farthest))
                            .toPoint();
  // Sized first: a resize after the move would make the toolkit take `wanted` for the corner of the
  // client area.
  window.adjustSize();
  const QRect frame(wanted, window.size());
  const QRect title(frame.topLeft(), QSize(frame.width(), titleHeight));
  window.move(isOnScreen(title) ? wanted : nearestPlace(frame));
}

}  // namespace karvenis
