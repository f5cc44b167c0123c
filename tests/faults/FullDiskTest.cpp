#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

#include "faults/OnDisk.h"

namespace karvenis {
namespace {

constexpr char noSpace[] = "Diskte yer kalmadı.";

class FullDisk : public OnDisk {
 protected:
  /// Whether the action ended in the fault of a full disk.
  bool isTold(const Action& action) {
    try {
      perform(action, files_);
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.reason(), noSpace);
      return true;
    }
    return false;
  }
  void expectToldAndWhole(const Action& action, bool told) {
    EXPECT_TRUE(told || action.onFault == Action::OnFault::mayGoOn) << "the full disk is not told";
    expectWhole(action, false);
  }
};

/// The same with lists of a hundred columns at most.
Action withShortLists(Action action) {
  Folder start = *action.start;
  for (auto& [name, bytes] : start) bytes.resize(std::min<std::size_t>(bytes.size(), 1600));
  action.start = std::make_shared<Folder>(std::move(start));
  return action;
}

/// A disk on which files can still grow by so many bytes, all told.
class Space {
 public:
  explicit Space(std::size_t left) : left_(left) {}

  std::size_t takes(const SystemCall& write) {
    struct stat status {};
    EXPECT_EQ(::fstat(write.file, &status), 0);
    const off_t from = std::max(write.offset, status.st_size);
    const off_t end = write.offset + static_cast<off_t>(write.bytes.size());
    const auto growth = static_cast<std::size_t>(std::max<off_t>(end - from, 0));
    const std::size_t taken = std::min(growth, left_);
    left_ -= taken;
    full_ = full_ || taken < growth;
    return write.bytes.size() - (growth - taken);
  }
  bool isFull() const { return full_; }

 private:
  std::size_t left_;
  bool full_ = false;
};

TEST_P(FullDisk, AfterAnyByteIsToldAndKeepsEveryListWhole) {
  const Action action = withShortLists(GetParam());
  const bool isLong = std::string(action.name).starts_with("generate");
  const std::size_t eachByte = isLong ? 16 : 260;
  for (std::size_t left = 0;; left += left < eachByte ? 1 : left / 4) {
    SCOPED_TRACE("full after " + std::to_string(left) + " bytes");
    folder_.fill(*action.start);
    Space space(left);
    bool told = false;
    {
      const Hooked hooked({.room = [&](const SystemCall& write) { return space.takes(write); }});
      told = isTold(action);
    }
    if (!space.isFull()) break;
    expectToldAndWhole(action, told);
    expectWorksAgain(action);
    if (HasFailure()) return;
  }
}

constexpr int mountRefused = 77;
constexpr std::size_t pageSize = 4096;

void put(const char* file, const std::string& text) {
  const int open = ::open(file, O_WRONLY);
  if (open < 0 || ::write(open, text.data(), text.size()) < 0) ::_exit(mountRefused);
  ::close(open);
}

/// Puts a small file system in memory in the place of `folder`, for this process only; ends the
/// process if the kernel does not let it.
void mountSmallDisk(const std::string& folder) {
  const std::string me = std::to_string(::geteuid());
  const std::string mine = std::to_string(::getegid());
  if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) ::_exit(mountRefused);
  put("/proc/self/setgroups", "deny");
  put("/proc/self/uid_map", "0 " + me + " 1");
  put("/proc/self/gid_map", "0 " + mine + " 1");
  if (::mount("karvenis", folder.c_str(), "tmpfs", 0, "size=512k") != 0) ::_exit(mountRefused);
  std::filesystem::current_path(folder);
}

/// Takes all of the disk but so many pages.
void fillUp(std::size_t pages) {
  std::filesystem::create_directory("ballast");
  const int ballast = ::open("ballast/all", O_CREAT | O_TRUNC | O_RDWR | O_CLOEXEC, 0600);
  const std::string block(pageSize, 'b');
  while (::write(ballast, block.data(), block.size()) > 0) {
  }
  struct stat status {};
  EXPECT_EQ(::fstat(ballast, &status), 0);
  EXPECT_EQ(::ftruncate(ballast, status.st_size - static_cast<off_t>(pages * pageSize)), 0);
  ::close(ballast);
}

class FullFileSystem : public FullDisk {
 protected:
  /// With no page left, then with one, until that is enough.
  void fillPageByPage(const Action& action) {
    mountSmallDisk(folder_.path());
    const Folder result = resultOf(action, *action.start);
    for (std::size_t pages = 0; pages < 64 && !HasFailure(); ++pages) {
      SCOPED_TRACE(std::to_string(pages) + " pages left");
      folder_.fill(*action.start);
      fillUp(pages);
      const bool told = isTold(action);
      if (!told && folder_.content() == result) return;
      std::filesystem::remove_all("ballast");
      expectToldAndWhole(action, told);
      expectWorksAgain(action);
    }
    EXPECT_TRUE(HasFailure()) << "no space is enough";
  }
};

TEST_P(FullFileSystem, IsToldAndKeepsEveryListWhole) {
  std::fflush(stdout);
  const pid_t child = ::fork();
  if (child == 0) {
    fillPageByPage(GetParam());
    std::fflush(stdout);
    ::_exit(HasFailure() ? 1 : 0);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  ASSERT_TRUE(WIFEXITED(status));
  if (WEXITSTATUS(status) == mountRefused) {
    GTEST_SKIP() << "the kernel lets no user mount a file system of his own here";
  }
  EXPECT_EQ(WEXITSTATUS(status), 0);
}

INSTANTIATE_TEST_SUITE_P(Every, FullDisk, testing::ValuesIn(actions()), nameOf);
INSTANTIATE_TEST_SUITE_P(Every, FullFileSystem, testing::ValuesIn(actions()), nameOf);

}  // namespace
}  // namespace karvenis
