#pragma once

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "core/Surroundings.h"
#include "doubles/MemoryFiles.h"
#include "platform/TitleBar.h"

namespace karvenis {

/// The bytes of every file in a folder.
using Folder = std::map<std::string, Bytes>;

/// A command of the user that touches files, answered with Yes throughout.
struct Action {
  const char* name;
  /// What the folder holds before it; shared, since the test library copies every action for every
  /// test.
  std::shared_ptr<const Folder> start;
  void (*run)(Surroundings& around, TitleBar& title);
  /// What it does with a file that fails: nearly every command ends the program, a few go on with
  /// their next step.
  enum class OnFault { ends, mayGoOn } onFault = OnFault::ends;
  /// Whether it marks the records of the combination list in place before it thins it out.
  bool marks = false;

  friend void PrintTo(const Action& action, std::ostream* out) { *out << action.name; }
};

/// The action's name as that of a test.
std::string nameOf(const testing::TestParamInfo<Action>& info);

/// Every command that touches a file. The lists hold more columns than one block of memory.
const std::vector<Action>& actions();

/// Runs the action with a world of its own, always the same but for `files`.
void perform(const Action& action, Files& files);
/// What the folder holds after an undisturbed run from `start`.
Folder resultOf(const Action& action, const Folder& start);

/// Empty if every list in `now` holds its old or its new bytes, or the marks that the action may
/// leave while the backup is intact; else what is wrong. `died` asks, too, that nothing is gone
/// whose successor is not there.
std::string damage(const Action& action, const Folder& now, bool died);
/// Empty if an undisturbed run from `now` does what it does without anything left over in the
/// folder, and leaves nothing over itself; else what is wrong.
std::string stumbles(const Action& action, const Folder& now);

}  // namespace karvenis
