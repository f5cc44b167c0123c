#pragma once

#include <string_view>

namespace karvenis {

/// The door to the program's windows, which have names ("frmBalls"): one room can open a window of
/// another without including it.
class Windows {
 public:
  virtual ~Windows() = default;
  /// Shows the window `form`, not modal, and makes it first if it is not open. An open one comes to
  /// the front.
  virtual void show(std::string_view form) = 0;
  /// Has a screen reader speak `words` when the running procedure has ended; of several calls the
  /// last one counts. The focus stays where it is.
  virtual void announce(std::string_view words) = 0;
  /// Work through a list begins: the keys and clicks that come until it has ended, or a box opens,
  /// are dropped, so that they do not become commands after it.
  virtual void dropInput() = 0;
  /// Closes every window and ends the program with status 0, without a question.
  virtual void end() = 0;
};

}  // namespace karvenis
