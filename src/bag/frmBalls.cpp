#include "bag/frmBalls.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "bag/Texts.h"
#include "core/Numbers.h"
#include "platform/qt/BallCell.h"
#include "platform/qt/Text.h"

namespace karvenis {
namespace {

constexpr int cellsInRow = 7;
constexpr int margin = 16;
constexpr char tag[] = "Tag";

QColor brightWhite() { return Qt::white; }

}  // namespace

frmBalls::frmBalls(Surroundings& around, Forms& forms) : Form(forms, "frmBalls"), around_(around) {
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(margin, margin, margin, margin);
  whole->setSpacing(margin - 4);
  whole->setSizeConstraint(QLayout::SetFixedSize);
  setCaption("6/49 Top Seçme Tablosu");
  buildMenus();
  buildCells();
  whole->addWidget(Frame1);
  whole->addWidget(buildCommands());
  takeTabStop(1);
  cmdBall[1]->setFocus();
}

void frmBalls::buildMenus() {
  QMenu* choice = menuHead("mnuSecim", QStringLiteral("Seçim"));
  menuEntry(choice, "mnuUygula", QStringLiteral("Seçimi Uygula"), [this] { mnuUygula_Click(); });
  choice->addSeparator()->setObjectName(QStringLiteral("mnuL1"));
  menuEntry(choice, "mnuHepsi", QStringLiteral("Hepsini Seç"), [this] { mnuHepsi_Click(); });
  menuEntry(choice, "mnuHicbiri", QStringLiteral("Hiçbirini Seçme"),
            [this] { mnuHicbiri_Click(); });
  choice->addSeparator()->setObjectName(QStringLiteral("mnuL2"));
  menuEntry(choice, "mnuKapat", QStringLiteral("Kapat"), [this] { mnuKapat_Click(); });

  QMenu* file = menuHead("mnuDosya", QStringLiteral("Dosya"));
  menuEntry(file, "mnuYukle", QStringLiteral("Dosyadan Yükle"), [this] { mnuYukle_Click(); });
  menuEntry(file, "mnuKayitla", QStringLiteral("Dosyaya Kayıtla"), [this] { mnuKayitla_Click(); });

  QMenu* help = menuHead("mnuYardim", QStringLiteral("Yardım"));
  menuEntry(help, "mnuFunctionKeys", QStringLiteral("Fonksiyon Tuşları"),
            [this] { mnuFunctionKeys_Click(); });
  menuEntry(help, "mnuNasil", QStringLiteral("Bu Seçim Niçin ve Nasıl Uygulanır"),
            [this] { mnuNasil_Click(); });
}

void frmBalls::buildCells() {
  Frame1 = control<QFrame>(QStringLiteral("Frame1"));
  Frame1->setAccessibleName(QStringLiteral("Toplar"));
  Frame1->setStyleSheet(QStringLiteral(
      "#Frame1 { background: #fffdf7; border: 1px solid #c9b48c; border-radius: 8px; }"));
  auto* grid = new QGridLayout(Frame1);
  grid->setContentsMargins(10, 10, 10, 10);
  grid->setSpacing(2);
  for (int index = 0; index <= ballsInAll; ++index) buildCell(index);
  for (int ball = 1; ball <= ballsInAll; ++ball) {
    grid->addWidget(cmdBall[static_cast<std::size_t>(ball)], (ball - 1) / cellsInRow,
                    (ball - 1) % cellsInRow);
  }
}

void frmBalls::buildCell(int index) {
  const bool isBall = index > 0;
  const QString caption = isBall ? toQt(padded(index, 2)) : QStringLiteral("top");
  auto* cell = new BallCell(caption, Frame1);
  cell->setObjectName(QStringLiteral("cmdBall_%1").arg(index));
  cell->setToolTip(isBall ? QString::number(index) : QStringLiteral("Top"));
  cmdBall[static_cast<std::size_t>(index)] = cell;
  if (!isBall) {
    cell->hide();
    return;
  }
  cell->setFocusPolicy(Qt::ClickFocus);
  cell->stepped = [this, index](int columns, int rows) { step(index, columns, rows); };
  cell->entered = [this, index] { takeTabStop(index); };
  on(cell, &QPushButton::clicked, [this, index] { cmdBall_Click(index); });
  setMarked(index, false);
}

QWidget* frmBalls::buildCommands() {
  auto* holder = new QWidget(this);
  auto* row = new QHBoxLayout(holder);
  row->setContentsMargins(0, 0, 0, 0);
  Command1 = command("Command1", u"Uygula", u"Uygula", [this] { Command1_Click(); });
  Command3 = command("Command3", u"Yükle", u"Dosyadan Yükle", [this] { Command3_Click(); });
  Command4 = command("Command4", u"Kayıtla", u"Dosyaya Kayıtla", [this] { Command4_Click(); });
  Command2 = command("Command2", u"Kapat", u"Çıkış", [this] { Command2_Click(); });
  for (QPushButton* button : {Command1, Command3, Command4, Command2}) row->addWidget(button);
  Label2 = control<QLabel>(QStringLiteral("Label2"), QStringLiteral("F10= Yardım"));
  Label2->setToolTip(QStringLiteral("KARVENIS 2005"));
  row->addStretch();
  row->addWidget(Label2);
  return holder;
}

void frmBalls::Form_Activate() { showBag(around_.state, *this); }

void frmBalls::Form_KeyDown(int KeyCode, int Shift) {
  if ((Shift & altKey) != 0) return;  // the desktop's own, such as Alt+F4
  switch (KeyCode) {
    case keyEscape:
      return unload();
    case keyF1:
      return Command1_Click();
    case keyF2:
      return Command3_Click();
    case keyF3:
      return Command4_Click();
    case keyF4:
      return mnuHepsi_Click();
    case keyF5:
      return mnuHicbiri_Click();
    case keyF10:
      return mnuFunctionKeys_Click();
    case keyF11:
      return mnuNasil_Click();
    default:
      return;
  }
}

/// The font, and not the tag, says which way a click turns.
void frmBalls::cmdBall_Click(int Index) {
  setMarked(Index, !cmdBall[static_cast<std::size_t>(Index)]->font().bold());
}

void frmBalls::Command1_Click() { applyBag(around_, *this); }
void frmBalls::Command2_Click() { unload(); }
void frmBalls::Command3_Click() { loadBag(around_, *this); }
void frmBalls::Command4_Click() { saveBag(around_, *this); }
void frmBalls::mnuHepsi_Click() { markAll(true); }
void frmBalls::mnuHicbiri_Click() { markAll(false); }

void frmBalls::mnuUygula_Click() { Command1_Click(); }
void frmBalls::mnuYukle_Click() { Command3_Click(); }
void frmBalls::mnuKayitla_Click() { Command4_Click(); }
void frmBalls::mnuKapat_Click() { unload(); }

void frmBalls::mnuFunctionKeys_Click() {
  around_.boxes.beep();
  around_.boxes.message(bagKeys);
}

void frmBalls::mnuNasil_Click() { around_.boxes.message(bagExplained, bagExplainedTitle); }

/// The tag, and not the look, says what counts as marked.
bool frmBalls::isMarked(int ball) const {
  const QVariant mark = cmdBall[static_cast<std::size_t>(ball)]->property(tag);
  return typedNumber16(fromQt(mark.toString())) == 1;
}

void frmBalls::setMarked(int ball, bool marked) {
  BallCell* cell = cmdBall[static_cast<std::size_t>(ball)];
  QFont number = cell->font();
  number.setBold(marked);
  cell->setFont(number);
  QPalette colours = palette();
  if (marked) colours.setColor(QPalette::Button, brightWhite());
  cell->setPalette(colours);
  cell->setProperty(tag, marked ? QStringLiteral("1") : QStringLiteral("0"));
  const QString told = QStringLiteral("%1, %2").arg(ball).arg(marked ? QStringLiteral("işaretli")
                                                                     : QStringLiteral("işaretsiz"));
  if (cell->accessibleName() != told) cell->setAccessibleName(told);
}

/// Moves the focus inside the grid; at its border it stays.
void frmBalls::step(int from, int columns, int rows) {
  const int column = (from - 1) % cellsInRow + columns;
  const int row = (from - 1) / cellsInRow + rows;
  if (column < 0 || column >= cellsInRow || row < 0 || row >= ballsInAll / cellsInRow) return;
  cmdBall[static_cast<std::size_t>(row * cellsInRow + column + 1)]->setFocus(Qt::TabFocusReason);
}

/// Tab leads to one ball only, the one that had the focus last; the arrows lead to the others.
void frmBalls::takeTabStop(int index) {
  cmdBall[static_cast<std::size_t>(tabStop_)]->setFocusPolicy(Qt::ClickFocus);
  tabStop_ = index;
  cmdBall[static_cast<std::size_t>(index)]->setFocusPolicy(Qt::StrongFocus);
}

}  // namespace karvenis
