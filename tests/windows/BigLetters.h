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

}  // namespace karvenis
