#include "bag/widgets/BallCell.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QPainter>
#include <mutex>

#include "platform/qt/Letters.h"
#include "platform/qt/Look.h"

namespace karvenis {
namespace {

constexpr QSize cellSize(54, 48);
constexpr int textPixels = 18;
constexpr double ringDiameter = 36;

/// A ball is ticked and unticked like a check box.
class BallCellAccessible final : public QAccessibleWidget {
 public:
  explicit BallCellAccessible(BallCell* cell)
      : QAccessibleWidget(cell, QAccessible::CheckBox), cell_(cell) {}

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = cell_->looksMarked();
    return state;
  }
  QStringList actionNames() const override { return {toggleAction(), setFocusAction()}; }
  void doAction(const QString& action) override {
    if (action == toggleAction()) return cell_->click();
    QAccessibleWidget::doAction(action);
  }

 private:
  BallCell* cell_;
};

QAccessibleInterface* makeAccessible(const QString& className, QObject* object) {
  if (className != QLatin1StringView(BallCell::staticMetaObject.className())) return nullptr;
  return new BallCellAccessible(static_cast<BallCell*>(object));
}

}  // namespace

/// The caption is set last: with it assistive technology learns of the cell, and asks what it is.
BallCell::BallCell(const QString& caption, QWidget* parent) : QPushButton(parent) {
  static std::once_flag done;
  std::call_once(done, [] { QAccessible::installFactory(makeAccessible); });
  setText(caption);
  grow(1);
}

void BallCell::grow(double growth) {
  growth_ = growth;
  setLetters(*this, textPixels * growth);
  setFixedSize(cellSize * growth);
}

/// A procedure may change a mark twice; the result is reported when the procedure has ended.
void BallCell::changeEvent(QEvent* event) {
  QPushButton::changeEvent(event);
  QMetaObject::invokeMethod(this, &BallCell::reportMark, Qt::QueuedConnection);
}

void BallCell::reportMark() {
  if (reportedMark_ == looksMarked()) return;
  reportedMark_ = looksMarked();
  QAccessible::State changed;
  changed.checked = true;
  QAccessibleStateChangeEvent event(this, changed);
  QAccessible::updateAccessibility(&event);
}

void BallCell::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF cell = QRectF(rect()).adjusted(2.5, 2.5, -2.5, -2.5);
  const bool marked = looksMarked();
  QColor ground = palette().color(QPalette::Button);
  if (isDown()) {
    ground = ground.darker(115);
  } else if (underMouse()) {
    ground = ground.darker(105);  // seen on white too
  }
  painter.setPen(QPen(QColor(marked ? look::petrol : look::edge), 1));
  painter.setBrush(ground);
  painter.drawRoundedRect(cell, 5, 5);
  if (marked) {
    QRectF ring(0, 0, ringDiameter * growth_, ringDiameter * growth_);
    ring.moveCenter(cell.center());
    painter.setPen(QPen(QColor(look::petrol), 3 * growth_));
    painter.drawEllipse(ring);
  }
  painter.setPen(QColor(look::ink));
  painter.drawText(cell, Qt::AlignCenter, text());
  if (hasFocus()) {
    painter.setPen(QPen(QColor(look::ink), 2, Qt::DotLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 6, 6);
  }
}

void BallCell::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
      return Q_EMIT stepped(-1, 0);
    case Qt::Key_Right:
      return Q_EMIT stepped(1, 0);
    case Qt::Key_Up:
      return Q_EMIT stepped(0, -1);
    case Qt::Key_Down:
      return Q_EMIT stepped(0, 1);
    default:
      return QPushButton::keyPressEvent(event);
  }
}

void BallCell::focusInEvent(QFocusEvent* event) {
  QPushButton::focusInEvent(event);
  Q_EMIT entered();
}

}  // namespace karvenis
