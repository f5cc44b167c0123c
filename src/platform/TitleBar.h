#pragma once

#include <string_view>

namespace karvenis {

/// A window's title, which doubles as its status line and as the progress display of long actions.
class TitleBar {
 public:
  virtual ~TitleBar() = default;
  /// Shows `caption`, a UTF-8 text, as the title.
  virtual void setCaption(std::string_view caption) = 0;
};

}  // namespace karvenis
