#include <gtest/gtest.h>

#include "doubles/FailingFiles.h"
#include "faults/Actions.h"

namespace karvenis {
namespace {

struct Trouble {
  const char* name;
  Mishap mishap;
  const char* words;
  bool stays = false;
};

constexpr Trouble faults[] = {
    {"NoSpace", Mishap::fault, "no space left on device"},
    {"NoPermissionAnyMore", Mishap::fault, "permission denied", true},
    {"ErrorHalfWay", Mishap::halfFault, "input/output error"},
};
constexpr Trouble deaths[] = {
    {"DeathBefore", Mishap::death, ""},
    {"DeathHalfWay", Mishap::halfDeath, ""},
};

enum class Outcome { clean, fault, killed };

/// Runs the action in `folder` with trouble at its `at`-th call.
Outcome disturb(const Action& action, MemoryFiles& folder, const Trouble& trouble, int at) {
  FailingFiles files(folder);
  files.failAt(at, trouble.mishap, trouble.words, trouble.stays);
  try {
    perform(action, files);
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.reason(), trouble.words);
    return Outcome::fault;
  } catch (const Killed&) {
    return Outcome::killed;
  }
  return files.calls() < at ? Outcome::clean : Outcome::fault;
}

class FailingDoor : public testing::TestWithParam<Action> {
 protected:
  /// Tries every call of the action in turn; returns how many there were.
  int disturbEveryCall(const Trouble& trouble) {
    const Action& action = GetParam();
    for (int at = 1;; ++at) {
      SCOPED_TRACE(std::string(action.name) + ", " + trouble.name + " at call " +
                   std::to_string(at));
      MemoryFiles folder;
      folder.folder = *action.start;
      const Outcome outcome = disturb(action, folder, trouble, at);
      if (outcome == Outcome::clean) return at - 1;
      EXPECT_EQ(damage(action, folder.folder, outcome == Outcome::killed), "");
      EXPECT_EQ(stumbles(action, folder.folder), "");
      if (HasFailure()) return at;
    }
  }
};

TEST_P(FailingDoor, AFaultAtAnyCallLeavesOldOrNewBytes) {
  for (const Trouble& trouble : faults) EXPECT_GT(disturbEveryCall(trouble), 0);
}

TEST_P(FailingDoor, DeathAtAnyCallLeavesOldOrNewBytes) {
  for (const Trouble& trouble : deaths) EXPECT_GT(disturbEveryCall(trouble), 0);
}

/// A fault either ends the command, so that the user is told, or is one that it goes on after.
TEST_P(FailingDoor, NoFaultIsSwallowedUnlessTheCommandGoesOn) {
  const Action& action = GetParam();
  if (action.onFault == Action::OnFault::mayGoOn) return;
  for (int at = 1;; ++at) {
    MemoryFiles folder;
    folder.folder = *action.start;
    FailingFiles files(folder);
    files.failAt(at, Mishap::fault);
    bool told = false;
    try {
      perform(action, files);
    } catch (const RunTimeError&) {
      told = true;
    }
    if (files.calls() < at) break;
    EXPECT_TRUE(told) << action.name << ": call " << at << " failed unheard";
  }
}

INSTANTIATE_TEST_SUITE_P(Every, FailingDoor, testing::ValuesIn(actions()), nameOf);

}  // namespace
}  // namespace karvenis
