#include <QCheckBox>
#include <QLabel>
#include <QMenuBar>
#include <QRadioButton>

#include "AllWindows.h"
#include "doubles/Doubles.h"
#include "doubles/Sets.h"
#include "windows/WindowTest.h"

// No text of any window is cut, with letters up to twice as large as usual. The tests run this once
// more for each scale of the screen (see tests/CMakeLists.txt).

namespace karvenis {
namespace {

/// Text that does not fit its control is reported with the control's name.
void expectFits(const QWidget& control, const QString& text, const QRect& room) {
  const QFontMetrics metrics = control.fontMetrics();
  for (const QString& line : text.split('\n')) {
    EXPECT_LE(metrics.horizontalAdvance(line), room.width())
        << control.objectName().toStdString() << ": " << line.toStdString();
  }
  EXPECT_LE(metrics.height() - metrics.leading(), room.height())
      << control.objectName().toStdString() << ": " << text.toStdString();
}

class Fit : public WindowTest, public testing::WithParamInterface<std::tuple<const char*, double>> {
 protected:
  const QFont usual_ = QApplication::font();

  void SetUp() override {
    QFont larger = usual_;
    larger.setPointSizeF(usual_.pointSizeF() * std::get<double>(GetParam()));
    QApplication::setFont(larger);
    addWindows(forms, around);
    const ColumnRecord widest{-1, column(44, 45, 46, 47, 48, 49)};
    world.files.folder["KARVENIS.RND"] = columnBytes(std::vector<ColumnRecord>(12345, widest));
    world.files.folder["KARVENIS.LST"] = world.files.folder["KARVENIS.RND"];
    setBanko(world.state, {45, 46, 47, 48, 49});
  }
  /// Lets the coupon type itself to its end.
  static void typeWhole(Form* coupon) {
    auto* timer = control<QTimer>(coupon, "Timer1");
    timer->setInterval(0);
    EXPECT_TRUE(waitFor([timer] { return !timer->isActive(); }));
  }
  void TearDown() override {
    WindowTest::TearDown();
    QApplication::setFont(usual_);
  }
};

TEST_P(Fit, NoTextIsCut) {
  const std::string name = std::get<const char*>(GetParam());
  if (name == "frmRndDel") world.boxes.expectBeep();
  if (name == "frmList") world.boxes.expectBeep(48);
  Form* form = open(name.c_str());
  ASSERT_NE(form, nullptr);
  press(form, Qt::Key_End);
  if (name == "frmList") typeWhole(form);
  for (const QWidget* control : form->findChildren<QWidget*>()) {
    if (!control->isVisible()) continue;
    if (const auto* label = qobject_cast<const QLabel*>(control)) {
      if (!label->wordWrap()) expectFits(*label, label->text(), label->contentsRect());
    } else if (const auto* box = qobject_cast<const QLineEdit*>(control)) {
      expectFits(*box, box->text(), box->contentsRect().adjusted(2, 0, -2, 0));
    } else if (const auto* button = qobject_cast<const QAbstractButton*>(control)) {
      expectFits(*button, button->text(), button->rect());
      EXPECT_GE(button->width(), button->minimumSizeHint().width()) << button->text().toStdString();
    } else if (const auto* bar = qobject_cast<const QMenuBar*>(control)) {
      EXPECT_LE(bar->sizeHint().width(), bar->width()) << "the menus";
    } else if (const auto* surface = dynamic_cast<const Surface*>(control)) {
      for (std::size_t i = 0; i < surface->lines().size(); ++i) {
        EXPECT_TRUE(surface->rect().contains(surface->lineRect(i)))
            << surface->lines()[i].text.toStdString();
      }
    }
    EXPECT_TRUE(control->isWindow() || control->parentWidget() != form ||
                form->rect().contains(control->geometry()))
        << control->objectName().toStdString() << " reaches beyond its window";
  }
}

INSTANTIATE_TEST_SUITE_P(Windows, Fit,
                         testing::Combine(testing::Values("frmLoto", "frmBalls", "frmBanko",
                                                          "frmList", "frmRndLst", "frmRndDel",
                                                          "frmRLPrint", "frmRnd", "frmComLst",
                                                          "frmCLPrint"),
                                          testing::Values(1.0, 1.5, 2.0)),
                         [](const auto& row) {
                           const int percent = static_cast<int>(std::get<double>(row.param) * 100);
                           return std::string(std::get<const char*>(row.param)) + "_" +
                                  std::to_string(percent);
                         });

}  // namespace
}  // namespace karvenis
