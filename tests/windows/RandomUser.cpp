#include "windows/RandomUser.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>

#include "platform/qt/Text.h"

namespace karvenis {
namespace {

constexpr int mostTurnsOfABox = 500;

constexpr Qt::Key keys[] = {
    Qt::Key_F1,    Qt::Key_F2,       Qt::Key_F3,     Qt::Key_F4,     Qt::Key_F5,
    Qt::Key_F6,    Qt::Key_F7,       Qt::Key_F8,     Qt::Key_F9,     Qt::Key_F10,
    Qt::Key_F11,   Qt::Key_F12,      Qt::Key_F1,     Qt::Key_F2,     Qt::Key_F12,
    Qt::Key_Tab,   Qt::Key_Tab,      Qt::Key_Tab,    Qt::Key_Left,   Qt::Key_Right,
    Qt::Key_Up,    Qt::Key_Down,     Qt::Key_Space,  Qt::Key_Space,  Qt::Key_Return,
    Qt::Key_Enter, Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Home,   Qt::Key_End,
    Qt::Key_1,     Qt::Key_5,        Qt::Key_9,      Qt::Key_0,      Qt::Key_A,
    Qt::Key_Z,     Qt::Key_Delete,   Qt::Key_Insert, Qt::Key_Escape, Qt::Key_Backspace,
    Qt::Key_Menu,  Qt::Key_Pause,    Qt::Key_F13,    Qt::Key_Alt,    Qt::Key_Comma};

constexpr Qt::KeyboardModifiers noKeys = Qt::NoModifier;

const QString texts[] = {"",    "0",          "1",      "2",       "7",          "20",
                         "49",  "50",         "5,12",   "7, 8 ,9", "5-12",       "1-2,3-4",
                         "7-7", "abc",        "-1",     "-32768",  "32767",      "32768",
                         "3.5", "5,,7",       ",",      "-",       "--",         ",,,,",
                         "5-",  "2147483647", "1e9",    "2,5-3",   "2147483648", "9999999999",
                         " ",   "ğüşıöçİ",    "5-0-12", "1-2,3-x", "«5»",        "-2147483648"};

/// Key presses arrive at the window, as a user's do; a menu that is open takes them from there.
void send(QWidget* window, Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) {
  if (window->windowHandle() != nullptr) QTest::keyClick(window->windowHandle(), key, held);
}

}  // namespace

RandomUser::RandomUser(WholeProgram& program, std::mt19937& random, std::function<void()> afterStep)
    : program_(program), random_(random), afterStep_(std::move(afterStep)) {
  next_.setSingleShot(true);
  QObject::connect(&next_, &QTimer::timeout, &next_, [this] { turn(); });
}

int RandomUser::work(int& steps) {
  steps_ = &steps;
  next_.start(0);
  const int status = program_.forms.run();
  next_.stop();
  return status;
}

/// Comes again and again, also while a box that a step has opened waits for its answer.
void RandomUser::turn() {
  next_.start(0);
  QWidget* box = QApplication::activeModalWidget();
  if (box != nullptr && box == answering_) return;
  if (box != box_) turnsOfBox_ = 0;
  box_ = box;
  if (box != nullptr) {
    if (turnsOfBox_ == 0) ++boxes_;
    ASSERT_LT(++turnsOfBox_, mostTurnsOfABox) << "a box stays open after " << last_;
    const QWidget* before = std::exchange(answering_, box);
    if (oneIn(4)) disturb();
    if (QApplication::activeModalWidget() == box) answer(box);
    answering_ = before;
    return;
  }
  if (acting_ || program_.forms.ending()) return;
  acting_ = true;
  if (*steps_ > 0) {
    --*steps_;
    act();
  } else {
    leave();
  }
  acting_ = false;
  afterStep_();
}

void RandomUser::act() {
  static constexpr void (RandomUser::*moves[])() = {
      &RandomUser::key,           &RandomUser::key,          &RandomUser::key,
      &RandomUser::key,           &RandomUser::key,          &RandomUser::type,
      &RandomUser::clickAnywhere, &RandomUser::clickControl, &RandomUser::clickControl,
      &RandomUser::chooseEntry,   &RandomUser::resize,       &RandomUser::letTimePass,
      &RandomUser::closeByFrame};
  (this->*moves[below(std::size(moves))])();
}

/// Closes the windows one after the other, the main window last.
void RandomUser::leave() {
  if (QWidget* menu = QApplication::activePopupWidget()) menu->close();
  windows().back()->close();
}

std::vector<Form*> RandomUser::windows() const {
  std::vector<Form*> all;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    auto* form = dynamic_cast<Form*>(window);
    if (form == nullptr || form->isClosing()) continue;
    all.insert(form->name() == "frmLoto" ? all.begin() : all.end(), form);
  }
  return all;
}

Form* RandomUser::anyWindow() {
  const auto all = windows();
  return all[below(all.size())];
}

/// A window that the user has clicked on comes to the front first.
Form* RandomUser::bringToFront() {
  Form* window = anyWindow();
  window->raise();
  window->activateWindow();
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  return program_.forms.ending() || window->isClosing() ? nullptr : window;
}

QString RandomUser::anyText() {
  if (oneIn(12)) return QString(5000, '9');
  if (oneIn(12)) return QStringLiteral("1,").repeated(2000);
  if (oneIn(3)) return QString::number(1 + below(60));
  return texts[below(std::size(texts))];
}

void RandomUser::key() {
  Form* window = program_.forms.active();
  Qt::Key key = keys[below(std::size(keys))];
  if (oneIn(2)) key = static_cast<Qt::Key>(Qt::Key_F1 + below(12));
  if (key == Qt::Key_Escape && window->name() == "frmLoto" && !oneIn(8)) return;
  Qt::KeyboardModifiers held;
  if (oneIn(16)) held |= Qt::ShiftModifier;
  if (oneIn(16)) held |= Qt::ControlModifier;
  if (oneIn(16)) held |= Qt::AltModifier;
  note(window->name() + " key " + QKeySequence(key).toString().toStdString() + " with " +
       std::to_string(held.toInt()));
  send(window, key, held);
}

void RandomUser::type() {
  Form* window = program_.forms.active();
  auto* box = qobject_cast<QLineEdit*>(window->focusWidget());
  if (box == nullptr || QApplication::activePopupWidget() != nullptr) return;
  const QString text = anyText();
  note(window->name() + " types " + text.left(40).toStdString());
  box->selectAll();
  const bool onKeys = text.size() < 60 && text.toLatin1() == text.toUtf8();
  onKeys ? QTest::keyClicks(box, text) : box->setText(text);
}

void RandomUser::clickAnywhere() {
  Form* window = bringToFront();
  if (window == nullptr) return;
  const QPoint place(static_cast<int>(below(static_cast<std::size_t>(window->width()))),
                     static_cast<int>(below(static_cast<std::size_t>(window->height()))));
  const bool twice = oneIn(3) && (window->name() != "frmLoto" || oneIn(12));
  note(window->name() + (twice ? " double" : "") + " click at " + std::to_string(place.x()) + "," +
       std::to_string(place.y()));
  QWindow* target = window->windowHandle();
  const auto button = oneIn(6) ? Qt::RightButton : Qt::LeftButton;
  twice ? QTest::mouseDClick(target, button, noKeys, place)
        : QTest::mouseClick(target, button, noKeys, place);
}

void RandomUser::clickControl() {
  Form* window = bringToFront();
  if (window == nullptr) return;
  QList<QWidget*> controls = window->findChildren<QWidget*>();
  controls.removeIf([](const QWidget* w) { return !w->isVisible() || w->isWindow(); });
  if (controls.isEmpty()) return;
  QWidget* control =
      controls[static_cast<qsizetype>(below(static_cast<std::size_t>(controls.size())))];
  if (control->objectName() == "Command2" && window->name() == "frmLoto" && !oneIn(8)) return;
  note(window->name() + " click on " + control->objectName().toStdString());
  QTest::mouseClick(window->windowHandle(), Qt::LeftButton, noKeys,
                    control->mapTo(window, control->rect().center()));
}

void RandomUser::chooseEntry() {
  Form* window = anyWindow();
  QList<QAction*> entries = window->findChildren<QAction*>();
  entries.removeIf([](const QAction* entry) {
    return !entry->objectName().startsWith("mnu") || entry->menu() != nullptr;
  });
  if (entries.isEmpty()) return;
  QAction* entry = entries[static_cast<qsizetype>(below(static_cast<std::size_t>(entries.size())))];
  note(window->name() + " entry " + entry->objectName().toStdString());
  entry->trigger();
}

void RandomUser::resize() {
  Form* window = anyWindow();
  note(window->name() + " another size");
  window->resize(static_cast<int>(below(1600)), static_cast<int>(below(1200)));
}

void RandomUser::closeByFrame() {
  Form* window = anyWindow();
  if (window->name() == "frmLoto" && !oneIn(16)) return;
  note(window->name() + " closed by its frame");
  window->close();
}

void RandomUser::letTimePass() {
  note("time passes");
  program_.clock.minuteOfHour = static_cast<std::int16_t>(below(60));
  program_.clock.microseconds = static_cast<std::int64_t>(below(86'400'000'000));
  program_.printer.refuses = oneIn(2);
  // Balls and coupons that run many times as fast as designed.
  for (Form* window : windows()) {
    for (QTimer* timer : window->findChildren<QTimer*>()) timer->setInterval(1);
  }
}

/// What happens behind an open box, which nobody may take for a command.
void RandomUser::disturb() {
  Form* window = anyWindow();
  if (oneIn(2)) {
    window->resize(static_cast<int>(below(1600)), static_cast<int>(below(1200)));
  } else if (window->windowHandle() != nullptr) {
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, noKeys, {5, 60});
    if (window->name() != "frmLoto") send(window, keys[below(std::size(keys))]);
  }
}

void RandomUser::answer(QWidget* box) {
  if (box->windowTitle() == QLatin1String(errorTitle)) {
    const auto* message = qobject_cast<QMessageBox*>(box);
    if (message != nullptr && message->icon() == QMessageBox::Critical && turnsOfBox_ == 1) {
      faults_.push_back(fromQt(message->text()));
    }
  }
  if (qobject_cast<QInputDialog*>(box) != nullptr) return answerInput(box);
  switch (below(5)) {
    case 0:
      return send(box, Qt::Key_Escape);
    case 1:
      return send(box, Qt::Key_Space);
    case 2:
      return send(box, Qt::Key_Tab);
    case 3:
      box->close();
      return;
    default:
      return send(box, Qt::Key_Return);
  }
}

void RandomUser::answerInput(QWidget* box) {
  box->findChild<QLineEdit*>()->setText(anyText());
  send(box, oneIn(6) ? Qt::Key_Escape : Qt::Key_Return);
}

}  // namespace karvenis
