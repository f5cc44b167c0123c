#include "platform/qt/Form.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QWindow>
#include <algorithm>

#include "platform/qt/Accessibles.h"
#include "platform/qt/Forms.h"
#include "platform/qt/KeyCodes.h"
#include "platform/qt/Text.h"

namespace karvenis {
namespace {

/// How often the title on the screen changes at most while a procedure runs, in milliseconds.
constexpr qint64 captionInterval = 15;

/// The property of a button whose press began while a box was open.
constexpr char pressedBehindBox[] = "pressedBehindBox";

bool isBoxOpen() { return QApplication::activeModalWidget() != nullptr; }

/// Whether a press of this button, or of another one of its group, began while a box was open.
bool beganBehindBox(const QAbstractButton& button) {
  const auto began = [](const QAbstractButton* one) {
    return one->property(pressedBehindBox).toBool();
  };
  if (!button.autoExclusive()) return began(&button);
  return std::ranges::any_of(button.parentWidget()->findChildren<QAbstractButton*>(), began);
}

bool takesText(QWidget* control) { return qobject_cast<QLineEdit*>(control) != nullptr; }

}  // namespace

Form::Form(Windows& windows) : forms_(dynamic_cast<Forms&>(windows)) { installAccessibles(); }

void Form::setCaption(std::string_view caption) {
  caption_ = caption;
  if (running_ == 0 || !sinceCaption_.isValid() || sinceCaption_.elapsed() >= captionInterval) {
    showCaption();
  }
}

void Form::showCaption() {
  sinceCaption_.start();
  const QString title = toQt(caption_);
  if (title != windowTitle()) setWindowTitle(title);
}

void Form::unload() {
  closing_ = true;
  hide();
  forms_.closed(*this);
}

void Form::run(const std::function<void()>& procedure) {
  if (closing_ || forms_.ending()) return;
  ++running_;
  forms_.procedureBegins();
  try {
    procedure();
  } catch (const std::exception& error) {
    forms_.fault(error);
  }
  forms_.procedureEnds();
  --running_;
  showCaption();
}

void Form::Form_KeyDown(int, int) {}
void Form::Form_KeyPress(int) {}

QMenuBar* Form::menuBar() {
  if (menuBar_ == nullptr) {
    menuBar_ = new QMenuBar(this);
    menuBar_->setNativeMenuBar(false);
    layout()->setMenuBar(menuBar_);
  }
  return menuBar_;
}

QPushButton* Form::command(const char* name, QStringView text, QStringView tip,
                           std::function<void()> procedure) {
  auto* button = control<QPushButton>(QLatin1String(name), text.toString());
  button->setToolTip(tip.toString());
  on(button, &QPushButton::clicked, std::move(procedure));
  return button;
}

QLayout* Form::commandRow(std::initializer_list<QPushButton*> buttons) {
  auto* row = new QHBoxLayout;
  row->addStretch();
  for (QPushButton* button : buttons) row->addWidget(button);
  return row;
}

QMenu* Form::addMenu(const char* menuName, const QString& text) {
  QMenu* menu = menuBar()->addMenu(text);
  menu->setObjectName(QLatin1String(menuName));
  return menu;
}

QAction* Form::addMenuEntry(QMenu* menu, const char* entryName, const QString& text,
                            std::function<void()> procedure) {
  QAction* entry = menu->addAction(text);
  entry->setObjectName(QLatin1String(entryName));
  on(entry, &QAction::triggered, std::move(procedure));
  return entry;
}

void Form::onEnter(QLineEdit* field, std::function<void()> procedure) {
  on(field, &QLineEdit::returnPressed, [this, procedure = std::move(procedure)] {
    if (!keyRepeats_) procedure();
  });
}

/// Whether `sender` is a control behind an open box. The user's keys and clicks go to the box, but
/// assistive technology can press any control. A press takes a moment, so that the box may open or
/// close before the press ends.
bool Form::isBehindBox(const QObject* sender) {
  const auto* button = qobject_cast<const QAbstractButton*>(sender);
  if (button != nullptr) return isBoxOpen() || beganBehindBox(*button);
  return isBoxOpen() && qobject_cast<const QAction*>(sender) != nullptr;
}

/// Notes whether a press begins behind a box, and undoes a choice that is made behind one.
void Form::guard(QAbstractButton* button) {
  connect(button, &QAbstractButton::pressed, this,
          [button] { button->setProperty(pressedBehindBox, isBoxOpen()); });
  // Queued, so that the property is still set while the other slots of clicked() run.
  connect(
      button, &QAbstractButton::clicked, button,
      [button] { button->setProperty(pressedBehindBox, false); }, Qt::QueuedConnection);
  connect(button, &QAbstractButton::toggled, this, [this, button](bool checked) {
    if (!isBehindBox(button) || puttingBack_ || button->isChecked() != checked) return;
    puttingBack_ = true;
    button->setChecked(!checked);
    puttingBack_ = false;
  });
}

/// Keeps Tab from leading to an option that is not the chosen one of its group. The toolkit does so
/// only once an option has had the focus.
void Form::keepTabStop(QAbstractButton* option) {
  connect(option, &QAbstractButton::toggled, option, [option] {
    if (!option->isChecked()) return;
    const auto group =
        option->parentWidget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly);
    for (QRadioButton* one : group) {
      one->setFocusPolicy(one == option ? Qt::StrongFocus : Qt::ClickFocus);
    }
  });
}

bool Form::event(QEvent* event) {
  const bool handled = QWidget::event(event);
  if (event->type() == QEvent::WindowActivate && isVisible()) forms_.gotKeyboard(*this);
  if (event->type() == QEvent::WindowDeactivate)
    pressedBackground_ = pressedBackgroundBefore_ = false;
  return handled;
}

void Form::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::WindowStateChange) return;
  if (isMinimized()) {
    wasMinimised_ = true;
  } else {
    forms_.gotKeyboard(*this);
  }
}

void Form::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  windowHandle()->installEventFilter(this);
}

/// Every key reaches the native window first, once, whichever control has the focus.
bool Form::eventFilter(QObject* watched, QEvent* event) {
  if (watched != windowHandle()) return QWidget::eventFilter(watched, event);
  switch (event->type()) {
    case QEvent::KeyPress:
      return handleKey(*static_cast<QKeyEvent*>(event));
    case QEvent::KeyRelease:
      // The press was handled here, so the release is too.
      return isPressKey(keyCodeOf(*static_cast<QKeyEvent*>(event)));
    case QEvent::MouseButtonPress:
      notePress(*static_cast<QMouseEvent*>(event));
      return false;
    default:
      return false;
  }
}

/// Returns whether the key has been used up here, so that the focused control does not see it.
bool Form::handleKey(const QKeyEvent& key) {
  const bool inMenus = QApplication::activePopupWidget() != nullptr ||
                       qobject_cast<QMenuBar*>(focusWidget()) != nullptr;
  if (inMenus) return false;
  if (isOfScreenReader(key) || isOfDesktop(key)) return true;
  const int code = keyCodeOf(key);
  // Function keys and Esc belong to the window alone, and come once however long they are held.
  const bool ofWindow = isFunctionKey(code) || code == keyEscape;
  keyRepeats_ = key.isAutoRepeat();
  if (ofWindow && keyRepeats_) return true;

  const int shift = shiftOf(key);
  QWidget* focused = focusWidget();
  run([&] { Form_KeyDown(code, shift); });
  // Esc is the only key that a window gets as a character too, not while Ctrl or Alt is held.
  const bool isCharacter = code == keyEscape && (shift & ~shiftKey) == 0;
  if (isCharacter) run([&] { Form_KeyPress(code); });
  if (ofWindow) return true;
  if (pressButton(code, focused)) return true;
  return code == keyEnter && !takesText(focused);  // Enter reaches only a text field
}

/// Whether key `code` presses the button that has the focus: Space presses any button, Enter one
/// that is not checkable, whatever keys the desktop would use. The window presses it, since the
/// toolkit would press it again and again while the key is held.
bool Form::isPressKey(int code) const {
  const auto* focused = qobject_cast<const QAbstractButton*>(focusWidget());
  if (focused == nullptr) return false;
  return code == keySpace || (code == keyEnter && !focused->isCheckable());
}

/// Presses the button that had the focus when the key came; a button that the key itself moved the
/// focus to is not pressed. Returns whether the key was one that presses.
bool Form::pressButton(int code, QWidget* focused) {
  if (focused != focusWidget() || !isPressKey(code)) return false;
  if (!keyRepeats_) qobject_cast<QAbstractButton*>(focused)->click();
  return true;
}

void Form::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (isBoxOpen()) return;
  // A window that the user has just turned to is activated first, so that closing it leads back to
  // its opener.
  forms_.settle();
  run([this] { closeRequested(); });
}

void Form::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (size() == lastSize_) return;
  lastSize_ = size();
  run([this] { Form_Resize(); });
}

void Form::markAsBackground(QWidget* container) { container->setProperty("background", true); }

bool Form::isBackground(const QPoint& place) const {
  const QWidget* child = childAt(place);
  return child == nullptr || child->property("background").toBool();
}

/// Sees every press, also one on a control and the second one of a double click: a double click on
/// the background is one with both presses there.
void Form::notePress(const QMouseEvent& press) {
  pressedBackgroundBefore_ = pressedBackground_;
  pressedBackground_ = press.button() == Qt::LeftButton && isBackground(press.pos());
  clickArmed_ = pressedBackground_;
}

void Form::mouseReleaseEvent(QMouseEvent* event) {
  const bool click =
      clickArmed_ && event->button() == Qt::LeftButton && rect().contains(event->pos());
  clickArmed_ = false;
  if (click) run([this] { Form_Click(); });
}

void Form::mouseDoubleClickEvent(QMouseEvent* event) {
  const bool both =
      pressedBackgroundBefore_ && pressedBackground_ && event->button() == Qt::LeftButton;
  clickArmed_ = false;
  if (both) run([this] { Form_DblClick(); });
}

}  // namespace karvenis
