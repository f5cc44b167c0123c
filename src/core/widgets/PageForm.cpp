#include "core/widgets/PageForm.h"

#include <QPainter>
#include <QVBoxLayout>
#include <QtMath>
#include <algorithm>

#include "platform/qt/Letters.h"
#include "platform/qt/Look.h"

namespace karvenis {
namespace {

constexpr double titleWidth = 6500;  // twips; with it the frame shows the whole title
constexpr int widestBand = 16;       // of the ground above and below the page

}  // namespace

PageForm::PageForm(Windows& windows) : Form(windows), surface_(new Surface(this, rowsOnPage)) {
  surface_->setFocusPolicy(Qt::StrongFocus);
  surface_->setFocus();
  surface_->fixSize(pageMargin, fitRows(*surface_));
  const int spare = roomOnScreen().height() - surface_->height();
  const int band = std::clamp(spare / 2, 0, widestBand);
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, band, 0, band);
  whole->addStrut(qCeil(surface_->pixels(titleWidth)));
  whole->addStretch(1);
  whole->addWidget(surface_, 0, Qt::AlignHCenter);
  whole->addStretch(2);
}

void PageForm::Form_KeyDown(int KeyCode, int) {
  if (KeyCode == keyEscape) return unload();
  if (answerKey(KeyCode)) redraw();
}

void PageForm::Form_Click() {
  page_.click();
  redraw();
}

void PageForm::redraw() {
  printPage(*surface_);
  surface_->setPage(page_.PageNo);
}

/// A line around the page, as far as the window is larger.
void PageForm::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(QColor(look::edge));
  painter.drawRect(surface_->geometry().adjusted(-1, -1, 0, 0));
}

}  // namespace karvenis
