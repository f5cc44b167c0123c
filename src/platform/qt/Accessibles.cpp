#include "platform/qt/Accessibles.h"

#include <QAccessibleWidget>
#include <QFrame>
#include <QLineEdit>

#include "platform/qt/Announcer.h"
#include "platform/qt/NumberBox.h"
#include "platform/qt/Surface.h"
#include "platform/qt/SurfaceAccessible.h"
#include "platform/qt/TypedTextAccessible.h"

namespace karvenis {
namespace {

/// The toolkit asks for each class of `object` in turn, the most derived one first.
QAccessibleInterface* make(const QString& className, QObject* object) {
  const auto is = [&](const QMetaObject& type) {
    return className == QLatin1StringView(type.className());
  };
  if (is(Surface::staticMetaObject)) return makeSurfaceAccessible(static_cast<Surface*>(object));
  if (is(Announcer::staticMetaObject)) {
    return new QAccessibleWidget(static_cast<Announcer*>(object), QAccessible::Notification);
  }
  if (is(QLineEdit::staticMetaObject)) {
    return makeTypedTextAccessible(static_cast<QLineEdit*>(object));
  }
  // By itself a frame is told as a window, and swallows the focus of what is in it.
  if (is(QFrame::staticMetaObject)) {
    return new QAccessibleWidget(static_cast<QFrame*>(object), QAccessible::Grouping);
  }
  return nullptr;
}

const QObject* focused = nullptr;  // as assistive technology was told; only compared

/// Of the caret and the selection in a box assistive technology hears while the box has the focus.
/// A screen reader that hears of them before it hears of the focus does not name the box, and what
/// is selected no more when the focus goes is no news. Of a number that the program writes, the
/// program speaks itself.
bool isToBeTold(const QAccessibleEvent& event) {
  switch (event.type()) {
    case QAccessible::Focus:
      focused = event.object();
      return true;
    case QAccessible::TextCaretMoved:
    case QAccessible::TextSelectionChanged: {
      const auto* box = qobject_cast<QWidget*>(event.object());
      const auto* number = qobject_cast<const NumberBox*>(box);
      return box != nullptr && box == focused && box->hasFocus() &&
             (number == nullptr || !number->isBeingWritten());
    }
    default:
      return true;
  }
}

void tell(QAccessibleEvent* event) {
  if (!isToBeTold(*event)) return;
  QAccessible::installUpdateHandler(nullptr);
  QAccessible::updateAccessibility(event);
  QAccessible::installUpdateHandler(tell);
}

}  // namespace

void installAccessibles() {
  static const bool installed =
      (QAccessible::installFactory(make), QAccessible::installUpdateHandler(tell), true);
  static_cast<void>(installed);
}

}  // namespace karvenis
