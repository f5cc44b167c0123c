#pragma once

#include "platform/Clock.h"

namespace karvenis {

/// The system's local time; the date in the short form of the user's language settings.
class QtClock final : public Clock {
 public:
  std::string date() override;
  std::string time() override;
  std::int16_t minute() override;
  std::int64_t sinceMidnight() override;
};

}  // namespace karvenis
