#include "platform/qt/Accessibles.h"

#include <QAccessibleWidget>
#include <QFrame>

#include "platform/qt/Announcer.h"
#include "platform/qt/Surface.h"
#include "platform/qt/SurfaceAccessible.h"

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
