#include "platform/qt/QtClock.h"

#include <QDate>
#include <QLocale>
#include <QTime>
#include <chrono>

#include "platform/qt/Text.h"

using namespace Qt::StringLiterals;

namespace karvenis {

std::string QtClock::date() {
  return fromQt(QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat));
}

std::string QtClock::time() { return fromQt(QTime::currentTime().toString(u"HH:mm:ss"_s)); }

std::int16_t QtClock::minute() { return static_cast<std::int16_t>(QTime::currentTime().minute()); }

std::int64_t QtClock::sinceMidnight() {
  using namespace std::chrono;
  const std::int64_t now =
      duration_cast<microseconds>(system_clock::now().time_since_epoch()).count();
  const std::int64_t ofMillisecond = now % 1000;
  return std::int64_t{QTime::currentTime().msecsSinceStartOfDay()} * 1000 + ofMillisecond;
}

}  // namespace karvenis
