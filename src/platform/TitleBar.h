#pragma once

#include <string_view>

namespace karvenis {

/// A window's title, which doubles as its status line and as the progress display of long actions.
class TitleBar {
 public:
  virtual ~TitleBar() = default;
  virtual void setCaption(std::string_view caption) = 0;
};

}  // namespace karvenis
