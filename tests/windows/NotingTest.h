#pragma once

#include <QPushButton>

#include "windows/WindowTest.h"

namespace karvenis {

/// A window that notes what happens to it.
class Noting : public Form {
 public:
  Noting(Forms& all, std::vector<std::string>& log) : Form(all), log_(log) {
    resize(200, 120);
    Text1 = control<QLineEdit>(QStringLiteral("Text1"));
    Command1 = control<QPushButton>(QStringLiteral("Command1"), QStringLiteral("Tamam"));
    Text1->setGeometry(10, 10, 80, 24);
    Command1->setGeometry(10, 50, 80, 30);
    on(Command1, &QPushButton::clicked, [this] { note("Command1_Click"); });
    onEnter(Text1, [this] {
      note("Text1 Enter");
      Command1->setFocus();
    });
    Text1->setFocus();
  }
  void Form_Load() override { note("Form_Load"); }
  void Form_Activate() override { note("Form_Activate"); }

  std::function<void()> onKey;
  QLineEdit* Text1;
  QPushButton* Command1;

 protected:
  void Form_KeyDown(int KeyCode, int Shift) override {
    note("KeyDown " + std::to_string(KeyCode) + "/" + std::to_string(Shift));
    if (onKey) onKey();
    if (KeyCode == keyEscape) unload();
  }
  void Form_KeyPress(int KeyAscii) override { note("KeyPress " + std::to_string(KeyAscii)); }
  void Form_Click() override { note("Click"); }
  void Form_DblClick() override { note("DblClick"); }
  void Form_Resize() override { note("Resize"); }

 private:
  void note(const std::string& what) { log_.push_back(name() + " " + what); }
  std::vector<std::string>& log_;
};

using Log = std::vector<std::string>;

/// A test with the windows frmA, which is the main one, frmB and frmC.
class NotingTest : public WindowTest {
 protected:
  Log log;
  void SetUp() override {
    for (const char* name : {"frmA", "frmB", "frmC"}) {
      forms.add(name, [this] { return new Noting(forms, log); });
    }
  }
  Noting* show(const char* name) { return static_cast<Noting*>(open(name)); }
  Log taken() { return std::exchange(log, {}); }
  /// The user goes to the window, as by a taskbar.
  void go(Form* form) {
    form->activateWindow();
    EXPECT_TRUE(waitFor([&] { return forms.active() == form; }));
  }
  /// Runs the event loop until it has nothing left to do and the keyboard has settled.
  void letSettle() {
    bool idle = false;
    QTimer::singleShot(0, qApp, [&] { QTimer::singleShot(0, qApp, [&] { idle = true; }); });
    EXPECT_TRUE(waitFor([&] { return idle && forms.isSettled(); }));
  }
};

}  // namespace karvenis
