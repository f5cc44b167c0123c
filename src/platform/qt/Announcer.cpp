#include "platform/qt/Announcer.h"

#include <QTimer>

using namespace std::chrono_literals;

namespace karvenis {
namespace {

/// In which even a slow screen reader has fetched the text.
constexpr auto lifetime = 30s;

}  // namespace

Announcer::Announcer(QWidget* window, const QString& words) : QWidget(window) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  resize(1, 1);
  setAccessibleName(words);
  show();
  QTimer::singleShot(lifetime, this, &QObject::deleteLater);
}

}  // namespace karvenis
