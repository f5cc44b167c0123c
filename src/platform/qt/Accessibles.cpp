#include "platform/qt/Accessibles.h"

#include <QAccessibleWidget>
#include <QFrame>

#include "platform/qt/Announcer.h"
#include "platform/qt/BallCell.h"
#include "platform/qt/Surface.h"
#include "platform/qt/SurfaceAccessible.h"

namespace karvenis {
namespace {

/// A ball is ticked and unticked like a check box.
class BallCellAccessible final : public QAccessibleWidget {
 public:
  explicit BallCellAccessible(BallCell* cell)
      : QAccessibleWidget(cell, QAccessible::CheckBox), cell_(cell) {}

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = cell_->isMarked();
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

/// The toolkit asks for each class of `object` in turn, the most derived one first.
QAccessibleInterface* make(const QString& className, QObject* object) {
  const auto is = [&](const QMetaObject& type) {
    return className == QLatin1StringView(type.className());
  };
  if (is(Surface::staticMetaObject)) return makeSurfaceAccessible(static_cast<Surface*>(object));
  if (is(BallCell::staticMetaObject)) return new BallCellAccessible(static_cast<BallCell*>(object));
  if (is(Announcer::staticMetaObject)) {
    return new QAccessibleWidget(static_cast<Announcer*>(object), QAccessible::Notification);
  }
  // By itself a frame is told as a window, and swallows the focus of what is in it.
  if (is(QFrame::staticMetaObject)) {
    return new QAccessibleWidget(static_cast<QFrame*>(object), QAccessible::Grouping);
  }
  return nullptr;
}

}  // namespace

void installAccessibles() {
  static const bool installed = (QAccessible::installFactory(make), true);
  static_cast<void>(installed);
}

}  // namespace karvenis
