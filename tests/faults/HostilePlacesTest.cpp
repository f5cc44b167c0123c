#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "core/ColumnFile.h"
#include "faults/AsNobody.h"
#include "faults/DiskFolder.h"
#include "platform/SystemFiles.h"

namespace karvenis {
namespace {

namespace fs = std::filesystem;

constexpr const char* names[] = {"KARVENIS.RND", "KARVENIS.LST", "KARVENIS.OLD",
                                 "KARVENIS.DAT", "KV2005.CFG",   "KARVENIS.TXT",
                                 yndScratch,     ylsScratch,     tmpScratch};

/// No file grows beyond so many bytes.
class SmallDisk {
 public:
  explicit SmallDisk(rlim_t most) {
    EXPECT_EQ(::getrlimit(RLIMIT_FSIZE, &limit_), 0);
    const rlimit small{most, limit_.rlim_max};
    EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
  }
  ~SmallDisk() { EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &limit_), 0); }
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;

 private:
  rlimit limit_{};
};

class HostilePlace : public testing::TestWithParam<Action> {
 protected:
  void SetUp() override { folder_.fill(*GetParam().start); }

  /// Runs the action; if it ends in a fault, returns why.
  void run() {
    try {
      perform(GetParam(), files_);
    } catch (const RunTimeError& error) {
      EXPECT_FALSE(error.reason().empty());
    }
  }
  void runAsNobody() {
    const AsNobody nobody;
    run();
  }
  /// Lists hold old or new bytes, and when the cause is gone the action does all of its work.
  void expectWhole() { EXPECT_EQ(damage(GetParam(), folder_.content(), false), ""); }
  void expectWorksAgain() {
    folder_.fill(*GetParam().start);
    perform(GetParam(), files_);
    EXPECT_TRUE(folder_.content() == resultOf(GetParam(), *GetParam().start));
  }

  DiskFolder folder_;
  SystemFiles files_;
};

TEST_P(HostilePlace, AFolderThatMayOnlyBeReadKeepsEveryByte) {
  ASSERT_EQ(::chmod(folder_.path().c_str(), 0555), 0);
  for (const auto& entry : fs::directory_iterator(folder_.path())) {
    ASSERT_EQ(::chmod(entry.path().c_str(), 0444), 0);
  }
  runAsNobody();
  EXPECT_TRUE(folder_.content() == *GetParam().start);
  ASSERT_EQ(::chmod(folder_.path().c_str(), 0777), 0);
  expectWorksAgain();
}

TEST_P(HostilePlace, AFolderOfAnotherUserWithFilesForAllKeepsEveryListWhole) {
  ASSERT_EQ(::chmod(folder_.path().c_str(), 0755), 0);
  for (const auto& entry : fs::directory_iterator(folder_.path())) {
    ASSERT_EQ(::chmod(entry.path().c_str(), 0666), 0);
  }
  runAsNobody();
  expectWhole();
}

TEST_P(HostilePlace, AFileOfAnotherUserUnderAnyNameIsToldOrReplaced) {
  for (const char* name : names) {
    SCOPED_TRACE(name);
    folder_.fill(*GetParam().start);
    ASSERT_EQ(::chmod(folder_.path().c_str(), 0777), 0);
    for (const auto& entry : fs::directory_iterator(folder_.path())) {
      ASSERT_EQ(::chmod(entry.path().c_str(), 0666), 0);
    }
    if (!fs::exists(name)) folder_.put(name, {});
    ASSERT_EQ(::chmod(name, 0000), 0);
    runAsNobody();
    Folder now = folder_.content();
    if (!GetParam().start->contains(name) && now.contains(name) && now.at(name).empty()) {
      now.erase(name);
    }
    EXPECT_EQ(damage(GetParam(), now, false), "");
  }
}

struct Obstacle {
  const char* what;
  void (*put)(const char* name);
};

constexpr Obstacle obstacles[] = {
    {"a folder", [](const char* name) { fs::create_directory(name); }},
    {"a pipe", [](const char* name) { ASSERT_EQ(::mkfifo(name, 0600), 0); }},
    {"a link that leads nowhere", [](const char* name) { fs::create_symlink("NOWHERE/X", name); }},
    {"a link to itself", [](const char* name) { fs::create_symlink(name, name); }},
};

TEST_P(HostilePlace, WhatIsNoFileUnderAnyNameIsToldOrLeftAlone) {
  for (const Obstacle& obstacle : obstacles) {
    for (const char* name : names) {
      SCOPED_TRACE(std::string(obstacle.what) + " as " + name);
      folder_.fill(*GetParam().start);
      fs::remove(name);
      obstacle.put(name);
      run();
      for (const char* list : {"KARVENIS.RND", "KARVENIS.LST", "KARVENIS.DAT", "KV2005.CFG"}) {
        if (name == std::string(list) || !GetParam().start->contains(list)) continue;
        EXPECT_TRUE(fs::exists(list) || GetParam().onFault == Action::OnFault::mayGoOn ||
                    !resultOf(GetParam(), *GetParam().start).contains(list))
            << list << " is gone";
      }
    }
  }
}

/// A disk that is full after some more bytes: the system lets no file grow beyond them.
TEST_P(HostilePlace, AFullDiskKeepsEveryListWhole) {
  for (const rlim_t most : {0U, 5U, 51U, 103U, 110U, 4096U, 65'607U}) {
    SCOPED_TRACE(std::to_string(most) + " bytes");
    folder_.fill(*GetParam().start);
    {
      const SmallDisk small(most);
      run();
    }
    expectWhole();
  }
  expectWorksAgain();
}

INSTANTIATE_TEST_SUITE_P(Every, HostilePlace, testing::ValuesIn(actions()), nameOf);

}  // namespace
}  // namespace karvenis
