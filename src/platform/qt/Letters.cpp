#include "platform/qt/Letters.h"

#include <QApplication>
#include <QFontInfo>
#include <QLayout>
#include <QScreen>
#include <QWidget>
#include <algorithm>

namespace karvenis {
namespace {

constexpr QSize frame(12, 36);  // about what window managers put around a window
constexpr double leastNoticed =
    1.25;  // below it pictures keep their own size, in which they are sharpest
constexpr double step = 0.05;

bool hasRoom(const QWidget& window) {
  const auto layouts = window.findChildren<QLayout*>();  // the innermost ones last
  std::for_each(layouts.rbegin(), layouts.rend(), [](QLayout* layout) {
    layout->invalidate();
    layout->activate();
  });
  const QSize wanted = window.sizeHint();
  return wanted.boundedTo(roomOnScreen()) == wanted;
}

}  // namespace

double letterGrowth() {
  return std::max(1.0, QFontInfo(QApplication::font()).pixelSize() / double{designedLetters});
}

QSize roomOnScreen() { return QGuiApplication::primaryScreen()->availableSize() - frame; }

void setLetters(QWidget& widget, double pixels) {
  QFont letters = widget.font();
  letters.setPixelSize(qRound(pixels));
  widget.setFont(letters);
}

void growWithLetters(QWidget& window, const std::function<void(double)>& resize) {
  double growth = letterGrowth();
  if (growth < leastNoticed) growth = 1;
  resize(growth);
  while (growth > 1 && !hasRoom(window)) {
    growth = std::max(1.0, growth - step);
    resize(growth);
  }
}

}  // namespace karvenis
