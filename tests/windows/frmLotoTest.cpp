#include "windows/frmLotoTest.h"

#include <QCheckBox>
#include <QRadioButton>

#include "core/Draw.h"
#include "doubles/Sets.h"

// How the main window draws, picks, sorts and shows columns.

namespace karvenis {
namespace {

class FrmLoto : public FrmLotoTest {};

using Shown = std::vector<std::string>;

TEST_F(FrmLoto, StartsCoveredWithEmptyNumbersAndTheBallsAtRest) {
  EXPECT_EQ(loto->caption(), " KARVENIS 2005 Randomizer");
  EXPECT_FALSE(hidden("Picture0"));
  EXPECT_TRUE(control<QRadioButton>(loto, "Option1")->isChecked());
  EXPECT_FALSE(control<QCheckBox>(loto, "Check1")->isChecked());
  for (int index = 0; index < 12; ++index) {
    EXPECT_EQ(caption(index), "");
    EXPECT_FALSE(number(index)->isHidden());
  }
  for (int k = 1; k <= 6; ++k) {
    for (int step = 0; step < 4; ++step) {
      EXPECT_EQ(image(5 * (k - 1) + 1 + step)->isHidden(), step < 3) << k << " step " << step;
    }
  }
  EXPECT_EQ(world.journal.of("seed").size(), 1U) << "the first activation seeds";
  EXPECT_TRUE(world.files.folder.empty()) << "nothing is made at start";
}

TEST_F(FrmLoto, DrawsFromTheBagBallByBall) {
  drawToTheEnd();
  EXPECT_TRUE(hidden("Picture0"));
  for (int k = 1; k <= 6; ++k) {
    const std::string ball = std::to_string(ballAt(world.state.Drawn, k));
    EXPECT_EQ(caption(2 * k - 2), ball);
    EXPECT_EQ(caption(2 * k - 1), ball);
    EXPECT_FALSE(number(2 * k - 2)->isHidden());
    EXPECT_FALSE(number(2 * k - 1)->isHidden());
    EXPECT_FALSE(image(5 * (k - 1) + 4)->isHidden());
    for (int step = 1; step <= 3; ++step) EXPECT_TRUE(image(5 * (k - 1) + step)->isHidden());
  }
}

TEST_F(FrmLoto, RefusesWhereSixBallsAreMissing) {
  setBag(world.state, {1, 2, 3});
  setBanko(world.state, {7, 8});
  loto->setCaption(" KARVENIS.RND Kayıt No= 3");
  world.boxes.expectWarning("En az 6 top seçmiş olmanız gerekiyor!", " ! Eksik top seçimi !");
  pressKolon();
  EXPECT_TRUE(world.boxes.finished());
  EXPECT_EQ(world.state.Drawn, Column{});
  EXPECT_TRUE(hidden("Picture0")) << "hidden even after a refusal";
  EXPECT_EQ(loto->caption(), " KARVENIS.RND Kayıt No= 3") << "a refusal leaves the title";
}

TEST_F(FrmLoto, RefusesWhereTheBallsAreNotDistinct) {
  setBag(world.state, {7, 20, 1, 2});
  setBanko(world.state, {7, 20});
  world.boxes.expectWarning(tooFewBalls, tooFewBallsTitle);
  pressKolon();
}

TEST_F(FrmLoto, AnAcceptedDrawPutsTheTitleBack) {
  loto->setCaption(" KARVENIS.RND Kayıt No= 3");
  drawToTheEnd();
  EXPECT_EQ(loto->caption(), " KARVENIS 2005 Randomizer");
}

TEST_F(FrmLoto, PicksFromTheListAtOnceInStoredOrder) {
  world.files.folder["KARVENIS.LST"] =
      columnBytes({{7, column(1, 2, 3, 4, 5, 6)}, {8, column(49, 3, 48, 2, 47, 1)}});
  click(control(loto, "Check1"));
  click(control(loto, "Option2"));
  world.chance.script = {0.5F};
  world.boxes.expectBeep();
  pressKolon();
  EXPECT_EQ(shownColumn(), (Shown{"49", "3", "48", "2", "47", "1"}));
  EXPECT_EQ(loto->caption(), " KARVENIS.LST  Kayıt = 2 [ 2 ]");
  EXPECT_EQ(world.state.Drawn, column(49, 3, 48, 2, 47, 1));
  EXPECT_TRUE(hidden("Picture0"));
}

TEST_F(FrmLoto, AListPickDuringADrawIsShownAtOnceAndTheBallsRollOn) {
  world.files.folder["KARVENIS.LST"] = columnBytes({{7, column(49, 3, 48, 2, 47, 1)}});
  world.boxes.expectBeep();
  pressKolon();
  EXPECT_TRUE(waitFor([this] { return world.boxes.finished(); })) << "the first ball";
  click(control(loto, "Option2"));
  world.boxes.expectBeep();
  pressKolon();
  const Shown picked{"49", "3", "48", "2", "47", "1"};
  EXPECT_EQ(shownColumn(), picked);
  EXPECT_EQ(loto->caption(), " KARVENIS.LST  Kayıt = 1 [ 1 ]");
  EXPECT_TRUE(number(11)->isHidden());
  world.boxes.expectBeep(5);
  EXPECT_TRUE(waitFor([this] { return world.boxes.finished() && !number(11)->isHidden(); }));
  EXPECT_EQ(shownColumn(), picked);
}

TEST_F(FrmLoto, ListPickWithoutAListWarnsAndUncovers) {
  click(control(loto, "Option2"));
  world.boxes.expectWarning("Kombinasyon Listesi dosyası yok!", " ! KARVENIS.LST bulunamadı !");
  pressKolon();
  EXPECT_TRUE(hidden("Picture0"));
}

TEST_F(FrmLoto, SortsAndShowsWhenTheBoxBecomesChecked) {
  world.state.Drawn = column(9, 8, 7, 3, 2, 1);
  click(control(loto, "Check1"));
  EXPECT_EQ(shownColumn(), (Shown{"1", "2", "3", "7", "8", "9"}));
  world.state.Drawn = column(9, 8, 7, 3, 2, 1);
  click(control(loto, "Check1"));
  EXPECT_EQ(shownColumn(), (Shown{"1", "2", "3", "7", "8", "9"})) << "unchecking shows nothing";
  EXPECT_EQ(world.state.Drawn, column(9, 8, 7, 3, 2, 1));
}

TEST_F(FrmLoto, CheckingBeforeAnyDrawShowsZeros) {
  click(control(loto, "Check1"));
  for (int index = 0; index < 12; ++index) EXPECT_EQ(caption(index), "0");
}

TEST_F(FrmLoto, ShowsDateAndTime) {
  EXPECT_TRUE(waitFor([this] { return control<QLabel>(loto, "Label3")->text() == "12:34:56"; }));
  EXPECT_EQ(control<QLabel>(loto, "Label2")->text(), "21.11.2026");
}

TEST_F(FrmLoto, ANumberTellsItselfUnderThePointer) {
  world.state.Drawn = column(9, 8, 7, 3, 2, 1);
  click(control(loto, "Check1"));
  uncover();
  for (int index = 0; index < 12; ++index) {
    EXPECT_EQ(number(index)->toolTip(), QString()) << "not before";
    QTest::mouseMove(loto->windowHandle(), number(index)->mapTo(loto, QPoint(20, 18)));
    EXPECT_TRUE(waitFor([&] { return number(index)->toolTip() == number(index)->text(); }));
  }
}

TEST_F(FrmLoto, TheCheckMayBeSetByWhateverMeans) {
  world.state.Drawn = column(9, 8, 7, 3, 2, 1);
  control<QCheckBox>(loto, "Check1")->toggle();
  EXPECT_EQ(shownColumn(), (Shown{"1", "2", "3", "7", "8", "9"}));
}

TEST_F(FrmLoto, KeepingAColumnDoesNotRefreshTheNumbers) {
  world.files.folder["KARVENIS.LST"] = columnBytes({{1, column(9, 8, 7, 3, 2, 1)}});
  click(control(loto, "Option2"));
  world.boxes.expectBeep(2);
  pressKolon();
  press(loto, Qt::Key_F1);
  EXPECT_EQ(shownColumn(), (Shown{"9", "8", "7", "3", "2", "1"}));
  EXPECT_EQ(world.state.Drawn, column(1, 2, 3, 7, 8, 9));
}

TEST_F(FrmLoto, BallsOfADamagedRecordAreShownAsTheyStand) {
  world.files.folder["KARVENIS.LST"] = columnBytes({{1, column(-32768, 0, 50, 32767, -1, 7)}});
  click(control(loto, "Option2"));
  world.boxes.expectBeep();
  pressKolon();
  EXPECT_EQ(shownColumn(), (Shown{"-32768", "0", "50", "32767", "-1", "7"}));
}

TEST_F(FrmLoto, AFileOfBagAndBankosIsNotReadAtStart) {
  forms.find("frmLoto")->unload();
  settle();
  world.files.folder["KARVENIS.DAT"] = words({2, 5, 9});
  loto = open("frmLoto");
  EXPECT_TRUE(world.state.Bag.empty());
  EXPECT_TRUE(world.state.Banko.empty());
}

TEST_F(FrmLoto, TellsByNameWhatIsNoText) {
  EXPECT_EQ(control(loto, "Picture0")->accessibleName(), "Açılış resmi");
  EXPECT_EQ(control(loto, "Picture1")->accessibleName(), "KARVENIS amblemi");
  EXPECT_EQ(control(loto, "Frame1")->accessibleName(), "Kolonun kaynağı ve sırası");
  EXPECT_EQ(number(10)->accessibleName(), "6. top: boş");
  world.state.Drawn = column(9, 8, 7, 3, 2, 1);
  click(control(loto, "Check1"));
  EXPECT_EQ(number(10)->accessibleName(), "6. top: 9");
  EXPECT_EQ(number(1)->accessibleName(), "1. sayı: 1");
}

TEST_F(FrmLoto, TabLeadsToTheChosenSourceAlone) {
  control(loto, "Check1")->setFocus();
  press(loto, Qt::Key_Backtab);
  EXPECT_EQ(focused(), "Option1");
}

// A ball that is late is seen; the clock may be, and so wakes the machine less often.
TEST_F(FrmLoto, TheTimersOfTheBallsArePrecise) {
  for (int number = 0; number <= 6; ++number) {
    const auto* timer = control<QTimer>(loto, QStringLiteral("Timer%1").arg(number));
    EXPECT_EQ(timer->timerType(), number == 0 ? Qt::CoarseTimer : Qt::PreciseTimer) << number;
  }
}

}  // namespace
}  // namespace karvenis
