#include "platform/qt/Accessibles.h"

#include <QAccessibleWidget>
#include <QFrame>
#include <QLineEdit>
#include <mutex>

#include "platform/qt/Announcer.h"
#include "platform/qt/NumberField.h"
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
  // The toolkit reports a frame as a window, and a screen reader then misses the focus inside it.
  if (is(QFrame::staticMetaObject)) {
    return new QAccessibleWidget(static_cast<QFrame*>(object), QAccessible::Grouping);
  }
  return nullptr;
}

const QObject* reportedFocus = nullptr;  // only compared, since it may be gone

/// Whether assistive technology hears of `event`. It hears of the caret and the selection in a
/// field only while the field has the focus and that has been reported: a screen reader that hears
/// of them earlier does not name the field, and a selection that ends when the focus leaves is no
/// news. A number that the program writes is announced by the program itself.
bool isToBeReported(const QAccessibleEvent& event) {
  switch (event.type()) {
    case QAccessible::Focus:
      reportedFocus = event.object();
      return true;
    case QAccessible::TextCaretMoved:
    case QAccessible::TextSelectionChanged: {
      const auto* field = qobject_cast<QWidget*>(event.object());
      const auto* number = qobject_cast<const NumberField*>(field);
      return field != nullptr && field == reportedFocus && field->hasFocus() &&
             (number == nullptr || !number->isBeingWritten());
    }
    default:
      return true;
  }
}

/// The toolkit calls this handler instead of reporting the event, so it is taken out while the
/// event goes the toolkit's usual way.
void report(QAccessibleEvent* event) {
  if (!isToBeReported(*event)) return;
  QAccessible::installUpdateHandler(nullptr);
  QAccessible::updateAccessibility(event);
  QAccessible::installUpdateHandler(report);
}

}  // namespace

void installAccessibles() {
  static std::once_flag done;
  std::call_once(done, [] {
    QAccessible::installFactory(make);
    QAccessible::installUpdateHandler(report);
  });
}

}  // namespace karvenis
