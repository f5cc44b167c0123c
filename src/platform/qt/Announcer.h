#pragma once

#include <QWidget>

namespace karvenis {

/// Has a screen reader speak `words` without moving the focus: it speaks a notification that
/// appears in `window`. This one is invisible to the eye, and deletes itself when even a slow
/// screen reader has fetched its text.
class Announcer final : public QWidget {
  Q_OBJECT

 public:
  Announcer(QWidget* window, const QString& words);
};

}  // namespace karvenis
