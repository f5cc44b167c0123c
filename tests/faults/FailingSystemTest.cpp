#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <random>

#include "doubles/SystemCalls.h"
#include "faults/DiskFolder.h"
#include "platform/SystemFiles.h"

namespace karvenis {
namespace {

std::string nameOf(const testing::TestParamInfo<Action>& info) {
  std::string name = info.param.name;
  std::ranges::replace(name, ' ', '_');
  return name;
}

/// Puts the hooks back whatever happens.
class Hooked {
 public:
  explicit Hooked(SystemCallHooks hooks) { systemCallHooks() = std::move(hooks); }
  ~Hooked() { systemCallHooks() = {}; }
  Hooked(const Hooked&) = delete;
  Hooked& operator=(const Hooked&) = delete;
};

bool isCopyUnderWay(const std::string& name) { return name.ends_with('~'); }

/// What a copy that was broken off has left is cleared away by the real files only, so memory does
/// without it.
Folder withoutCopies(Folder folder) {
  std::erase_if(folder, [](const auto& file) { return isCopyUnderWay(file.first); });
  return folder;
}

class FailingSystem : public testing::TestWithParam<Action> {
 protected:
  void expectWhole(bool died) {
    const Folder now = folder_.content();
    const Folder files = withoutCopies(now);
    EXPECT_EQ(damage(GetParam(), now, died), "");
    EXPECT_EQ(stumbles(GetParam(), files), "");
    if (files != now) {
      perform(GetParam(), files_);
      EXPECT_TRUE(folder_.content() == resultOf(GetParam(), files)) << "the next run stumbles";
    }
  }

  DiskFolder folder_;
  SystemFiles files_;
};

/// Runs the action in a child process that dies as `atCall` orders; true where it died.
bool diesInChild(const Action& action, const std::function<int(const SystemCall&)>& atCall) {
  const pid_t child = ::fork();
  if (child == 0) {
    systemCallHooks().before = atCall;
    SystemFiles files;
    try {
      perform(action, files);
    } catch (...) {
      ::_exit(2);
    }
    ::_exit(0);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  EXPECT_FALSE(WIFEXITED(status) && WEXITSTATUS(status) != 0);
  return WIFSIGNALED(status);
}

/// Nothing is to be told where a copy cannot delete what is not there before it begins.
bool isCleaning(const SystemCall& call) {
  return call.kind == SystemCall::Kind::unlink && isCopyUnderWay(call.name);
}

/// No space, no permission, an input/output error: each call in turn, once and from then on.
TEST_P(FailingSystem, AnErrorOfAnyCallLeavesOldOrNewBytes) {
  const Action& action = GetParam();
  for (const bool stays : {false, true}) {
    for (int at = 1;; ++at) {
      const int error = at % 3 == 0 ? ENOSPC : at % 3 == 1 ? EIO : EACCES;
      SCOPED_TRACE("call " + std::to_string(at) + (stays ? " and all later ones" : ""));
      folder_.fill(action.start);
      int calls = 0;
      bool told = false;
      bool harmless = false;
      try {
        const Hooked hooked({[&](const SystemCall& call) {
                               ++calls;
                               harmless = harmless || (calls == at && isCleaning(call));
                               return calls == at || (stays && calls > at) ? error : 0;
                             },
                             {}});
        perform(action, files_);
      } catch (const RunTimeError&) {
        told = true;
      }
      if (calls < at) break;
      EXPECT_TRUE(told || harmless || action.onFault == Action::OnFault::mayGoOn)
          << "failed unheard";
      expectWhole(false);
      if (HasFailure()) return;
    }
  }
}

TEST_P(FailingSystem, DeathAtAnyCallLeavesOldOrNewBytes) {
  const Action& action = GetParam();
  for (int at = 1;; ++at) {
    SCOPED_TRACE("call " + std::to_string(at));
    folder_.fill(action.start);
    int calls = 0;
    const bool died = diesInChild(action, [&](const SystemCall&) {
      if (++calls == at) ::kill(::getpid(), SIGKILL);
      return 0;
    });
    if (!died) break;
    expectWhole(true);
    if (HasFailure()) return;
  }
}

/// What a disk holds that loses its power: nothing that was not put there by a sync of the file,
/// and no name that was not by a sync of the folder.
class Disk {
 public:
  explicit Disk(const Folder& content) {
    for (const auto& [name, bytes] : content) {
      seen_[name] = lasting_[name] = inodes_.size();
      inodes_.push_back({bytes, bytes});
    }
  }

  void note(const SystemCall& call) {
    switch (call.kind) {
      case SystemCall::Kind::create:
        created(call);
        break;
      case SystemCall::Kind::write:
        put(inodes_[open_.at(call.file)].seen, call);
        break;
      case SystemCall::Kind::shorten:
        inodes_[open_.at(call.file)].seen.resize(static_cast<std::size_t>(call.offset));
        break;
      case SystemCall::Kind::mode:
        break;
      case SystemCall::Kind::sync:
        synced(call);
        break;
      case SystemCall::Kind::rename:
        seen_[base(call.to)] = seen_.at(base(call.name));
        seen_.erase(base(call.name));
        break;
      case SystemCall::Kind::unlink:
        seen_.erase(base(call.name));
        break;
    }
  }
  /// After the loss of all that was not synced.
  Folder withoutUnsynced() const { return content(lasting_, &Inode::lasting); }
  /// The same, but for the names, which had come to the disk sooner than they had to.
  Folder withNames() const { return content(seen_, &Inode::lasting); }
  /// The same, but for the bytes.
  Folder withBytes() const { return content(lasting_, &Inode::seen); }

  /// Knows the descriptor of a file that is opened and not created.
  void knows(int file, const std::string& name) { open_[file] = seen_.at(name); }

 private:
  struct Inode {
    Bytes seen, lasting;
  };
  using Names = std::map<std::string, std::size_t>;

  static std::string base(const std::string& path) {
    return std::filesystem::path(path).filename().string();
  }
  void created(const SystemCall& call) {
    const std::string name = base(call.name);
    if (!seen_.contains(name)) {
      seen_[name] = inodes_.size();
      inodes_.emplace_back();
    }
    open_[call.file] = seen_.at(name);
  }
  static void put(Bytes& bytes, const SystemCall& call) {
    const auto offset = static_cast<std::size_t>(call.offset);
    bytes.resize(std::max(bytes.size(), offset + call.bytes.size()));
    std::ranges::transform(call.bytes, bytes.begin() + static_cast<std::ptrdiff_t>(offset),
                           [](char c) { return static_cast<std::byte>(c); });
  }
  void synced(const SystemCall& call) {
    if (isFolder(call.file)) {
      lasting_ = seen_;
    } else {
      Inode& inode = inodes_[open_.at(call.file)];
      inode.lasting = inode.seen;
    }
  }
  static bool isFolder(int file) {
    return std::filesystem::is_directory("/proc/self/fd/" + std::to_string(file));
  }
  Folder content(const Names& names, Bytes Inode::*bytes) const {
    Folder all;
    for (const auto& [name, inode] : names) all[name] = inodes_[inode].*bytes;
    return all;
  }

  std::vector<Inode> inodes_;
  Names seen_, lasting_;
  std::map<int, std::size_t> open_;
};

/// The file that is open as `file`.
std::string nameOfOpen(int file) {
  return std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(file)).filename().string();
}

TEST_P(FailingSystem, APowerLossAfterAnyCallLeavesOldOrNewBytes) {
  const Action& action = GetParam();
  folder_.fill(action.start);
  Disk disk(action.start);
  std::vector<Folder> losses{action.start};
  {
    const Hooked hooked({[&](const SystemCall& call) {
                           using enum SystemCall::Kind;
                           if (call.kind == write || call.kind == shorten) {
                             disk.knows(call.file, nameOfOpen(call.file));
                           }
                           return 0;
                         },
                         [&](const SystemCall& call) {
                           disk.note(call);
                           losses.push_back(disk.withoutUnsynced());
                           losses.push_back(disk.withNames());
                           losses.push_back(disk.withBytes());
                         }});
    perform(action, files_);
  }
  for (std::size_t i = 0; i < losses.size(); ++i) {
    SCOPED_TRACE("loss " + std::to_string(i) + " of " + std::to_string(losses.size()));
    EXPECT_EQ(damage(action, losses[i], true), "");
    if (HasFailure()) return;
  }
  if (action.onFault == Action::OnFault::ends) {
    const Folder all = disk.withoutUnsynced();
    const Folder fresh = resultOf(action, action.start);
    for (const char* list : {"KARVENIS.RND", "KARVENIS.LST", "KARVENIS.DAT", "KV2005.CFG"}) {
      EXPECT_EQ(all.contains(list), fresh.contains(list)) << list;
      if (!all.contains(list) || !fresh.contains(list)) continue;
      EXPECT_TRUE(all.at(list) == fresh.at(list)) << list << " is not safe";
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Every, FailingSystem, testing::ValuesIn(actions()), nameOf);

/// Kills the process of a random action at random moments. KARVENIS_ROUNDS=1000 is the long form.
TEST(RandomKills, LeaveOldOrNewBytes) {
  std::mt19937 random(2005);
  DiskFolder folder;
  int killed = 0;
  const int wanted = rounds(40);
  for (int round = 0; round < wanted; ++round) {
    const Action& action = actions()[random() % actions().size()];
    SCOPED_TRACE(std::string(action.name) + ", round " + std::to_string(round));
    folder.fill(action.start);
    const pid_t child = ::fork();
    if (child == 0) {
      SystemFiles files;
      perform(action, files);
      ::_exit(0);
    }
    ::usleep(static_cast<useconds_t>(random() % 8'000));
    ::kill(child, SIGKILL);
    int status = 0;
    ::waitpid(child, &status, 0);
    if (WIFSIGNALED(status)) ++killed;
    const Folder now = folder.content();
    EXPECT_EQ(damage(action, now, true), "");
    EXPECT_EQ(stumbles(action, withoutCopies(now)), "");
    if (testing::Test::HasFailure()) return;
  }
  testing::Test::RecordProperty("killed", killed);
  std::printf("%d of %d processes were killed in the middle\n", killed, wanted);
}

}  // namespace
}  // namespace karvenis
