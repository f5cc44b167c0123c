#pragma once

#include <QWidget>

namespace karvenis {

/// Words for those who have `window` read to them, spoken without moving the focus: a screen reader
/// speaks a notification that comes up. This one has nothing to see, and goes by itself when even a
/// slow reader has asked for its words.
class Announcer final : public QWidget {
  Q_OBJECT

 public:
  Announcer(QWidget* window, const QString& words);
};

}  // namespace karvenis
