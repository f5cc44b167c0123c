#include "windows/RandomUser.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <condition_variable>
#include <cstdlib>
#include <mutex>
#include <regex>
#include <set>
#include <thread>

#include "core/ColumnFile.h"
#include "doubles/Doubles.h"
#include "faults/DiskFolder.h"
#include "platform/SystemFiles.h"

namespace karvenis {
namespace {

/// What a fault inside the generator leaves behind; its next use clears it.
constexpr char scratch[] = "KARVENIS.TMP";

using Lengths = std::map<std::string, std::uintmax_t>;

/// Ends the process with what was done last if the program does not answer in time.
class Watchdog {
 public:
  explicit Watchdog(std::chrono::seconds patience)
      : thread_([this, patience] { watch(patience); }) {}
  ~Watchdog() {
    {
      const std::lock_guard lock(mutex_);
      over_ = true;
    }
    changed_.notify_all();
    thread_.join();
  }
  Watchdog(const Watchdog&) = delete;
  Watchdog& operator=(const Watchdog&) = delete;

  void alive() {
    const std::lock_guard lock(mutex_);
    ++beats_;
    changed_.notify_all();
  }

 private:
  void watch(std::chrono::seconds patience) {
    std::unique_lock lock(mutex_);
    while (!over_) {
      const long before = beats_;
      const bool came =
          changed_.wait_for(lock, patience, [&] { return over_ || beats_ != before; });
      if (came) continue;
      std::fputs("the program hangs\n", stderr);
      std::abort();
    }
  }

  std::mutex mutex_;
  std::condition_variable changed_;
  long beats_ = 0;
  bool over_ = false;
  std::thread thread_;
};

unsigned seed() {
  const char* told = std::getenv("KARVENIS_SEED");
  return told == nullptr ? 2005U : static_cast<unsigned>(std::strtoul(told, nullptr, 10));
}

/// What must hold whenever no procedure runs.
class Sound {
 public:
  Sound(WholeProgram& program, Files& files, std::function<Lengths()> lengths,
        std::set<std::string>& seen)
      : program_(program), files_(files), lengths_(std::move(lengths)), seen_(seen) {}

  void check(const std::string& last) {
    SCOPED_TRACE(last);
    EXPECT_EQ(program_.state.FileNo, 0) << "a file is open";
    EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "the hourglass stays";
    checkFiles();
    if (!program_.forms.ending()) checkWindows();
  }

 private:
  void checkFiles() const {
    static const std::map<std::string, std::uintmax_t> records = {
        {"KARVENIS.RND", 16}, {"KARVENIS.LST", 16}, {"KARVENIS.OLD", 16},
        {"KARVENIS.DAT", 2},  {"KARVENIS.TXT", 1},  {"KV2005.CFG", 4}};
    for (const auto& [name, length] : lengths_()) {
      const auto known = records.find(name);
      ASSERT_NE(known, records.end()) << name << " is left over";
      EXPECT_EQ(length % known->second, 0U) << name;
      // Lists are kept small: appending a list to itself again and again doubles it.
      if (length > std::uintmax_t{40'000} * 16) files_.remove(name);
    }
  }
  void checkWindows() {
    const Form* active = program_.forms.active();
    ASSERT_NE(active, nullptr);
    EXPECT_TRUE(active->isVisible());
    EXPECT_FALSE(active->isClosing());
    ASSERT_NE(program_.forms.find("frmLoto"), nullptr);
    std::set<std::string> names;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
      const auto* form = dynamic_cast<const Form*>(window);
      if (form == nullptr || form->isClosing()) continue;
      EXPECT_TRUE(names.insert(form->name()).second) << form->name() << " is open twice";
      EXPECT_TRUE(form->isVisible()) << form->name();
      EXPECT_EQ(form->windowTitle().toStdString(), form->caption());
    }
    seen_.merge(names);
  }

  WholeProgram& program_;
  Files& files_;
  std::function<Lengths()> lengths_;
  std::set<std::string>& seen_;  // every window that has been open
};

/// The faults that a user can bring about: a list that outgrows the 16 bits in which the generator
/// and a listing count, and one that is gone when it is to be copied.
bool isOrdered(const std::string& fault) {
  static const std::regex overflow("'(\\d+)' sayısı taştı\\.");
  std::smatch found;
  if (std::regex_search(fault, found, overflow)) return std::stoi(found[1]) > recordLimit;
  return fault.find("'KARVENIS.RND' dosyası kopyalanamadı.") != std::string::npos;
}

/// Makes lists if there are none, so that there is much to do.
void fill(Files& files) {
  for (const char* name : {randomColumns, combinationList}) {
    if (files.exists(name)) continue;
    const auto list = files.open(name);
    list->write(0, countedColumns(60));
    list->close();
  }
}

/// Serves a random user, anew each time he ends the program.
void serve(Files& files, const std::function<Lengths()>& lengths) {
  std::mt19937 random(seed());
  int steps = rounds(2000);
  std::cout << "seed " << seed() << ", " << steps << " steps\n";
  std::set<std::string> seen;
  int answered = 0, programs = 0;
  Watchdog watchdog(std::chrono::seconds(60));
  while (steps > 0 && !testing::Test::HasFailure()) {
    fill(files);
    QtBoxes boxes;
    WholeProgram program(boxes, files);
    boxes.beforeOpening = [&] { return program.forms.boxOpens(); };
    boxes.afterClosing = [&] { program.forms.boxClosed(); };
    Sound sound(program, files, lengths, seen);
    RandomUser* busy = nullptr;
    RandomUser user(program, random, [&] {
      watchdog.alive();
      if (busy->faults().empty()) sound.check(busy->last());
      if (testing::Test::HasFailure()) program.forms.end();
    });
    busy = &user;
    const int status = user.work(steps);
    EXPECT_EQ(status, user.faults().empty() ? 0 : 1) << user.last();
    EXPECT_LE(user.faults().size(), 1U) << "a program ends with one box";
    for (const std::string& fault : user.faults()) {
      EXPECT_TRUE(isOrdered(fault)) << user.last() << ": " << fault;
      if (files.exists(scratch)) files.remove(scratch);
    }
    answered += user.boxes();
    ++programs;
  }
  std::cout << programs << " programs, " << answered << " boxes\n";
  EXPECT_LE(steps, 0) << "the seed is " << seed();
  EXPECT_GE(seen.size(), 7U) << "most windows were never open";
  EXPECT_GT(answered, rounds(2000) / 20);
}

void expectNothingLeft() {
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  for (const QWidget* widget : QApplication::topLevelWidgets()) {
    EXPECT_EQ(dynamic_cast<const Form*>(widget), nullptr) << widget->objectName().toStdString();
    EXPECT_FALSE(widget->isVisible()) << widget->metaObject()->className();
  }
}

/// KARVENIS_ROUNDS=100000 is the long form; KARVENIS_SEED plays another user.
TEST(RandomUserTest, FindsTheProgramSoundInMemory) {
  MemoryFiles files;
  serve(files, [&] {
    Lengths all;
    for (const auto& [name, bytes] : files.folder) all[name] = bytes.size();
    return all;
  });
  expectNothingLeft();
}

TEST(RandomUserTest, FindsTheProgramSoundOnDisk) {
  DiskFolder folder;
  SystemFiles files;
  serve(files, [&] {
    Lengths all;
    for (const auto& entry : std::filesystem::directory_iterator(folder.path())) {
      all[entry.path().filename().string()] = entry.file_size();
    }
    return all;
  });
  expectNothingLeft();
}

}  // namespace
}  // namespace karvenis
