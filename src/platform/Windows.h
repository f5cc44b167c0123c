#pragma once

#include <string_view>

namespace karvenis {

/// The program's windows by name ("frmBalls"), so that one room can open another's window without
/// knowing it.
class Windows {
 public:
  virtual ~Windows() = default;
  /// Shows the window modeless, making it first if it does not exist; an open one comes to the
  /// front.
  virtual void show(std::string_view form) = 0;
  /// Leaves words for those who have the windows read to them: the last ones that a procedure left
  /// are spoken when it has ended. The focus stays where it is.
  virtual void announce(std::string_view words) = 0;
  /// Closes every window and ends the program with status 0, without a question.
  virtual void end() = 0;
};

}  // namespace karvenis
