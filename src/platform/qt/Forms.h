#pragma once

#include <QPointer>
#include <QTimer>
#include <exception>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/Boxes.h"
#include "platform/Windows.h"

class QWidget;
class QWindow;

namespace karvenis {

class Form;

/// The program's windows: makes them, knows which one the user works in and which one opened which,
/// and ends the program.
///
/// A window becomes the active one, and its Form_Activate runs, when
/// - the program shows it,
/// - the active window, which was last shown from it, closes,
/// - the user clicks into it,
/// - the desktop gives it the keyboard and leaves it there.
/// When the program gives the keyboard to a window, a desktop may pass through other windows on the
/// way; these are not activated.
class Forms final : public Windows {
 public:
  using Factory = std::function<Form*()>;

  explicit Forms(Boxes& boxes);
  ~Forms() override;

  /// Registers the window `form`. `make` returns a new one. Forms owns it, gives it its name, and
  /// deletes it after it has closed. The first one added is the main window.
  void add(std::string form, Factory make);
  /// The open window of that name, or null.
  [[nodiscard]] Form* find(std::string_view form) const;

  /// The window the user works in; null before the first.
  [[nodiscard]] Form* active() const;

  void show(std::string_view form) override;
  void announce(std::string_view words) override;
  void dropInput() override;
  void end() override;
  /// Shows the main window and runs until the program ends. Returns its exit status: 1 after a
  /// fault, also one at the start, else 0.
  [[nodiscard]] int run();
  /// Whether the program is about to end.
  [[nodiscard]] bool ending() const { return ending_; }

  /// The desktop gave `form` the keyboard, or brought it back from being minimised.
  void gotKeyboard(const Form& form);
  /// Activates the window that has the keyboard, unless the keyboard is on its way to another one.
  void settle();
  /// Whether the keyboard is no longer expected to move by itself.
  [[nodiscard]] bool isSettled() const { return !onItsWay_.isActive() && !calm_.isActive(); }
  /// An event procedure of some window begins, perhaps inside another one.
  void procedureBegins();
  /// It has ended.
  void procedureEnds();
  /// A box is about to open: brings every title on the screen up to date, and lets the keys that
  /// have waited go to the box. Returns the window that the box belongs to; null if there is none.
  [[nodiscard]] QWidget* boxOpens();
  /// The box has closed: its window has the keyboard again, which is no activation.
  void boxClosed();
  /// `form` has closed. If it was the active window, the one that it was last shown from, else the
  /// main window, becomes active. If another window was active, nothing moves, except that a main
  /// window that is left alone and minimised is shown. `form` is deleted when no procedure runs:
  /// one may still be at work in it, or have a box open that belongs to it.
  void closed(const Form& form);
  /// Ends the program with one box that says what failed, status 1.
  void fault(const std::exception& error);

 private:
  Form* open(std::string_view form);
  void placeBeside(Form& window, const Form& opener) const;
  Form* successorOf(const Form& form) const;
  void deleteClosed() const;
  void tellBusy() const;
  Form* owning(const QWindow* window) const;
  void present(Form& form);
  void giveKeyboard(Form& form);
  void clicked(Form& form);
  void activate(Form& form);
  void speak();

  Boxes& boxes_;
  std::map<std::string, Factory, std::less<>> factories_;
  std::string mainForm_;
  std::vector<QPointer<Form>> windows_;  // made and not yet deleted; open() drops the null ones
  QPointer<Form> active_;
  QTimer onItsWay_;           // runs while the keyboard is on its way to the window it was given to
  QTimer calm_;               // runs until the keyboard has stayed in a window for long enough
  std::string announcement_;  // what is to be spoken
  int running_ = 0;           // event procedures that have not ended
  bool ending_ = false;
  int status_ = 0;
};

}  // namespace karvenis
