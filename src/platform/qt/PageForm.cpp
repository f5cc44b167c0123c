#include "platform/qt/PageForm.h"

#include <QPainter>
#include <QVBoxLayout>

#include "platform/qt/Look.h"

namespace karvenis {

PageForm::PageForm(Windows& windows, const char* name, int lines)
    : Form(windows, name), surface_(new Surface(this, lines)) {
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addStretch(1);
  whole->addWidget(surface_, 0, Qt::AlignHCenter);
  whole->addStretch(2);
  surface_->setFocusPolicy(Qt::StrongFocus);
  surface_->setFocus();
}

void PageForm::Form_KeyDown(int KeyCode, int) {
  if (KeyCode == keyEscape) return unload();
  if (command(KeyCode)) redraw();
}

void PageForm::Form_Click() {
  nextPage();
  redraw();
}

/// A line around the page, seen where the window is larger.
void PageForm::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(QColor(look::edge));
  painter.drawRect(surface_->geometry().adjusted(-1, -1, 0, 0));
}

}  // namespace karvenis
