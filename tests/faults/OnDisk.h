#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>

#include "doubles/SystemCalls.h"
#include "faults/DiskFolder.h"
#include "platform/SystemFiles.h"

namespace karvenis {

/// Has the system's calls pass the hooks as long as this lives.
class Hooked {
 public:
  explicit Hooked(SystemCallHooks hooks) { systemCallHooks() = std::move(hooks); }
  ~Hooked() { systemCallHooks() = {}; }
  Hooked(const Hooked&) = delete;
  Hooked& operator=(const Hooked&) = delete;
};

/// The name, without its folder, of the file that is open as descriptor `file`.
inline std::string nameOfOpen(int file) {
  return std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(file)).filename().string();
}

inline bool isCopyUnderWay(const std::string& name) { return name.ends_with('~'); }

/// What a copy that was broken off has left is cleared away by the real files only, so memory does
/// without it.
inline Folder withoutCopies(Folder folder) {
  std::erase_if(folder, [](const auto& file) { return isCopyUnderWay(file.first); });
  return folder;
}

/// An action on real files in a folder of its own.
class OnDisk : public testing::TestWithParam<Action> {
 protected:
  /// Every list holds its old or its new bytes, and nothing left over stands in the way of the next
  /// run.
  void expectWhole(const Action& action, bool died) {
    const Folder now = folder_.content();
    EXPECT_EQ(damage(action, now, died), "");
    EXPECT_EQ(stumbles(action, withoutCopies(now)), "");
    if (withoutCopies(now) != now) expectWorksAgain(action);
  }
  /// The action does all of its work on what is there now.
  void expectWorksAgain(const Action& action) {
    const Folder now = withoutCopies(folder_.content());
    perform(action, files_);
    EXPECT_TRUE(folder_.content() == resultOf(action, now)) << "the next run stumbles";
  }

  DiskFolder folder_;
  SystemFiles files_;
};

}  // namespace karvenis
