#include "platform/qt/Forms.h"

#include <QApplication>
#include <QTimer>
#include <algorithm>
#include <stdexcept>

#include "platform/RunTimeError.h"
#include "platform/qt/Form.h"
#include "platform/qt/WindowPlace.h"

namespace karvenis {
namespace {

/// What a fault that is not a RunTimeError says to the user.
std::string words(const std::exception& error) {
  if (const auto* known = dynamic_cast<const RunTimeError*>(&error)) return describe(*known);
  return std::string("Beklenmeyen bir hata oluştu.\rNeden: ") + error.what();
}

}  // namespace

Forms::~Forms() {
  ending_ = true;
  for (const QPointer<Form>& form : open_) delete form;
}

void Forms::add(std::string form, Factory make) {
  if (factories_.empty()) mainForm_ = form;
  factories_.emplace(std::move(form), std::move(make));
}

Form* Forms::find(std::string_view form) const {
  for (const QPointer<Form>& candidate : open_) {
    if (candidate && !candidate->isClosing() && candidate->name() == form) return candidate;
  }
  return nullptr;
}

void Forms::show(std::string_view form) {
  Form* window = find(form);
  if (window == nullptr) window = open(form);
  if (window != nullptr) present(*window);
}

/// Makes and loads a window; null where it closed itself at once.
Form* Forms::open(std::string_view form) {
  const auto factory = factories_.find(form);
  if (factory == factories_.end()) throw std::logic_error("no window " + std::string(form));
  Form* window = factory->second();
  window->setOpener(active_);
  std::erase_if(open_, [](const QPointer<Form>& gone) { return gone.isNull(); });
  open_.emplace_back(window);
  window->run([&] {
    if (active_) placeBeside(*window, *active_);
    window->Form_Load();
  });
  return window->isClosing() || ending_ ? nullptr : window;
}

/// A new window stands a little to the right of its opener's corner and below its title, and of
/// every window that stands there already.
void Forms::placeBeside(Form& window, const Form& opener) const {
  constexpr QPoint step(36, 56);
  QPoint place = opener.pos();
  const auto isTaken = [&](const QPointer<Form>& other) {
    return other && other != &window && other->isVisible() && other->pos() == place;
  };
  do {
    place += step;
  } while (std::ranges::any_of(open_, isTaken));
  moveOntoScreen(window, place);
}

void Forms::present(Form& form) {
  form.show();
  form.raise();
  form.activateWindow();
  sincePresented_.start();
  became(form);
}

/// While a procedure runs, the focus moves only because of its boxes, and a box is no activation; a
/// window that the procedure itself shows is activated by present().
void Forms::gotFocus(Form& form) {
  if (running_ == 0) became(form);
}

/// `form` is the window the user works in now; runs its Form_Activate where it was another before.
void Forms::became(Form& form) {
  if (ending_ || active_ == &form || form.isClosing()) return;
  active_ = &form;
  form.run([&] { form.Form_Activate(); });
}

void Forms::closed(Form& form) {
  if (ending_) return;
  active_ = nullptr;  // so that the next one is activated, also where it already had the focus
  Form* next = form.opener();
  if (next == nullptr || next->isClosing()) next = find(mainForm_);
  if (next != nullptr) present(*next);
}

void Forms::end() {
  ending_ = true;
  QCoreApplication::exit(0);
}

int Forms::run() {
  show(mainForm_);
  return ending_ ? status_ : QApplication::exec();
}

void Forms::fault(const std::exception& error) {
  if (ending_) return;
  ending_ = true;
  boxes_.pointer(Pointer::normal);
  status_ = 1;
  boxes_.message(words(error), errorTitle, Icon::critical);
  QCoreApplication::exit(status_);
}

void Forms::showCaptions() {
  for (const QPointer<Form>& form : open_) {
    if (form) form->showCaption();
  }
}

void Forms::dropInput() {
  *dropping_ = true;
  // The first turn of the event loop brings what came meanwhile; idle timers fire after it.
  QTimer::singleShot(0, qApp, [dropping = dropping_] {
    QTimer::singleShot(0, qApp, [dropping] { *dropping = false; });
  });
}

}  // namespace karvenis
