#include "platform/qt/WindowPlace.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QScreen>
#include <QVBoxLayout>
#include <QWidget>

namespace karvenis {
namespace {

constexpr QSize size(200, 100);
constexpr int titleHeight = 24;

/// A window that takes its size from its layout and has not been shown, as when a form is loaded.
class WindowPlace : public testing::Test {
 protected:
  WindowPlace() {
    auto* content = new QWidget;
    content->setFixedSize(size);
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(content);
  }

  QPoint framedAt(QPointF place) {
    moveFrame(window, place);
    return window.pos();
  }
  QPoint movedOnto(QPoint place) {
    moveOntoScreen(window, place);
    return window.pos();
  }

  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  const int right = screen.right() + 1;
  const int bottom = screen.bottom() + 1;
  QWidget window;
};

TEST_F(WindowPlace, FramesGoWhereTheyAreWanted) {
  EXPECT_EQ(framedAt({40, 60}), QPoint(40, 60));
  EXPECT_EQ(framedAt({40.5, 60.4}), QPoint(41, 60));
}

TEST_F(WindowPlace, ATitleOfWhichOnePixelIsSeenStays) {
  const QPoint first(1 - size.width(), 1 - titleHeight);
  const QPoint last(right - 1, bottom - 1);
  EXPECT_EQ(framedAt(first), first);
  EXPECT_EQ(framedAt(last), last);
}

TEST_F(WindowPlace, ATitleThatWouldNotBeSeenComesOntoTheScreen) {
  const QPoint lastCorner(right - size.width(), bottom - size.height());
  EXPECT_EQ(framedAt({-size.width() * 1.0, 50}), QPoint(0, 50));
  EXPECT_EQ(framedAt({right * 1.0, 50}), QPoint(lastCorner.x(), 50));
  EXPECT_EQ(framedAt({50, -titleHeight * 1.0}), QPoint(50, 0));
  EXPECT_EQ(framedAt({50, bottom * 1.0}), QPoint(50, lastCorner.y()));
}

TEST_F(WindowPlace, PlacesBeyondAllNumbersComeOntoTheScreen) {
  const QPoint lastCorner(right - size.width(), bottom - size.height());
  EXPECT_EQ(framedAt({3e37, 3e37}), lastCorner);
  EXPECT_EQ(framedAt({-3e37, -3e37}), QPoint(0, 0));
}

TEST_F(WindowPlace, AWindowMovedOntoTheScreenIsSeenWholly) {
  const QPoint lastCorner(right - size.width(), bottom - size.height() - titleHeight);
  EXPECT_EQ(movedOnto({30, 70}), QPoint(30, 70));
  EXPECT_EQ(movedOnto({right, bottom}), lastCorner);
  EXPECT_EQ(movedOnto({-1, -1}), QPoint(0, 0));
}

TEST_F(WindowPlace, ThisPlatformTellsPlaces) { EXPECT_TRUE(desktopTellsPlaces()); }

}  // namespace
}  // namespace karvenis
