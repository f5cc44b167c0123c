#include "platform/qt/QtClock.h"

#include <QRegularExpression>

#include "platform/qt/Text.h"
#include "windows/WindowTest.h"

namespace karvenis {
namespace {

bool matches(const std::string& text, const char* pattern) {
  return QRegularExpression(QRegularExpression::anchoredPattern(QLatin1String(pattern)))
      .match(toQt(text))
      .hasMatch();
}

TEST(QtClock, TellsTheTimeInTwoDigitsEach) {
  QtClock clock;
  EXPECT_TRUE(matches(clock.time(), "([01][0-9]|2[0-3]):[0-5][0-9]:[0-5][0-9]")) << clock.time();
}

TEST(QtClock, TellsTodayInTheSystemsShortForm) {
  QtClock clock;
  const auto today = [] {
    return fromQt(QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat));
  };
  std::string before, told;
  do {  // midnight may pass in between
    before = today();
    told = clock.date();
  } while (today() != before);
  EXPECT_EQ(told, before);
  EXPECT_FALSE(matches(told, ".*[a-zA-Z]{4,}.*")) << "not a long form";
}

TEST(QtClock, ItsPartsAgree) {
  QtClock clock;
  std::string before;
  std::int16_t minute = 0;
  std::int64_t moment = 0;
  do {
    before = clock.time();
    minute = clock.minute();
    moment = clock.sinceMidnight();
  } while (clock.time() != before);
  EXPECT_EQ(minute, std::stoi(before.substr(3, 2)));
  const std::int64_t seconds = moment / 1'000'000;
  EXPECT_EQ(seconds,
            std::stoi(before.substr(0, 2)) * 3600 + minute * 60 + std::stoi(before.substr(6, 2)));
}

}  // namespace
}  // namespace karvenis
