#include "doubles/YieldingBoxes.h"
#include "windows/WholeProgram.h"
#include "windows/WindowTest.h"

// What the function keys do in every window while Shift, Ctrl or Alt is held.

namespace karvenis {
namespace {

using Lines = std::vector<std::string>;

constexpr const char* names[] = {"frmLoto",   "frmBalls", "frmBanko",  "frmList",    "frmRndLst",
                                 "frmRndDel", "frmRnd",   "frmComLst", "frmRLPrint", "frmCLPrint"};

class FunctionKeys : public WindowTest, public testing::WithParamInterface<const char*> {
 protected:
  /// What F1 to F12 do with `held`, in a program of their own: the boxes that they lead to and the
  /// windows that they open. Nothing is agreed to. Redraws do not count: the keys that are held
  /// make some too.
  Lines done(Qt::KeyboardModifiers held) {
    Journal journal;
    YieldingBoxes boxes;
    boxes.says = false;
    MemoryFiles files;
    files.folder = {{"KARVENIS.RND", countedColumns(3)}, {"KARVENIS.LST", Bytes(32767U * 16)}};
    WholeProgram program(boxes, files);
    program.forms.show(GetParam());
    Form* form = program.forms.find(GetParam());
    EXPECT_TRUE(QTest::qWaitForWindowActive(form));
    boxes.journal = &journal;
    for (int key = Qt::Key_F1; key <= Qt::Key_F12; ++key) {
      press(form, static_cast<Qt::Key>(key), held);
      closeOthers(program, journal);
    }
    boxes.journal = nullptr;
    form->unload();
    settle();
    return journal.lines;
  }

 private:
  static void closeOthers(WholeProgram& program, Journal& journal) {
    for (const char* name : names) {
      Form* other = program.forms.find(name);
      if (other == nullptr || std::string(name) == GetParam()) continue;
      journal.note("show", name);
      other->unload();
      settle();
    }
  }
};

TEST_P(FunctionKeys, OfTheMainWindowStandAloneAndOthersIgnoreShiftAndCtrl) {
  const Lines plain = done(Qt::NoModifier);
  const bool isMain = std::string(GetParam()) == "frmLoto";
  const bool hasKeys = std::string(GetParam()) != "frmRndDel";
  EXPECT_EQ(std::ranges::count(plain, "beep") + std::ranges::count(plain, "show frmBalls") > 0,
            hasKeys);
  EXPECT_EQ(done(Qt::ShiftModifier), isMain ? Lines{} : plain);
  EXPECT_EQ(done(Qt::ControlModifier), isMain ? Lines{} : plain);
  EXPECT_EQ(done(Qt::AltModifier), Lines{}) << "Alt is the desktop's own";
}

INSTANTIATE_TEST_SUITE_P(Windows, FunctionKeys, testing::ValuesIn(names),
                         [](const auto& row) { return std::string(row.param); });

}  // namespace
}  // namespace karvenis
