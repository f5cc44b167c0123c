#pragma once

#include <string_view>

namespace karvenis {

/// The door to the program's windows, which have names ("frmBalls"): one module can open a window
/// of another without including it.
class Windows {
 public:
  virtual ~Windows() = default;
  /// Shows the window `form`, not modal, and makes it first if it is not open. An open one comes to
  /// the front. Precondition: the program has a window of that name.
  virtual void show(std::string_view form) = 0;
  /// Has a screen reader speak `words` when the running procedure has ended; of several calls the
  /// last one counts. The focus stays where it is.
  virtual void announce(std::string_view words) = 0;
  /// Drops the keys and clicks that wait, and those that come until the running procedure ends or
  /// opens a box. Called before a list is worked through, so that what an impatient user presses
  /// meanwhile does not become a command afterwards.
  virtual void dropInput() = 0;
  /// Closes every window and ends the program with status 0, without a question.
  virtual void end() = 0;
};

}  // namespace karvenis
