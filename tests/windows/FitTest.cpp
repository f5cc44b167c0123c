#include <QCheckBox>
#include <QLabel>
#include <QMenuBar>
#include <QRadioButton>

#include "AllWindows.h"
#include "doubles/Doubles.h"
#include "doubles/Sets.h"
#include "windows/BigLetters.h"

// No text of any window is cut and no window is larger than the screen, with letters up to twice as
// large as usual. The tests run this once more for each scale of the screen (tests/CMakeLists.txt).

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

void expectNothingCut(const Form* form) {
  for (QWidget* control : form->findChildren<QWidget*>()) {
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
    } else if (const auto* surface = qobject_cast<const Surface*>(control)) {
      for (std::size_t i = 0; i < surface->lines().size(); ++i) {
        EXPECT_TRUE(surface->rect().contains(surface->lineRect(i)))
            << surface->lines()[i].text.toStdString();
      }
      EXPECT_LT(inkEdge(*control), control->width() * control->devicePixelRatioF() - 3)
          << "lines that are too long";
    }
    EXPECT_TRUE(control->isWindow() || control->parentWidget() != form ||
                form->rect().contains(control->geometry()))
        << control->objectName().toStdString() << " reaches beyond its window";
  }
}

/// A test with all windows over long lists.
class LettersTest : public WindowTest {
 protected:
  void SetUp() override {
    addWindows(forms, around);
    const ColumnRecord widest{-1, column(44, 45, 46, 47, 48, 49)};
    world.files.folder["KARVENIS.RND"] = columnBytes(std::vector<ColumnRecord>(12345, widest));
    world.files.folder["KARVENIS.LST"] = world.files.folder["KARVENIS.RND"];
    setBanko(world.state, {45, 46, 47, 48, 49});
  }
  Form* openOver(const char* name) {
    if (name == std::string_view("frmRndDel")) world.boxes.expectBeep();
    if (name == std::string_view("frmList")) world.boxes.expectBeep(48);
    return open(name);
  }
  /// Lets the coupon type itself to its end.
  static void typeWhole(Form* coupon) {
    auto* timer = control<QTimer>(coupon, "Timer1");
    timer->setInterval(0);
    EXPECT_TRUE(waitFor([timer] { return !timer->isActive(); }));
  }
};

using Surrounding = std::tuple<const char*, const char*, double>;  // window, letters, their growth

class Fit : public LettersTest, public testing::WithParamInterface<Surrounding> {};

TEST_P(Fit, NoTextIsCut) {
  const auto& [name, family, growth] = GetParam();
  const BigLetters letters(family, growth);
  Form* form = openOver(name);
  ASSERT_NE(form, nullptr);
  press(form, Qt::Key_End);
  if (name == std::string_view("frmList")) typeWhole(form);
  expectNothingCut(form);
  EXPECT_TRUE(fitsOnScreen(*form)) << form->width() << " x " << form->height();
}

INSTANTIATE_TEST_SUITE_P(
    Windows, Fit,
    testing::Combine(testing::Values("frmLoto", "frmBalls", "frmBanko", "frmList", "frmRndLst",
                                     "frmRndDel", "frmRLPrint", "frmRnd", "frmComLst",
                                     "frmCLPrint"),
                     testing::Values("DejaVu Sans", "Noto Sans"), testing::Values(1.0, 1.5, 2.0)),
    [](const auto& row) {
      const std::string family = std::get<1>(row.param);
      const int percent = static_cast<int>(std::get<2>(row.param) * 100);
      return std::string(std::get<0>(row.param)) + "_" + family.substr(0, family.find(' ')) + "_" +
             std::to_string(percent);
    });

class LettersFit : public LettersTest, public testing::WithParamInterface<const char*> {
 protected:
  /// How large what the windows are about is shown, in pixels.
  std::map<std::string, int> sizes(double growth) {
    const BigLetters letters(GetParam(), growth);
    std::map<std::string, int> all;
    const std::pair<const char*, std::vector<const char*>> things[] = {
        {"frmLoto", {"Label1_0", "Label1_1", "Command1", "Label2", "Label3"}},
        {"frmBalls", {"cmdBall_1"}},
        {"frmBanko", {"Text1_0"}},
        {"frmRndLst", {"Surface"}},
    };
    for (const auto& [name, controls] : things) {
      Form* form = open(name);
      for (const char* thing : controls) {
        all[std::string(name) + "." + thing] = control(form, thing)->font().pixelSize();
      }
      form->unload();
    }
    settle();
    return all;
  }
};

TEST_P(LettersFit, WhatTheProgramIsAboutGrowsWithTheDesktopsLetters) {
  const auto usual = sizes(1);
  for (const auto& [thing, pixels] : sizes(2)) {
    EXPECT_GE(pixels, 1.25 * usual.at(thing)) << thing << ": as large as the screen has room for";
  }
}

TEST_P(LettersFit, TheBannerReachesFromEdgeToEdge) {
  for (const double growth : {1.0, 1.5, 2.0}) {
    const BigLetters letters(GetParam(), growth);
    Form* main = open("frmLoto");
    const QWidget* banner = control(main, "Picture3");
    EXPECT_EQ(banner->parentWidget()->width(), main->width());
    const double farthestLeft = 203.0 * banner->width() / 984;  // 3000 twips and a step beyond
    EXPECT_GE(banner->width() - farthestLeft, main->width()) << growth;
    main->unload();
    settle();
  }
}

INSTANTIATE_TEST_SUITE_P(Letters, LettersFit, testing::Values("DejaVu Sans", "Noto Sans"),
                         [](const auto& row) { return std::string(row.param).substr(0, 4); });

}  // namespace
}  // namespace karvenis
