#include "platform/qt/PageForm.h"

#include <QPainter>
#include <QVBoxLayout>
#include <QtMath>

#include "platform/qt/Letters.h"
#include "platform/qt/Look.h"

namespace karvenis {
namespace {

constexpr double titleWidth = 6500;  // twips; the frame shows the whole title then
constexpr int band = 16;             // above and below the page, where the screen has room

void addBand(QVBoxLayout& layout, int stretch) {
  layout.addItem(new QSpacerItem(0, band, QSizePolicy::Minimum, QSizePolicy::Expanding));
  layout.setStretch(layout.count() - 1, stretch);
}

}  // namespace

PageForm::PageForm(Windows& windows, const char* name, int lines)
    : Form(windows, name), surface_(new Surface(this, lines)) {
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addStrut(qCeil(surface_->pixels(titleWidth)));
  addBand(*whole, 1);
  whole->addWidget(surface_, 0, Qt::AlignHCenter);
  addBand(*whole, 2);
  surface_->setFocusPolicy(Qt::StrongFocus);
  surface_->setFocus();
}

void PageForm::fix(double margin, double right) {
  surface_->fix(margin, right);
  resize(sizeHint().boundedTo(roomOnScreen()));
}

void PageForm::Form_KeyDown(int KeyCode, int) {
  if (KeyCode == keyEscape) return unload();
  if (command(KeyCode)) redraw();
}

void PageForm::Form_Click() {
  nextPage();
  redraw();
}

/// A line around the page, as far as the window is larger.
void PageForm::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(QColor(look::edge));
  painter.drawRect(surface_->geometry().adjusted(-1, -1, 0, 0));
}

}  // namespace karvenis
