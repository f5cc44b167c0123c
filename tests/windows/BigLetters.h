#pragma once

#include <QFontDatabase>
#include <QScreen>

#include "platform/qt/Letters.h"
#include "windows/WindowTest.h"

namespace karvenis {

/// Gives the desktop letters of `family`, `growth` times as large as usual, until it goes.
class BigLetters {
 public:
  BigLetters(const char* family, double growth) {
    EXPECT_TRUE(QFontDatabase::hasFamily(QLatin1String(family))) << family;
    QFont letters(QString::fromLatin1(family));
    letters.setPointSizeF(10 * growth);
    QApplication::setFont(letters);
  }
  ~BigLetters() { QApplication::setFont(usual_); }
  BigLetters(const BigLetters&) = delete;
  BigLetters& operator=(const BigLetters&) = delete;

 private:
  const QFont usual_ = QApplication::font();
};

/// Whether `window` and its frame have room on the screen.
inline bool fitsOnScreen(const QWidget& window) {
  return window.size().boundedTo(roomOnScreen()) == window.size();
}

/// How far to the right `page` is painted on, in device pixels.
inline int inkEdge(QWidget& page) {
  const QImage image = page.grab().toImage();
  for (int x = image.width() - 1; x >= 0; --x) {
    for (int y = 0; y < image.height(); ++y) {
      if (image.pixelColor(x, y) != QColor(Qt::white)) return x;
    }
  }
  return 0;
}

}  // namespace karvenis
