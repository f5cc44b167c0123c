#include <sys/stat.h>
#include <unistd.h>

#include <optional>

#include "core/ColumnFile.h"
#include "faults/AsNobody.h"
#include "faults/OnDisk.h"

namespace karvenis {
namespace {

constexpr char textFile[] = "KARVENIS.TXT";

struct stat statusOf(const std::string& name) {
  struct stat status {};
  EXPECT_EQ(::stat(name.c_str(), &status), 0) << name;
  return status;
}

mode_t modeOf(const std::string& name) { return statusOf(name).st_mode & 07777U; }

/// The fault that the action ends in; none if it does not.
std::optional<RunTimeError> faultOf(const Action& action, Files& files) {
  try {
    perform(action, files);
  } catch (const RunTimeError& error) {
    return error;
  }
  return std::nullopt;
}

// --- rights survive

class Rights : public OnDisk {};

/// The text file is removed and made anew; every other file keeps its rights.
TEST_P(Rights, OfEveryFileSurvive) {
  const Action& action = GetParam();
  folder_.fill(*action.start);
  constexpr uid_t owner = 12345;
  constexpr gid_t group = 12346;
  const bool mayGiveAway = ::geteuid() == 0;
  for (const auto& [name, bytes] : *action.start) {
    ASSERT_EQ(::chmod(name.c_str(), 0620), 0);
    if (mayGiveAway) {
      ASSERT_EQ(::chown(name.c_str(), owner, group), 0);
    }
  }
  perform(action, files_);
  for (const auto& [name, bytes] : *action.start) {
    if (name == textFile || !files_.exists(name)) continue;
    EXPECT_EQ(modeOf(name), 0620U) << name;
    if (!mayGiveAway) continue;
    EXPECT_EQ(statusOf(name).st_uid, owner) << name;
    EXPECT_EQ(statusOf(name).st_gid, group) << name;
  }
}

bool isScratch(const std::string& name) {
  return name == tmpScratch || name == yndScratch || name == ylsScratch || isCopyUnderWay(name);
}

/// A list that nobody else may read is not written where others can read it either.
TEST_P(Rights, NoScratchFileIsMoreOpenThanItsList) {
  const Action& action = GetParam();
  if (!action.start->contains(combinationList) || !action.start->contains(randomColumns)) return;
  folder_.fill(*action.start);
  for (const auto& [name, bytes] : *action.start) ASSERT_EQ(::chmod(name.c_str(), 0600), 0);
  int written = 0;
  const auto expectClosed = [&](const SystemCall& call) {
    if (call.kind != SystemCall::Kind::write || !isScratch(nameOfOpen(call.file))) return 0;
    struct stat status {};
    EXPECT_EQ(::fstat(call.file, &status), 0);
    EXPECT_EQ(status.st_mode & 077U, 0U) << nameOfOpen(call.file);
    ++written;
    return 0;
  };
  const Hooked hooked({.before = expectClosed});
  perform(action, files_);
  const bool replaces = std::string(action.name).starts_with("generate");
  EXPECT_TRUE(!replaces || written > 0);
}

INSTANTIATE_TEST_SUITE_P(Every, Rights, testing::ValuesIn(actions()), nameOf);

// --- protected files

class ProtectedFile : public OnDisk {
 protected:
  /// The folder of `start`, in which `name` may only be read.
  void protect(const Folder& start, const std::string& name) {
    folder_.fill(start);
    ASSERT_EQ(::chmod(folder_.path().c_str(), 0777), 0);
    for (const auto& [other, bytes] : start) ASSERT_EQ(::chmod(other.c_str(), 0666), 0);
    ASSERT_EQ(::chmod(name.c_str(), 0444), 0);
  }
  std::optional<RunTimeError> faultAsNobody(const Action& action) {
    const AsNobody nobody;
    return faultOf(action, files_);
  }
};

/// An action that would change a protected file ends before it has changed anything; one that
/// ignores errors leaves the protected file as it is.
TEST_P(ProtectedFile, IsRefusedBeforeAnyByteIsWritten) {
  const Action& action = GetParam();
  const Folder& start = *action.start;
  const Folder result = resultOf(action, start);
  for (const auto& [name, bytes] : start) {
    SCOPED_TRACE(name);
    protect(start, name);
    const auto fault = faultAsNobody(action);
    const Folder now = folder_.content();
    const bool wouldChange = !result.contains(name) || result.at(name) != bytes;
    if (!wouldChange) {
      EXPECT_FALSE(fault.has_value());
      EXPECT_TRUE(now == result);
    } else if (action.onFault == Action::OnFault::ends) {
      ASSERT_TRUE(fault.has_value());
      EXPECT_EQ(fault->subject(), name);
      EXPECT_NE(fault->fault(), Fault::rename) << "the user renamed nothing";
      EXPECT_TRUE(now == start);
    } else {
      ASSERT_TRUE(now.contains(name));
      EXPECT_TRUE(now.at(name) == bytes);
    }
    for (const char* scratch : {tmpScratch, yndScratch, ylsScratch}) {
      EXPECT_FALSE(now.contains(scratch)) << scratch;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Every, ProtectedFile, testing::ValuesIn(actions()), nameOf);

// --- the door alone

class RightsDoor : public testing::Test {
 protected:
  void SetUp() override { ASSERT_EQ(::chmod(folder_.path().c_str(), 0777), 0); }
  std::string toldOf(const std::function<void()>& action) {
    const AsNobody nobody;
    try {
      action();
    } catch (const RunTimeError& error) {
      return describe(error);
    }
    return "nothing";
  }

  DiskFolder folder_;
  SystemFiles files_;
};

TEST_F(RightsDoor, SaysWhatIsWrongWithAProtectedFile) {
  folder_.put(combinationList, hex("01"));
  ASSERT_EQ(::chmod(combinationList, 0444), 0);
  EXPECT_EQ(toldOf([&] { files_.refuseProtected(combinationList); }),
            "'KARVENIS.LST' dosyasına yazılamadı.\rNeden: Erişim izni yok.");
  EXPECT_EQ(toldOf([&] { files_.remove(combinationList); }),
            "'KARVENIS.LST' dosyası silinemedi.\rNeden: Erişim izni yok.");
  EXPECT_EQ(folder_.bytes(combinationList), hex("01"));
}

TEST_F(RightsDoor, RefusesNeitherAFileThatMayBeWrittenNorAMissingOne) {
  folder_.put(combinationList, hex("01"));
  ASSERT_EQ(::chmod(combinationList, 0666), 0);
  EXPECT_EQ(toldOf([&] { files_.refuseProtected(combinationList); }), "nothing");
  EXPECT_EQ(toldOf([&] { files_.refuseProtected(randomColumns); }), "nothing");
}

TEST_F(RightsDoor, AnOpenFileTakesTheRightsOfAnother) {
  folder_.put(combinationList, hex("01"));
  ASSERT_EQ(::chmod(combinationList, 0460), 0);
  const auto scratch = files_.open(tmpScratch);
  scratch->takeRightsOf(combinationList);
  EXPECT_EQ(modeOf(tmpScratch), 0460U);
  EXPECT_THROW(scratch->takeRightsOf(randomColumns), RunTimeError) << "there is no such file";
}

/// A group that the user is not in cannot be set; the mode is all the same.
TEST_F(RightsDoor, WhoMayNotGiveAFileAwayKeepsItAsHisOwn) {
  if (::geteuid() != 0) return;
  folder_.put(combinationList, hex("01"));
  ASSERT_EQ(::chmod(combinationList, 0640), 0);
  EXPECT_EQ(toldOf([&] {
              const auto scratch = files_.open(tmpScratch);
              scratch->takeRightsOf(combinationList);
            }),
            "nothing");
  EXPECT_EQ(modeOf(tmpScratch), 0640U);
  EXPECT_EQ(statusOf(tmpScratch).st_uid, 65534U);
}

}  // namespace
}  // namespace karvenis
