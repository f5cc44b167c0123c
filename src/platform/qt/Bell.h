#pragma once

#include <sys/types.h>

#include <QApplication>
#include <QSocketNotifier>
#include <QString>
#include <functional>

namespace karvenis {

/// The beep as a sound of the desktop, played by a program of its own, which the first ring starts:
/// a sound server that hangs stops only that program. If it cannot play, it ends, and from then on
/// the window system's own bell rings.
class Bell {
 public:
  /// `player` plays one sound for each byte of its standard input and ends with it; `fallback` is
  /// called for every ring after the player has ended.
  explicit Bell(QString player = installedPlayer(),
                std::function<void()> fallback = QApplication::beep);
  /// Ends the player.
  ~Bell();
  Bell(const Bell&) = delete;
  Bell& operator=(const Bell&) = delete;

  /// Never waits: a ring that the player has no room for is dropped.
  void ring();

 private:
  static QString installedPlayer();
  void start();
  bool passOn() const;
  void giveUp();

  QString player_;
  std::function<void()> fallback_;
  bool started_ = false;
  int socket_ = -1;                                   // to the player; -1 while there is none
  pid_t process_ = 0;                                 // the player; 0 while there is none
  QSocketNotifier playerEnd_{QSocketNotifier::Read};  // tells that the player has ended
};

}  // namespace karvenis
