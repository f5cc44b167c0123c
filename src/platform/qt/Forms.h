#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/Boxes.h"
#include "platform/Windows.h"

namespace karvenis {

class Form;

/// The program's windows: makes them, knows which one the user works in and which one opened which,
/// and ends the program.
class Forms final : public Windows {
 public:
  using Factory = std::function<Form*()>;

  explicit Forms(Boxes& boxes) : boxes_(boxes) {}
  ~Forms() override;

  /// Makes `form` known by its name; `make` returns a new window, which then belongs to itself and
  /// goes when it is closed. The first one added is the main window.
  void add(std::string form, Factory make);
  /// The open window of that name, or null.
  Form* find(std::string_view form) const;

  /// The window the user works in; null before the first and while one takes another's place.
  Form* active() const { return active_; }

  void show(std::string_view form) override;
  void end() override;
  /// Shows the main window and serves the user until the program ends; its exit status, which is 1
  /// after a fault, also one at the start.
  int run();
  /// Whether the program is about to end.
  bool ending() const { return ending_; }

  /// The window system gave `form` the keyboard.
  void gotFocus(Form& form);
  /// An event procedure of some window begins, perhaps inside another one, and ends.
  void procedureBegins() { ++running_; }
  void procedureEnds() { --running_; }
  /// Whether another window is about to take the place of `form`: a fast key may still reach it.
  bool isLosing(const Form& form) const {
    return active_ != &form && sincePresented_.isValid() && sincePresented_.elapsed() < 500;
  }
  /// `form` has closed: the window that opened it, else the main window, takes its place.
  void closed(Form& form);
  /// Ends the program with one box that says what failed, status 1.
  void fault(const std::exception& error);
  /// Brings every window's title on the screen up to date.
  void showCaptions();

  /// Drops the keys and clicks that came while a long action kept the program busy, so that they do
  /// not become commands after it.
  void dropInput();
  bool droppingInput() const { return *dropping_; }

 private:
  Form* open(std::string_view form);
  void placeBeside(Form& window, const Form& opener) const;
  void present(Form& form);
  void became(Form& form);

  Boxes& boxes_;
  std::map<std::string, Factory, std::less<>> factories_;
  std::string mainForm_;
  std::vector<QPointer<Form>> open_;
  QPointer<Form> active_;
  QElapsedTimer sincePresented_;
  int running_ = 0;  // event procedures that have not ended
  bool ending_ = false;
  int status_ = 0;
  std::shared_ptr<bool> dropping_ = std::make_shared<bool>(false);  // outlives us in its timers
};

}  // namespace karvenis
