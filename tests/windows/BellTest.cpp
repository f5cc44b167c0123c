#include "platform/qt/Bell.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <QFile>
#include <QLockFile>
#include <QTemporaryDir>
#include <QTest>
#include <cerrno>

#include "platform/qt/QtBoxes.h"

namespace karvenis {
namespace {

using namespace Qt::StringLiterals;

/// A bell whose player is a shell script, in a folder of its own.
class BellTest : public testing::Test {
 protected:
  QTemporaryDir folder;
  int fallbacks = 0;  // calls of the fallback

  QString path(const char* name) const { return folder.filePath(QLatin1String(name)); }
  QString player(const QByteArray& script) {
    QFile file(path("player"));
    EXPECT_TRUE(file.open(QFile::WriteOnly));
    file.write("#!/bin/sh\ncd '" + QFile::encodeName(folder.path()) + "'\n" + script + "\n");
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return file.fileName();
  }
  std::function<void()> counted() {
    return [this] { ++fallbacks; };
  }
  QByteArray content(const char* name) const {
    QFile file(path(name));
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
  }
  template <typename Condition>
  static bool waitFor(Condition condition) {
    return QTest::qWaitFor(condition, 20000);
  }
  /// Players that have been left alone end by themselves; none stays for the next test.
  void TearDown() override {
    EXPECT_TRUE(waitFor([] {
      ::waitpid(-1, nullptr, WNOHANG);
      return !hasChild();
    }));
  }
  /// Also one that has ended and that nobody has waited for.
  static bool hasChild() {
    siginfo_t child;
    return ::waitid(P_ALL, 0, &child, WEXITED | WNOHANG | WNOWAIT) == 0;
  }
};

TEST_F(BellTest, StartsItsPlayerAtTheFirstRingAndGivesItEachRing) {
  Bell bell(player("echo started >>starts; exec cat >rings"), counted());
  EXPECT_FALSE(hasChild());
  for (int ring = 0; ring < 6; ++ring) bell.ring();
  EXPECT_TRUE(waitFor([&] { return content("rings").size() == 6; }));
  EXPECT_EQ(content("starts"), "started\n");
  EXPECT_EQ(fallbacks, 0);
}

TEST_F(BellTest, WhatItsPlayerSaysGoesNowhere) {
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  Bell bell(player("echo one; echo other >&2; cat >rings; : >ended"), counted());
  bell.ring();
  EXPECT_TRUE(waitFor([&] { return content("rings").size() == 1; }));
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(BellTest, EndsItsPlayerWhenItGoes) {
  {
    Bell bell(player("cat >rings; : >ended"), counted());
    bell.ring();
  }
  EXPECT_TRUE(waitFor([&] { return QFile::exists(path("ended")); }));
  EXPECT_EQ(content("rings").size(), 1);
  EXPECT_TRUE(waitFor([&] { return ::waitpid(-1, nullptr, WNOHANG) > 0; }));
}

TEST_F(BellTest, RingsOtherwiseOnceItsPlayerHasEndedAndLeavesNoZombie) {
  Bell bell(player("head -c 1 >rings; exit 1"), counted());
  bell.ring();
  EXPECT_TRUE(waitFor([&] { return !hasChild(); }));
  EXPECT_EQ(fallbacks, 0) << "what the player has taken is not rung again";
  bell.ring();
  bell.ring();
  EXPECT_EQ(fallbacks, 2);
}

// The ring comes before the event loop can tell that the player has ended.
TEST_F(BellTest, ABrokenPipeDoesNotEndTheProgram) {
  Bell bell(player(": >ended"), counted());
  bell.ring();
  for (int ring = 0; fallbacks == 0; ++ring) {
    ASSERT_LT(ring, 100000);
    bell.ring();
    QThread::yieldCurrentThread();
  }
  EXPECT_FALSE(hasChild());
}

TEST_F(BellTest, RingsOtherwiseWhereThereIsNoPlayer) {
  Bell bell(path("nothing"), counted());
  bell.ring();
  EXPECT_EQ(fallbacks, 1);
  bell.ring();
  EXPECT_EQ(fallbacks, 2);
  EXPECT_FALSE(hasChild());
}

TEST_F(BellTest, EndsAPlayerThatNoLongerListens) {
  Bell bell(player("exec <&-; exec sleep 1000"), counted());
  bell.ring();
  EXPECT_TRUE(waitFor([] { return !hasChild(); }));
}

TEST_F(BellTest, DropsWhatAPlayerThatHangsHasNoRoomFor) {
  Bell bell(player("echo $$ >process; exec sleep 1000"), counted());
  for (int ring = 0; ring < 100000; ++ring) bell.ring();
  EXPECT_EQ(fallbacks, 0);
  EXPECT_TRUE(waitFor([&] { return content("process").endsWith('\n'); }));
  ::kill(content("process").toInt(), SIGKILL);
  EXPECT_TRUE(waitFor([&] { return !hasChild(); }));
}

// Another program that is started later, such as a print filter, would keep the player alive.
TEST_F(BellTest, NoOtherProgramInheritsThePipe) {
  Bell bell(player("cat; : >ended"), counted());
  bell.ring();
  const QString list = path("files");
  ASSERT_EQ(std::system(("ls -l /proc/self/fd >" + list).toLocal8Bit()), 0);
  EXPECT_FALSE(content("files").contains("socket:"));
}

/// The program's own player before a sound library that plays nothing.
class BellPlayer : public BellTest {
 protected:
  BellPlayer() {
    qputenv("LD_LIBRARY_PATH", KARVENIS_SOUND_DOUBLE);
    qputenv("KARVENIS_HEARD", QFile::encodeName(path("heard")));
  }
  ~BellPlayer() override {
    for (const char* name : {"LD_LIBRARY_PATH", "KARVENIS_HEARD", "KARVENIS_SILENT"}) {
      qunsetenv(name);
    }
  }
  BellPlayer(const BellPlayer&) = delete;
  BellPlayer& operator=(const BellPlayer&) = delete;

  /// The calls of the sound library, each with its time in milliseconds.
  QList<std::pair<qint64, QByteArray>> timedCalls() const {
    QList<std::pair<qint64, QByteArray>> all;
    for (const QByteArray& line : content("heard").split('\n')) {
      const qsizetype gap = line.indexOf(' ');
      if (gap > 0) all.emplaceBack(line.first(gap).toLongLong(), line.sliced(gap + 1));
    }
    return all;
  }
  QList<QByteArray> calls() const {
    QList<QByteArray> all;
    for (const auto& [time, call] : timedCalls()) all.append(call);
    return all;
  }
  /// Has the player play `rings` that wait already, and end. Returns its status.
  static int played(int rings) {
    const QString rung = u"printf %%1s | "_s.arg(rings) + KARVENIS_BELL;
    return WEXITSTATUS(std::system(rung.toLocal8Bit()));
  }
};

constexpr char naming[] =
    "name application.name KARVENIS 2005 Randomizer application.icon_name karvenis";
constexpr char sound[] = "play event.id bell canberra.cache-control volatile";

/// The calls for so many sounds.
QList<QByteArray> callsFor(int sounds) {
  return QList<QByteArray>{"create", naming, "open"} + QList<QByteArray>(sounds, sound);
}

TEST_F(BellPlayer, PlaysEachRingOnce) {
  {
    Bell bell(QStringLiteral(KARVENIS_BELL), counted());
    for (int ring = 0; ring < 6; ++ring) bell.ring();
    EXPECT_TRUE(waitFor([&] { return calls().size() >= 9; }));
  }
  EXPECT_TRUE(waitFor([] { return ::waitpid(-1, nullptr, WNOHANG) > 0; }));
  EXPECT_EQ(calls(), callsFor(6));
  EXPECT_EQ(fallbacks, 0);
}

TEST_F(BellPlayer, IsTheOneBesideTheProgram) {
  const QString beside = QCoreApplication::applicationDirPath() + u"/karvenis-bell"_s;
  QLockFile lock(beside + u".lock"_s);  // against another run of this test
  ASSERT_TRUE(lock.lock());
  QFile::remove(beside);
  ASSERT_TRUE(QFile::link(QStringLiteral(KARVENIS_BELL), beside));
  QtBoxes boxes;
  boxes.beep();
  QFile::remove(beside);
  EXPECT_TRUE(waitFor([&] { return calls() == callsFor(1); }));
}

TEST_F(BellPlayer, KeepsWaitingRingsApartAndDropsThoseThatWouldComeTooLate) {
  EXPECT_EQ(played(20), 0);
  EXPECT_EQ(calls(), callsFor(8));
  const auto all = timedCalls();
  for (qsizetype i = 4; i < all.size(); ++i) EXPECT_GE(all[i].first - all[i - 1].first, 80);
}

TEST_F(BellPlayer, EndsWhereItCannotPlay) {
  const QList<QByteArray> whole = callsFor(1);
  for (qsizetype last = 0; last < whole.size(); ++last) {
    QFile::remove(path("heard"));
    qputenv("KARVENIS_SILENT", whole[last].split(' ').first());
    EXPECT_EQ(played(3), 1);
    EXPECT_EQ(calls(), whole.first(last + 1));
  }
}

}  // namespace
}  // namespace karvenis
