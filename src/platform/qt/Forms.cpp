#include "platform/qt/Forms.h"

#include <QAccessible>
#include <algorithm>
#include <chrono>
#include <stdexcept>

#include "platform/RunTimeError.h"
#include "platform/qt/Announcer.h"
#include "platform/qt/Application.h"
#include "platform/qt/Form.h"
#include "platform/qt/Text.h"
#include "platform/qt/WindowPlace.h"

namespace karvenis {
namespace {

/// How long the keyboard may be on its way to the window it was given to. A desktop that leaves it
/// elsewhere for longer has refused.
constexpr std::chrono::milliseconds patience(2000);

/// How long the keyboard must stay in a window before the user is taken to work there: a desktop
/// may pass through another window even after the right one. A key or a click decides at once.
constexpr std::chrono::milliseconds calm(200);

/// What the closing box says about `error`, which may also be no RunTimeError.
std::string described(const std::exception& error) {
  if (const auto* known = dynamic_cast<const RunTimeError*>(&error)) return describe(*known);
  return std::string("Beklenmeyen bir hata oluştu.\rNeden: ") + error.what();
}

}  // namespace

Forms::Forms(Boxes& boxes) : boxes_(boxes) {
  onItsWay_.setInterval(patience);
  calm_.setInterval(calm);
  for (QTimer* timer : {&onItsWay_, &calm_}) {
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, timer, [this] { settle(); });
  }
  // The connections end with the timer, and so with this.
  const Application& application = Application::instance();
  QObject::connect(&application, &Application::keyPressed, &calm_, [this] { settle(); });
  QObject::connect(&application, &Application::clicked, &calm_, [this](const QWindow* window) {
    if (Form* form = owning(window)) clicked(*form);
  });
  QObject::connect(&application, &Application::ending, &calm_, [this] { end(); });
}

Forms::~Forms() {
  for (const QPointer<Form>& form : windows_) delete form;
}

void Forms::add(std::string form, Factory make) {
  if (factories_.empty()) mainForm_ = form;
  factories_.emplace(std::move(form), std::move(make));
}

Form* Forms::active() const { return active_; }

Form* Forms::find(std::string_view form) const {
  for (const QPointer<Form>& candidate : windows_) {
    if (candidate != nullptr && !candidate->isClosing() && candidate->name() == form)
      return candidate;
  }
  return nullptr;
}

Form* Forms::owning(const QWindow* window) const {
  const auto found = std::ranges::find_if(windows_, [window](const QPointer<Form>& form) {
    return form != nullptr && form->windowHandle() == window;
  });
  return found == windows_.end() ? nullptr : *found;
}

void Forms::show(std::string_view form) {
  Form* window = find(form);
  if (window == nullptr) window = open(form);
  if (window == nullptr) return;
  if (active_ && active_ != window) window->setOpener(active_->name());
  present(*window);
}

/// Makes and loads a window. Returns null if it closed itself at once.
Form* Forms::open(std::string_view form) {
  const auto factory = factories_.find(form);
  if (factory == factories_.end()) throw std::logic_error("no window " + std::string(form));
  Form* window = factory->second();
  window->setObjectName(toQt(form));
  std::erase_if(windows_, [](const QPointer<Form>& gone) { return gone.isNull(); });
  windows_.emplace_back(window);
  window->run([&] {
    if (active_) placeBeside(*window, *active_);
    window->Form_Load();
  });
  return window->isClosing() || ending_ ? nullptr : window;
}

/// Puts a new window a little to the right of its opener's corner and below its title, and farther
/// on if another window stands there already.
void Forms::placeBeside(Form& window, const Form& opener) const {
  constexpr QPoint step(36, 56);
  QPoint place = opener.pos();
  const auto isTaken = [&](const QPointer<Form>& other) {
    return other != nullptr && other->isVisible() && other->pos() == place;
  };
  do {
    place += step;
  } while (std::ranges::any_of(windows_, isTaken));
  moveOntoScreen(window, place);
}

void Forms::present(Form& form) {
  form.setWindowState(form.windowState() & ~Qt::WindowMinimized);
  form.show();
  form.raise();
  giveKeyboard(form);
  activate(form);
}

void Forms::giveKeyboard(Form& form) {
  form.activateWindow();
  if (!form.isActiveWindow()) onItsWay_.start();
}

void Forms::gotKeyboard(const Form& form) {
  if (active_ == &form || !onItsWay_.isActive()) {
    onItsWay_.stop();
    calm_.start();
  }
  speak();
}

/// While a procedure runs, the keyboard moves only because of its boxes.
void Forms::settle() {
  if (running_ > 0 || onItsWay_.isActive()) return;
  auto* form = qobject_cast<Form*>(QApplication::activeWindow());
  if (form != nullptr && !form->isMinimized()) activate(*form);
}

void Forms::clicked(Form& form) {
  if (running_ > 0) return;
  onItsWay_.stop();
  calm_.stop();
  activate(form);
}

/// Makes `form` the window that the user works in. Runs its Form_Activate if that was another
/// window before, or if it comes back from being minimised.
void Forms::activate(Form& form) {
  if (form.isClosing()) return;
  const bool wasMinimised = form.takeMinimised();
  if (active_ == &form && !wasMinimised) return;
  active_ = &form;
  Application::instance().setWorkingWindow(&form);
  form.run([&] { form.Form_Activate(); });
}

QWidget* Forms::boxOpens() {
  tellBusy();
  for (const QPointer<Form>& form : windows_) {
    if (form) form->showCaption();
  }
  return active_;
}

void Forms::boxClosed() {
  if (active_ && !ending_) giveKeyboard(*active_);
}

void Forms::closed(const Form& form) {
  if (ending_) return;
  if (Form* next = successorOf(form)) present(*next);
}

void Forms::deleteClosed() const {
  if (running_ > 0) return;
  for (const QPointer<Form>& form : windows_) {
    if (form && form->isClosing()) form->deleteLater();
  }
}

/// The window that becomes active when `form` closes; null if the active one stays. The main window
/// is never left alone and minimised.
Form* Forms::successorOf(const Form& form) const {
  Form* main = find(mainForm_);
  if (active_ == &form) {
    Form* opener = find(form.opener());
    return opener != nullptr ? opener : main;
  }
  const auto isOpen = [main](const QPointer<Form>& other) {
    return other != nullptr && other != main && !other->isClosing();
  };
  const bool alone = std::ranges::none_of(windows_, isOpen);
  return alone && main != nullptr && main->isMinimized() ? main : nullptr;
}

void Forms::dropInput() { Application::instance().dropInput(); }
void Forms::tellBusy() const { Application::instance().setBusy(running_ > 0); }

void Forms::procedureBegins() { ++running_; }

void Forms::procedureEnds() {
  --running_;
  tellBusy();
  deleteClosed();
  speak();
}

void Forms::announce(std::string_view words) {
  if (QAccessible::isActive()) announcement_ = words;
}

/// Has the announcement spoken as soon as a window has the focus: what a screen reader says about a
/// window that gets the focus would cut it off.
void Forms::speak() {
  auto* window = qobject_cast<Form*>(QApplication::activeWindow());
  if (announcement_.empty() || running_ > 0 || window == nullptr) return;
  const auto say = [window, words = toQt(std::exchange(announcement_, {})).trimmed()] {
    new Announcer(window, words);
  };
  QMetaObject::invokeMethod(window, say, Qt::QueuedConnection);
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
  dropInput();
  boxes_.pointer(Pointer::normal);
  status_ = 1;
  boxes_.message(described(error) + "\r\rProgram kapanacak.", errorTitle, Icon::critical);
  QCoreApplication::exit(status_);
}

}  // namespace karvenis
