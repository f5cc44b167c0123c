#include <QRadioButton>
#include <set>

#include "doubles/Columns.h"
#include "windows/WholeProgram.h"
#include "windows/WindowTest.h"

// Every function key in every window, alone and with each key that is held with it. Alt with a
// function key is the desktop's own; the main window wants its keys alone; in the others Shift and
// Ctrl change nothing.

namespace karvenis {
namespace {

/// Notes each box, says no and types nothing.
class NotingBoxes final : public Boxes {
 public:
  std::string notes;
  void message(const std::string& text, const std::string&, Icon) override { note(text); }
  bool ask(const std::string& text, const std::string&) override {
    note(text);
    return false;
  }
  std::string input(const std::string& prompt, const std::string&, const std::string&,
                    const std::string&) override {
    note(prompt);
    return {};
  }
  void beep() override { note("beep"); }
  void pointer(Pointer) override {}

 private:
  void note(const std::string& what) { notes += what + "\n"; }
};

struct WindowKeys {
  const char* window;
  std::set<int> commands;  // the numbers of the function keys that do something to be noticed
};

class Modifiers : public testing::TestWithParam<WindowKeys> {
 protected:
  NotingBoxes boxes;
  MemoryFiles files;
  WholeProgram program{boxes, files};

  /// The window as it is when it has just been opened, with something for every key to change.
  Form* fresh(int number) {
    files.folder = {{randomColumns, countedColumns(30)}, {combinationList, countedColumns(30)}};
    program.state.Drawn = column(1, 2, 3, 4, 5, 6);
    const std::string name = GetParam().window;
    for (const QPointer<QWidget> open : QApplication::topLevelWidgets()) {
      auto* form = qobject_cast<Form*>(open);
      if (form != nullptr && form->name() != "frmLoto") form->unload();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    program.open("frmLoto")->setCaption("");
    Form* form = program.open(name.c_str());
    if (name == "frmBanko")
      form->findChild<QRadioButton*>(number == 5 ? "Option3" : "Option2")->click();
    if (name == "frmBalls" && number == 5) form->findChild<QPushButton*>("cmdBall_7")->click();
    if (name == "frmList") QMetaObject::invokeMethod(form->findChild<QTimer*>("Timer1"), "timeout");
    boxes.notes.clear();
    return form;
  }

  /// What can be seen: the open windows with their titles, choices, marks, typed texts and lines.
  static std::string look() {
    QStringList all;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
      if (!window->isVisible() || qobject_cast<const Form*>(window) == nullptr) continue;
      QStringList seen{window->objectName(), window->windowTitle()};
      for (const auto* button : window->findChildren<QAbstractButton*>()) {
        seen += QString::number(button->isChecked()) + QString::number(button->font().bold());
      }
      for (const auto* box : window->findChildren<QLineEdit*>()) seen += box->text();
      for (const auto* surface : window->findChildren<Surface*>()) {
        seen += QString::number(surface->lines().size());
      }
      all += seen.join(" ");
    }
    all.sort();
    return fromQt(all.join("\n"));
  }

  /// What the key does; empty if nothing is to be noticed.
  std::string effect(int number, Qt::KeyboardModifiers held) {
    Form* form = fresh(number);
    const std::string before = look();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_F1 + number - 1, held);
    QCoreApplication::sendEvent(form->windowHandle(), &press);
    const std::string after = look();
    return before == after ? boxes.notes : boxes.notes + after;
  }
};

TEST_P(Modifiers, ChangeAFunctionKeyAsItsWindowHasIt) {
  const bool wantsKeysAlone = std::string("frmLoto") == GetParam().window;
  for (int number = 1; number <= 12; ++number) {
    SCOPED_TRACE("F" + std::to_string(number));
    const std::string alone = effect(number, Qt::NoModifier);
    EXPECT_EQ(!alone.empty(), GetParam().commands.contains(number)) << alone;
    for (const auto held : {Qt::ShiftModifier, Qt::ControlModifier}) {
      EXPECT_EQ(effect(number, held), wantsKeysAlone ? "" : alone) << held;
    }
    EXPECT_EQ(effect(number, Qt::AltModifier), "");
    EXPECT_EQ(effect(number, Qt::AltModifier | Qt::ShiftModifier), "");
  }
}

INSTANTIATE_TEST_SUITE_P(
    Each, Modifiers,
    testing::Values(WindowKeys{"frmLoto", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}},
                    WindowKeys{"frmBalls", {1, 2, 3, 4, 5, 10, 11}},
                    WindowKeys{"frmBanko", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}},
                    WindowKeys{"frmList", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}},
                    WindowKeys{"frmRndLst", {1, 2, 3, 4, 9, 10}}, WindowKeys{"frmRndDel", {}},
                    WindowKeys{"frmRLPrint", {1, 10}}, WindowKeys{"frmRnd", {1, 10}},
                    WindowKeys{"frmComLst", {1, 2, 3, 4, 5, 6, 7, 8, 10, 11, 12}},
                    WindowKeys{"frmCLPrint", {1, 10}}),
    [](const auto& row) { return std::string(row.param.window); });

}  // namespace
}  // namespace karvenis
