#include "platform/SystemFiles.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <set>
#include <tuple>

#include "doubles/MemoryFiles.h"
#include "doubles/SystemCalls.h"

namespace karvenis {
namespace {

namespace fs = std::filesystem;

/// Every test works in a fresh folder of its own.
class InAFolder : public testing::Test {
 protected:
  void SetUp() override {
    before_ = fs::current_path();
    std::string name = (fs::temp_directory_path() / "karvenis.XXXXXX").string();
    ASSERT_NE(::mkdtemp(name.data()), nullptr);
    folder_ = name;
    fs::current_path(folder_);
  }
  void TearDown() override {
    fs::current_path(before_);
    fs::remove_all(folder_);
  }
  static void put(const std::string& name, const std::string& text) {
    std::ofstream(name, std::ios::binary) << text;
  }
  static std::string get(const std::string& name) {
    std::ifstream file(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  static std::size_t filesThere() {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator("."), fs::directory_iterator()));
  }
  static Fault faultOf(const std::function<void()>& action) {
    try {
      action();
    } catch (const RunTimeError& error) {
      EXPECT_FALSE(error.reason().empty());
      return error.fault();
    }
    ADD_FAILURE() << "no fault";
    return Fault::overflow;
  }

  SystemFiles files;

 private:
  fs::path before_, folder_;
};

TEST_F(InAFolder, OpenCreatesAMissingFile) {
  files.open("NEW")->close();
  EXPECT_TRUE(files.exists("NEW"));
  EXPECT_EQ(files.length("NEW"), 0U);
}

TEST_F(InAFolder, WritesAndReadsAtAnOffset) {
  const auto file = files.open("F");
  file->write(4, hex("41 42"));
  EXPECT_EQ(file->length(), 6U);
  std::array<std::byte, 10> bytes{};
  EXPECT_EQ(file->read(3, bytes), 3U);
  EXPECT_EQ(bytes[1], std::byte{0x41});
  file->sync();
  file->close();
  file->close();
  EXPECT_EQ(get("F"), std::string("\0\0\0\0AB", 6));
}

TEST_F(InAFolder, ExistsMeansARegularFileOfExactlyThatName) {
  put("karvenis.lst", "x");
  fs::create_directory("FOLDER");
  ASSERT_EQ(::mkfifo("PIPE", 0600), 0);
  fs::create_symlink("NOWHERE", "DANGLING");
  put("FILE", "x");
  EXPECT_TRUE(files.exists("FILE"));
  for (const char* name : {"KARVENIS.LST", "FOLDER", "PIPE", "DANGLING", "MISSING", ""}) {
    EXPECT_FALSE(files.exists(name)) << name;
  }
}

TEST_F(InAFolder, OpeningWhatIsNoFileFailsAtOnce) {
  fs::create_directory("FOLDER");
  ASSERT_EQ(::mkfifo("PIPE", 0600), 0);
  EXPECT_EQ(faultOf([&] { files.open("FOLDER"); }), Fault::open);
  EXPECT_EQ(faultOf([&] { files.open("PIPE"); }), Fault::open);
}

TEST_F(InAFolder, CopyReplacesItsTargetWholeAndLeavesNothingElse) {
  put("FROM", std::string(1'000'000, 'n'));
  put("TO", std::string(2'000'000, 'o'));
  files.copy("FROM", "TO");
  EXPECT_EQ(get("TO"), std::string(1'000'000, 'n'));
  EXPECT_EQ(get("FROM"), get("TO"));
  EXPECT_EQ(filesThere(), 2U);
}

TEST_F(InAFolder, AFailedCopyLeavesItsTarget) {
  put("TO", "old");
  fs::create_directory("FOLDER");
  EXPECT_EQ(faultOf([&] { files.copy("MISSING", "TO"); }), Fault::copy);
  EXPECT_EQ(faultOf([&] { files.copy("FOLDER", "TO"); }), Fault::copy);
  EXPECT_EQ(faultOf([&] { files.copy("TO", "FOLDER"); }), Fault::copy);
  EXPECT_EQ(get("TO"), "old");
  EXPECT_EQ(filesThere(), 2U);
}

TEST_F(InAFolder, ACopyUnderWayIsItsOwnersOnly) {
  put("FROM", "new");
  fs::perms seen = fs::perms::none;
  systemCallHooks().room = [&](const SystemCall& call) {
    seen = fs::status("TO~").permissions();
    return call.bytes.size();
  };
  files.copy("FROM", "TO");
  systemCallHooks() = {};
  EXPECT_EQ(seen, fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(InAFolder, OpeningAFileThatIsThereCreatesNone) {
  put("F", "x");
  int created = 0;
  systemCallHooks().before = [&](const SystemCall& call) {
    created += call.kind == SystemCall::Kind::create ? 1 : 0;
    return 0;
  };
  errno = ENOENT;  // of an earlier call
  files.open("F")->close();
  systemCallHooks() = {};
  EXPECT_EQ(created, 0);
}

TEST_F(InAFolder, ACopyOntoALinkKeepsTheLink) {
  put("FROM", "new");
  put("REAL", "old");
  fs::create_symlink("REAL", "LINK");
  files.copy("FROM", "LINK");
  EXPECT_TRUE(fs::is_symlink("LINK"));
  EXPECT_EQ(get("REAL"), "new");
}

TEST_F(InAFolder, ARenameOntoALinkKeepsTheLink) {
  put("FROM", "new");
  put("REAL", "old");
  fs::create_symlink("REAL", "LINK");
  files.rename("FROM", "LINK");
  EXPECT_TRUE(fs::is_symlink("LINK"));
  EXPECT_EQ(get("REAL"), "new");
  EXPECT_FALSE(files.exists("FROM"));
}

TEST_F(InAFolder, ACopyClearsAwayWhatAnInterruptedOneLeft) {
  put("FROM", "new");
  put("TO", "old");
  put("TO~", "a half-written copy, longer than the new one");
  fs::permissions("TO~", fs::perms::none);
  files.copy("FROM", "TO");
  EXPECT_EQ(get("TO"), "new");
  EXPECT_EQ(filesThere(), 2U);
}

TEST_F(InAFolder, ACopyThatIsUnderWayElsewhereIsLeftAlone) {
  put("FROM", "new");
  put("TO", "old");
  put("TO~", "the copy of another process");
  const int other = ::open("TO~", O_RDWR);
  ASSERT_EQ(::flock(other, LOCK_EX), 0);
  EXPECT_EQ(faultOf([&] { files.copy("FROM", "TO"); }), Fault::copy);
  ::close(other);
  EXPECT_EQ(get("TO"), "old");
  EXPECT_EQ(get("TO~"), "the copy of another process");
}

/// What a file of a hundred bytes holds after a write that a limit on its length broke off.
struct BrokenWrite {
  const char* name;
  std::uint64_t offset;
  std::size_t bytes;
  rlim_t limit;
};

TEST_F(InAFolder, AWriteThatFailsHalfWayLeavesTheFileAsItWas) {
  std::string old;
  for (int i = 0; i < 100; ++i) old += static_cast<char>('0' + i % 10);
  for (const auto& [name, offset, bytes, limit] :
       {BrokenWrite{"inside", 0, 8, 5}, BrokenWrite{"all of it", 0, 100, 99},
        BrokenWrite{"over the end", 96, 32, 110}, BrokenWrite{"over the end, inside", 90, 32, 93},
        BrokenWrite{"behind the end", 100, 32, 110}, BrokenWrite{"far behind it", 150, 32, 160}}) {
    SCOPED_TRACE(name);
    put("F", old);
    const auto file = files.open("F");
    rlimit whole{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &whole), 0);
    const rlimit small{limit, whole.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const Fault fault =
        faultOf([&, at = offset, count = bytes] { file->write(at, Bytes(count, std::byte{'n'})); });
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &whole), 0);
    EXPECT_EQ(fault, Fault::write);
    EXPECT_EQ(get("F"), old);
  }
}

TEST_F(InAFolder, ASizeLimitIsAnErrorAndKillsNobody) {
  put("F", "12345678");
  const pid_t child = ::fork();
  if (child == 0) {
    std::ignore = std::signal(SIGXFSZ, SIG_DFL);  // as a program is started
    SystemFiles fresh;
    const rlimit five{5, 5};
    ::setrlimit(RLIMIT_FSIZE, &five);
    const Fault fault = faultOf([&] { fresh.open("F")->write(0, Bytes(8, std::byte{'n'})); });
    ::_exit(fault == Fault::write ? 0 : 1);
  }
  int status = -1;
  ::waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(get("F"), "12345678");
}

/// Root may write everything, so what a protected file means is seen as somebody else.
template <typename Action>
int asNobody(Action action) {
  const pid_t child = ::fork();
  if (child == 0) {
    const bool dropped = ::geteuid() != 0 || ::seteuid(65534) == 0;
    ::_exit(dropped && action() ? 0 : 1);
  }
  int status = -1;
  ::waitpid(child, &status, 0);
  return status;
}

TEST_F(InAFolder, AProtectedFileOpensForReadingAndIsNeitherWrittenNorReplaced) {
  put("FROM", "new");
  put("TO", "old");
  ASSERT_EQ(::chmod("TO", 0444), 0);
  ASSERT_EQ(::chmod("FROM", 0666), 0);
  ASSERT_EQ(::chmod(".", 0777), 0);
  EXPECT_EQ(asNobody([&] {
              const auto file = files.open("TO");
              std::array<std::byte, 3> bytes{};
              return file->read(0, bytes) == 3 &&
                     faultOf([&] { file->write(0, bytes); }) == Fault::write &&
                     faultOf([&] { files.copy("FROM", "TO"); }) == Fault::copy &&
                     faultOf([&] { files.rename("FROM", "TO"); }) == Fault::rename;
            }),
            0);
  EXPECT_EQ(get("TO"), "old");
  EXPECT_EQ(get("FROM"), "new");
}

TEST_F(InAFolder, ACopyCanBeWrittenThoughItsSourceCannot) {
  put("FROM", "new");
  ASSERT_EQ(::chmod("FROM", 0444), 0);
  files.copy("FROM", "TO");
  EXPECT_NE(fs::status("TO").permissions() & fs::perms::owner_write, fs::perms::none);
}

TEST_F(InAFolder, RenameReplacesItsTarget) {
  put("FROM", "new");
  put("TO", "old");
  files.rename("FROM", "TO");
  EXPECT_EQ(get("TO"), "new");
  EXPECT_EQ(filesThere(), 1U);
  EXPECT_EQ(faultOf([&] { files.rename("FROM", "TO"); }), Fault::rename);
}

TEST_F(InAFolder, ARenameIntoAnotherFolderIsPutOnDiskInBoth) {
  fs::create_directory("OTHER");
  put("FROM", "new");
  put("OTHER/REAL", "old");
  fs::create_symlink("OTHER/REAL", "LINK");
  std::set<fs::path> synced;
  systemCallHooks().done = [&](const SystemCall& call) {
    if (call.kind != SystemCall::Kind::sync) return;
    synced.insert(fs::read_symlink("/proc/self/fd/" + std::to_string(call.file)));
  };
  files.rename("FROM", "LINK");
  systemCallHooks() = {};
  EXPECT_EQ(synced, (std::set{fs::canonical("."), fs::canonical("OTHER")}));
}

TEST_F(InAFolder, ARenameThroughALinkToAnotherDiskCopiesAndRemoves) {
  put("FROM", "new");
  put("REAL", "old");
  fs::create_symlink("REAL", "LINK");
  systemCallHooks().before = [](const SystemCall& call) {
    return call.kind == SystemCall::Kind::rename && call.name == "FROM" ? EXDEV : 0;
  };
  files.rename("FROM", "LINK");
  systemCallHooks() = {};
  EXPECT_TRUE(fs::is_symlink("LINK"));
  EXPECT_EQ(get("REAL"), "new");
  EXPECT_FALSE(files.exists("FROM"));
}

TEST_F(InAFolder, AWriteThatASignalInterruptsIsMadeAgain) {
  const auto file = files.open("F");
  int calls = 0;
  systemCallHooks().before = [&](const SystemCall&) { return ++calls % 2 == 1 ? EINTR : 0; };
  file->write(0, hex("41 42"));
  file->sync();
  systemCallHooks() = {};
  file->close();
  EXPECT_EQ(get("F"), "AB");
}

TEST_F(InAFolder, RemoveRemovesAndFailsWhereNothingIs) {
  put("F", "x");
  files.remove("F");
  EXPECT_FALSE(files.exists("F"));
  EXPECT_EQ(faultOf([&] { files.remove("F"); }), Fault::remove);
}

TEST_F(InAFolder, AReadThatFailsIsTold) {
  fs::create_symlink("/proc/self/mem", "F");  // nothing can be read at its beginning
  std::array<std::byte, 1> byte{};
  EXPECT_EQ(faultOf([&] { std::ignore = files.open("F")->read(0, byte); }), Fault::read);
}

TEST_F(InAFolder, TheCurrentFolderIsToldWhole) {
  EXPECT_EQ(files.currentFolder(), fs::canonical(".").string());
}

TEST_F(InAFolder, LengthOfWhatIsNoFileFails) {
  fs::create_directory("FOLDER");
  EXPECT_EQ(faultOf([&] { files.length("MISSING"); }), Fault::read);
  EXPECT_EQ(faultOf([&] { files.length("FOLDER"); }), Fault::read);
}

}  // namespace
}  // namespace karvenis
