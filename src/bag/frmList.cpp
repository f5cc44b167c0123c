#include "bag/frmList.h"

#include <QFontMetrics>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

#include "platform/qt/Surface.h"

using namespace Qt::StringLiterals;

namespace karvenis {
namespace {

constexpr int tick = 100;        // milliseconds
constexpr int textPixels = 18;   // device independent
constexpr int linesOfPage = 10;  // the top margin's line, eight columns, the bottom margin
constexpr int margin = 12;

}  // namespace

frmList::frmList(Surroundings& around)
    : Form(around.windows), page_(makePage(this)), coupon_(around, *page_, *this) {
  setCaption("Sekiz Rastgele Kolon");
  setPalette(page_->palette());
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(margin, 0, margin, margin);
  whole->setSpacing(0);
  whole->setSizeConstraint(QLayout::SetFixedSize);
  whole->addWidget(page_);

  Label1 = control<QLabel>(u"Label1"_s, u"F10 = Yardım"_s);
  QSizePolicy kept = Label1->sizePolicy();
  kept.setRetainSizeWhenHidden(true);
  Label1->setSizePolicy(kept);
  whole->addWidget(Label1, 0, Qt::AlignRight);

  Timer1 = new QTimer(this);
  Timer1->setObjectName(u"Timer1"_s);
  Timer1->setInterval(tick);
  on(Timer1, &QTimer::timeout, [this] { Timer1_Timer(); });
}

/// A page on which the widest coupon fits.
Surface* frmList::makePage(QWidget* parent) {
  auto* page = new Surface(parent, linesOfPage, textPixels);
  const QFontMetrics metrics(page->font());
  const QString widest = u" Kolon  8 - "_s + u"48  "_s.repeated(ballsInColumn);
  page->setFixedSize(metrics.horizontalAdvance(widest), linesOfPage * metrics.height());
  return page;
}

void frmList::Form_Load() { coupon_.start(); }

void frmList::Form_KeyDown(int KeyCode, int) {
  switch (KeyCode) {
    case keyEscape:
      return unload();
    case keyF10:
      return coupon_.showKeys();
    default:
      return coupon_.newPage();
  }
}

void frmList::Form_DblClick() { coupon_.newPage(); }

void frmList::Timer1_Timer() { coupon_.tick(); }

void frmList::enableTimer1(bool enabled) {
  // Restarting a running timer would put off its tick, for ever while a key is held.
  if (!enabled) Timer1->stop();
  if (enabled && !Timer1->isActive()) Timer1->start();
}

void frmList::hideLabel1() { Label1->hide(); }

}  // namespace karvenis
