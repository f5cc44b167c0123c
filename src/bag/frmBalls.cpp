#include "bag/frmBalls.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "bag/Texts.h"
#include "bag/widgets/BallCell.h"
#include "core/Numbers.h"
#include "platform/qt/Letters.h"
#include "platform/qt/Text.h"

using namespace Qt::StringLiterals;

namespace karvenis {
namespace {

constexpr int cellsInRow = 7;
constexpr char tag[] = "Tag";

}  // namespace

frmBalls::frmBalls(Surroundings& around) : frmSelection(around) {
  auto* whole = new QVBoxLayout(this);
  whole->setSizeConstraint(QLayout::SetFixedSize);
  setCaption("6/49 Top Seçme Tablosu");
  buildMenus();
  Label1 = control<QLabel>(u"Label1"_s);
  buildCells();
  whole->addWidget(Frame1);
  Label2 = control<QLabel>(u"Label2"_s, u"F10= Yardım"_s);
  Label2->setToolTip(u"KARVENIS 2005"_s);
  whole->addWidget(buildFoot(Label1, Label2));
  growWithLetters(*this, [this](double growth) {
    for (BallCell* cell : cmdBall) cell->grow(growth);
  });
  cmdBall[1]->setFocus();
}

void frmBalls::buildMenus() {
  QMenu* choice = buildChoiceMenu();
  choice->addSeparator()->setObjectName(u"mnuL1"_s);
  addMenuEntry(choice, "mnuHepsi", u"Hepsini Seç"_s, [this] { mnuHepsi_Click(); });
  addMenuEntry(choice, "mnuHicbiri", u"Hiçbirini Seçme"_s, [this] { mnuHicbiri_Click(); });
  QMenu* help = buildOtherMenus(choice, "mnuL2");
  addMenuEntry(help, "mnuNasil", u"Bu Seçim Niçin ve Nasıl Uygulanır"_s,
               [this] { mnuNasil_Click(); });
}

void frmBalls::buildCells() {
  Frame1 = control<QFrame>(u"Frame1"_s);
  Frame1->setAccessibleName(u"Toplar"_s);
  Frame1->setFrameShape(QFrame::StyledPanel);
  auto* grid = new QGridLayout(Frame1);
  grid->setContentsMargins(10, 10, 10, 10);
  grid->setSpacing(2);
  for (int index = 0; index <= ballsInAll; ++index) buildCell(index);
  for (int ball = 1; ball <= ballsInAll; ++ball) {
    grid->addWidget(cmdBall[ball], (ball - 1) / cellsInRow, (ball - 1) % cellsInRow);
  }
}

void frmBalls::buildCell(int index) {
  const bool isBall = index > 0;
  const QString caption = isBall ? toQt(padded(index, 2)) : u"top"_s;
  auto* cell = new BallCell(caption, Frame1);
  cell->setObjectName(u"cmdBall_%1"_s.arg(index));
  cell->setToolTip(isBall ? QString::number(index) : u"Top"_s);
  cell->setAccessibleName(cell->toolTip());
  cmdBall[index] = cell;
  if (!isBall) {
    cell->hide();
    return;
  }
  cell->setFocusPolicy(Qt::ClickFocus);
  connect(cell, &BallCell::stepped, this,
          [this, index](int columns, int rows) { step(index, columns, rows); });
  connect(cell, &BallCell::entered, this, [this, index] { takeTabStop(index); });
  guard(cell);
  on(cell, &QPushButton::clicked, [this, index] { cmdBall_Click(index); });
}

void frmBalls::Form_Activate() { showBag(around_.state, *this); }

void frmBalls::ownKey(int KeyCode) {
  switch (KeyCode) {
    case keyF4:
      return mnuHepsi_Click();
    case keyF5:
      return mnuHicbiri_Click();
    case keyF11:
      return mnuNasil_Click();
    default:
      return;
  }
}

/// Whether a click marks or unmarks depends on the font, not on the tag.
void frmBalls::cmdBall_Click(int Index) { setMarked(Index, !cmdBall[Index]->looksMarked()); }

void frmBalls::Command1_Click() { applyBag(around_, *this); }
void frmBalls::Command3_Click() { loadBagInBagWindow(around_, *this); }
void frmBalls::Command4_Click() { saveBag(around_, *this); }

void frmBalls::mnuHepsi_Click() {
  markAll(true);
  around_.windows.announce("49 top işaretli");
}

void frmBalls::mnuHicbiri_Click() {
  markAll(false);
  around_.windows.announce("İşaretli top yok");
}

void frmBalls::mnuFunctionKeys_Click() {
  around_.boxes.beep();
  around_.boxes.message(bagKeys);
}

void frmBalls::mnuNasil_Click() { around_.boxes.message(bagExplained, bagExplainedTitle); }

/// A ball is marked if its tag says so, whatever it looks like.
bool frmBalls::isMarked(int ball) const {
  const QVariant mark = cmdBall[ball]->property(tag);
  return typedNumber16(fromQt(mark.toString())) == 1;
}

void frmBalls::setMarked(int ball, bool marked) {
  markedBalls_ += static_cast<int>(marked) - static_cast<int>(isMarked(ball));
  Label1->setText(u"%1 top işaretli"_s.arg(markedBalls_));
  BallCell* cell = cmdBall[ball];
  QFont number = cell->font();
  number.setBold(marked);
  cell->setFont(number);
  QPalette colours = palette();
  if (marked) colours.setColor(QPalette::Button, Qt::white);
  cell->setPalette(colours);
  cell->setProperty(tag, marked ? u"1"_s : u"0"_s);
}

/// Moves the focus inside the grid; at the edge of the grid it stays where it is.
void frmBalls::step(int from, int columns, int rows) {
  const int column = (from - 1) % cellsInRow + columns;
  const int row = (from - 1) / cellsInRow + rows;
  if (column < 0 || column >= cellsInRow || row < 0 || row >= ballsInAll / cellsInRow) return;
  cmdBall[row * cellsInRow + column + 1]->setFocus(Qt::TabFocusReason);
}

/// Tab leads to one ball only, the one that had the focus last; the arrows lead to the others.
void frmBalls::takeTabStop(int index) {
  cmdBall[tabStop_]->setFocusPolicy(Qt::ClickFocus);
  tabStop_ = index;
  cmdBall[index]->setFocusPolicy(Qt::StrongFocus);
}

}  // namespace karvenis
