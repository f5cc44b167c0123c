#include <QCoreApplication>
#include <QLineEdit>
#include <QRadioButton>
#include <memory>

#include "doubles/Doubles.h"
#include "doubles/FailingFiles.h"
#include "doubles/YieldingBoxes.h"
#include "faults/DiskFolder.h"
#include "platform/SystemFiles.h"
#include "windows/WholeProgram.h"
#include "windows/WindowTest.h"

// Files that no program wrote, in every window: nothing crashes or hangs, and no byte changes
// without a command.

namespace karvenis {
namespace {

constexpr char bagFile[] = "KARVENIS.DAT";
constexpr char textFile[] = "KARVENIS.TXT";
constexpr char settings[] = "KV2005.CFG";

/// What a window is asked to do besides its function keys.
struct Visit {
  const char* name;
  std::vector<const char*> controls;  ///< clicked one after the other
};

const std::vector<Visit>& visits() {
  static const std::vector<Visit> all = {
      {"frmLoto", {"Option2", "Command1", "Check1", "Option1", "Command1"}},
      {"frmBalls", {"Command1", "Command3", "Command4"}},
      {"frmBanko", {"Command1", "Command3", "Command4"}},
      {"frmList", {}},
      {"frmRndLst", {}},
      {"frmRndDel", {"Command1"}},
      {"frmRLPrint", {"Command1", "Option2", "Command1"}},
      {"frmRnd", {"Option1", "Command1"}},
      {"frmComLst", {}},
      {"frmCLPrint", {"Command1", "Option2", "Command1"}}};
  return all;
}

class DamagedWindows : public testing::Test {
 protected:
  DiskFolder folder_;
  SystemFiles disk_;
  FailingFiles files_{disk_};  // counts the calls
  YieldingBoxes boxes_;
  std::unique_ptr<WholeProgram> program_;

  /// The window, in a program that is made anew if a fault has ended the last one; null if
  /// it closes itself for want of a file.
  Form* window(const char* name) {
    if (program_ == nullptr || program_->forms.ending()) {
      program_.reset();
      program_ = std::make_unique<WholeProgram>(boxes_, files_);
      program_->forms.show("frmLoto");
    }
    program_->forms.show(name);
    Form* form = program_->forms.find(name);
    if (form == nullptr || program_->forms.ending()) return nullptr;
    for (auto* box : form->findChildren<QLineEdit*>()) box->setText(QStringLiteral("1"));
    return form;
  }
  void press(Form* form, Qt::Key key) {
    QTest::keyClick(form->windowHandle(), key);
    EXPECT_TRUE(QTest::qWaitFor([] { return !Application::instance().isDroppingInput(); }, 60'000));
  }
  /// Looks at the files through every window that is there for it.
  void look() {
    for (const Visit& visit : visits()) {
      for (const auto key : {Qt::Key_PageDown, Qt::Key_End, Qt::Key_Down, Qt::Key_Home}) {
        Form* form = window(visit.name);
        if (form == nullptr) break;
        press(form, key);
      }
    }
  }
  /// Runs every command of `visit`, each time with `content` in the folder.
  void command(const Visit& visit, const Folder& content) {
    for (int key = Qt::Key_F1; key <= Qt::Key_F12; ++key) {
      folder_.fill(content);
      if (Form* form = window(visit.name)) press(form, static_cast<Qt::Key>(key));
    }
    folder_.fill(content);
    for (const char* name : visit.controls) {
      Form* form = window(visit.name);
      if (form == nullptr) return;
      auto* control = form->findChild<QAbstractButton*>(QLatin1String(name));
      ASSERT_NE(control, nullptr) << name;
      control->click();
      EXPECT_TRUE(
          QTest::qWaitFor([] { return !Application::instance().isDroppingInput(); }, 60'000));
    }
  }
  void surviveLooking(const Folder& content) {
    folder_.fill(content);
    look();
    EXPECT_TRUE(folder_.content() == content) << "looking changed a byte";
  }
  void surviveCommands(const Folder& content) {
    boxes_.typed = "1-2";
    for (const Visit& visit : visits()) command(visit, content);
  }
  void TearDown() override {
    program_.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
};

Bytes cut(Bytes bytes, std::size_t length) {
  bytes.resize(length);
  return bytes;
}

/// Every file of the program, each `length` bytes long.
Folder shortFiles(std::size_t length) {
  const Bytes list = cut(countedColumns(10), length);
  std::vector<int> bag(80, 7);
  bag[0] = 30;
  bag[50] = 3;
  const Bytes text(length, std::byte{'A'});
  return {{randomColumns, list}, {combinationList, list},
          {listBackup, list},    {bagFile, cut(words(bag), length)},
          {textFile, text},      {settings, cut(hex("00 00 c8 42 00 00 48 43"), length)}};
}

Folder lists(const Bytes& list) { return {{randomColumns, list}, {combinationList, list}}; }

TEST_F(DamagedWindows, FilesOfEveryLengthAreLookedAtUnchanged) {
  for (std::size_t length = 0; length <= 160; ++length) {
    SCOPED_TRACE(length);
    surviveLooking(shortFiles(length));
  }
}

TEST_F(DamagedWindows, FilesOfEveryLengthPassEveryCommand) {
  const std::size_t step = rounds(1) > 1 ? 1 : 5;  // the long form tries them all
  for (std::size_t length = 0; length <= 160; length += step) {
    SCOPED_TRACE(length);
    surviveCommands(shortFiles(length));
  }
}

TEST_F(DamagedWindows, BallsThatAreNoBallsPassEveryWindow) {
  for (const int ball : {-32768, -1, 0, 50, 32767}) {
    SCOPED_TRACE(ball);
    const auto odd = static_cast<std::int16_t>(ball);
    Folder content =
        lists(columnBytes({{7, column(8, 9, 10, 11, 12, 13)}, {ball, column(1, odd, 3, 4, 5, 6)}}));
    std::vector<int> bag(120, ball);
    bag[0] = 30;
    bag[50] = 3;
    content[bagFile] = words(bag);
    surviveLooking(content);
    surviveCommands(content);
  }
}

TEST_F(DamagedWindows, BagFilesWithCountsThatAreNonePassEveryCommand) {
  for (const int count : {-32768, -1, 0, 1, 5, 6, 49, 50, 32767}) {
    SCOPED_TRACE(count);
    std::vector<int> bag(120, 7);
    bag[0] = bag[50] = count;
    for (const Visit& visit : visits()) {
      const std::string name = visit.name;
      if (name == "frmLoto" || name == "frmBalls" || name == "frmBanko" || name == "frmList") {
        command(visit, {{bagFile, words(bag)}});
      }
    }
  }
}

class LongLists : public DamagedWindows, public testing::WithParamInterface<int> {};

TEST_P(LongLists, PassEveryWindow) {
  const Folder content = lists(countedColumns(GetParam()));
  surviveLooking(content);
  surviveCommands(content);
}

INSTANTIATE_TEST_SUITE_P(Around, LongLists, testing::Values(32766, 32767, 32768, 70000));

/// What a gigabyte is asked for is refused at the question: whatever copies it takes its time.
TEST_F(DamagedWindows, AHugeListIsShownAtOnce) {
  boxes_.says = false;
  constexpr int mostCalls = 30;  // of files by a key, however long the list is
  constexpr std::uintmax_t bytes = std::uintmax_t{1} << 30;
  for (const char* name : {randomColumns, combinationList}) {
    folder_.put(name, {});
    std::filesystem::resize_file(folder_.path() / name, bytes);
  }
  look();
  for (const char* name : {"frmLoto", "frmRndLst", "frmComLst", "frmRLPrint", "frmCLPrint"}) {
    for (int key = Qt::Key_F1; key <= Qt::Key_F12; ++key) {
      const int before = files_.calls();
      if (Form* form = window(name)) press(form, static_cast<Qt::Key>(key));
      EXPECT_LT(files_.calls() - before, mostCalls) << name << " " << key;
    }
  }
  for (const char* name : {randomColumns, combinationList}) {
    EXPECT_EQ(std::filesystem::file_size(folder_.path() / name), bytes);
  }
}

}  // namespace
}  // namespace karvenis
