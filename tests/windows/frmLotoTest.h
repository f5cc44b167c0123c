#pragma once

#include <QLabel>

#include "main/frmLoto.h"
#include "windows/WindowTest.h"

namespace karvenis {

/// A test with the main window.
class FrmLotoTest : public WindowTest {
 protected:
  Form* loto = nullptr;

  void SetUp() override {
    add<frmLoto>("frmLoto");
    loto = open("frmLoto");
  }
  QLabel* number(int index) const {
    return control<QLabel>(loto, QStringLiteral("Label1_%1").arg(index));
  }
  QWidget* image(int index) const { return control(loto, QStringLiteral("Image1_%1").arg(index)); }
  QString focused() const { return loto->focusWidget()->objectName(); }
  bool hidden(const char* name) const { return control(loto, QLatin1String(name))->isHidden(); }
  std::string caption(int index) const { return fromQt(number(index)->text()); }
  void pressKolon() { click(control(loto, "Command1")); }
  void uncover() {
    world.boxes.expectBeep();
    click(control(loto, "Picture0"));
  }
  void drawToTheEnd() {
    world.boxes.expectBeep(6);
    pressKolon();
    EXPECT_TRUE(waitFor([this] { return world.boxes.finished() && !number(11)->isHidden(); }));
  }
  std::vector<std::string> shownColumn() const {
    std::vector<std::string> shown;
    for (int k = 0; k < 6; ++k) shown.push_back(caption(2 * k));
    return shown;
  }
};

}  // namespace karvenis
