#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "faults/OnDisk.h"

namespace karvenis {
namespace {

class FailingSystem : public OnDisk {};

/// Runs the action in a child process that dies as `atCall` orders; true if it died.
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

/// No fault is reported if a copy cannot delete what is not there before it begins.
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
      folder_.fill(*action.start);
      int calls = 0;
      bool told = false;
      bool harmless = false;
      try {
        const auto failAt = [&](const SystemCall& call) {
          ++calls;
          harmless = harmless || (calls == at && isCleaning(call));
          return calls == at || (stays && calls > at) ? error : 0;
        };
        const Hooked hooked({.before = failAt});
        perform(action, files_);
      } catch (const RunTimeError& fault) {
        told = true;
        EXPECT_EQ(fault.subject().find('/'), std::string::npos)
            << fault.subject() << " is no name that the user knows";
      }
      if (calls < at) break;
      EXPECT_TRUE(told || harmless || action.onFault == Action::OnFault::mayGoOn)
          << "failed unheard";
      expectWhole(action, false);
      if (HasFailure()) return;
    }
  }
}

TEST_P(FailingSystem, DeathAtAnyCallLeavesOldOrNewBytes) {
  const Action& action = GetParam();
  for (int at = 1;; ++at) {
    SCOPED_TRACE("call " + std::to_string(at));
    folder_.fill(*action.start);
    int calls = 0;
    const bool died = diesInChild(action, [&](const SystemCall&) {
      if (++calls == at) ::kill(::getpid(), SIGKILL);
      return 0;
    });
    if (!died) break;
    expectWhole(action, true);
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

TEST_P(FailingSystem, APowerLossAfterAnyCallLeavesOldOrNewBytes) {
  const Action& action = GetParam();
  folder_.fill(*action.start);
  Disk disk(*action.start);
  std::vector<Folder> losses{*action.start};
  {
    const auto learnName = [&](const SystemCall& call) {
      using enum SystemCall::Kind;
      if (call.kind == write || call.kind == shorten) disk.knows(call.file, nameOfOpen(call.file));
      return 0;
    };
    const auto losePower = [&](const SystemCall& call) {
      disk.note(call);
      losses.push_back(disk.withoutUnsynced());
      losses.push_back(disk.withNames());
      losses.push_back(disk.withBytes());
    };
    const Hooked hooked({.before = learnName, .done = losePower});
    perform(action, files_);
  }
  for (std::size_t i = 0; i < losses.size(); ++i) {
    SCOPED_TRACE("loss " + std::to_string(i) + " of " + std::to_string(losses.size()));
    EXPECT_EQ(damage(action, losses[i], true), "");
    if (HasFailure()) return;
  }
  if (action.onFault == Action::OnFault::ends) {
    const Folder all = disk.withoutUnsynced();
    const Folder fresh = resultOf(action, *action.start);
    for (const char* list : {"KARVENIS.RND", "KARVENIS.LST", "KARVENIS.DAT", "KV2005.CFG"}) {
      EXPECT_EQ(all.contains(list), fresh.contains(list)) << list;
      if (!all.contains(list) || !fresh.contains(list)) continue;
      EXPECT_TRUE(all.at(list) == fresh.at(list)) << list << " is not safe";
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Every, FailingSystem, testing::ValuesIn(actions()), nameOf);

}  // namespace
}  // namespace karvenis
