#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <ctime>
#include <random>

#include "faults/OnDisk.h"

namespace karvenis {
namespace {

using Clock = std::chrono::steady_clock;

/// When an undisturbed run made each of its calls that change files, and when it ended.
struct Timetable {
  int calls;
  std::array<Clock::time_point, 1000> moments;

  void note() { moments.at(static_cast<std::size_t>(calls++)) = Clock::now(); }
  /// The nanoseconds from a call (from 0) to the next one, or to the end.
  std::int64_t after(int call) const {
    const auto at = static_cast<std::size_t>(call);
    return std::chrono::nanoseconds(moments.at(at + 1) - moments.at(at)).count();
  }
};

/// The same memory in this process and in those that it forks.
Timetable& sharedTimetable() {
  static void* memory =
      ::mmap(nullptr, sizeof(Timetable), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  EXPECT_NE(memory, MAP_FAILED);
  return *new (memory) Timetable{};
}

/// Runs the action in a child process; true if that was killed. `atCall` gets the number (from
/// 0) of each call that changes files, just before it is made.
bool killedInChild(const Action& action, const std::function<void(int call)>& atCall,
                   const std::function<void()>& atEnd) {
  const pid_t child = ::fork();
  if (child == 0) {
    int calls = 0;
    systemCallHooks().before = [&](const SystemCall&) {
      atCall(calls++);
      return 0;
    };
    SystemFiles files;
    perform(action, files);
    atEnd();
    ::_exit(0);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  EXPECT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0);
  return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

/// Has the system kill this process when so many nanoseconds have passed, whatever it does then.
void beKilledAfter(std::int64_t nanoseconds) {
  sigevent kill{};
  kill.sigev_notify = SIGEV_SIGNAL;
  kill.sigev_signo = SIGKILL;
  timer_t timer{};
  const itimerspec moment{{}, {nanoseconds / 1'000'000'000, nanoseconds % 1'000'000'000}};
  if (::timer_create(CLOCK_MONOTONIC, &kill, &timer) != 0 ||
      ::timer_settime(timer, 0, &moment, nullptr) != 0) {
    ::_exit(1);
  }
}

/// An action that changes files, with the moments at which an undisturbed run does so.
struct Victim {
  const Action* action;
  Timetable times;
  Folder result;
};

std::vector<Victim> victims(DiskFolder& folder) {
  std::vector<Victim> all;
  for (const Action& action : actions()) {
    Timetable& times = sharedTimetable();
    folder.fill(*action.start);
    EXPECT_FALSE(killedInChild(
        action, [&](int) { times.note(); }, [&] { times.note(); }));
    --times.calls;  // the end
    if (times.calls > 0) all.push_back({&action, times, folder.content()});
  }
  return all;
}

/// Kills the process of a random action at a random moment after the first and before the last
/// change to its files; one that had ended sooner is run again. KARVENIS_ROUNDS=1000 is the long
/// form.
TEST(RandomKills, LeaveOldOrNewBytes) {
  std::mt19937 random(2005);
  DiskFolder folder;
  const std::vector<Victim> all = victims(folder);
  const int wanted = rounds(150);
  int killed = 0;
  int tries = 0;
  int halfWay = 0;
  while (killed < wanted) {
    ASSERT_LT(++tries, 20 * wanted) << "the processes end before they are killed";
    const auto& [action, times, result] = all[random() % all.size()];
    SCOPED_TRACE(std::string(action->name) + ", try " + std::to_string(tries));
    const int at = static_cast<int>(random() % static_cast<unsigned>(times.calls));
    const auto delay =
        1 + static_cast<std::int64_t>(random() % static_cast<std::uint64_t>(times.after(at) + 1));
    folder.fill(*action->start);
    if (!killedInChild(
            *action,
            [&](int call) {
              if (call == at) beKilledAfter(delay);
            },
            [] {})) {
      continue;
    }
    ++killed;
    const Folder now = folder.content();
    if (now != *action->start && now != result) ++halfWay;
    EXPECT_EQ(damage(*action, now, true), "");
    EXPECT_EQ(stumbles(*action, withoutCopies(now)), "");
    if (testing::Test::HasFailure()) return;
  }
  testing::Test::RecordProperty("killed", killed);
  std::printf("%d processes were killed at work, %d of them with files neither old nor new; %d ",
              killed, halfWay, tries - killed);
  std::printf("had ended before and were run again\n");
  EXPECT_GT(halfWay, wanted / 10);
}

}  // namespace
}  // namespace karvenis
