#pragma once

#include <QAbstractButton>
#include <QElapsedTimer>
#include <QMenu>
#include <QMenuBar>
#include <QWidget>
#include <functional>
#include <string>
#include <type_traits>
#include <utility>

#include "platform/Keys.h"
#include "platform/TitleBar.h"

class QKeyEvent;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace karvenis {

class Forms;
class Windows;

/// The base of every window. A window builds its controls, connects them with on() and answers the
/// events below; each event procedure runs inside run(), so that a fault never crosses the toolkit.
class Form : public QWidget, public TitleBar {
  Q_OBJECT

 public:
  /// Precondition: `windows` is a Forms. Only Forms makes windows, and gives each its name.
  explicit Form(Windows& windows);

  std::string name() const { return objectName().toStdString(); }
  /// Keeps the exact caption at once. While a procedure runs, the screen gets the newest one only
  /// every few milliseconds, since a window manager shows no more.
  void setCaption(std::string_view caption) override;
  const std::string& caption() const { return caption_; }
  /// Brings the title on the screen up to date.
  void showCaption();

  /// Closes the window; it is deleted when no procedure runs any more.
  void unload();
  bool isClosing() const { return closing_; }

  /// The name of the window that this one was last shown from; empty for the main window.
  const std::string& opener() const { return opener_; }
  void setOpener(const std::string& opener) { opener_ = opener; }

  /// Returns whether the window has been minimised since the last call, and forgets it.
  [[nodiscard]] bool takeMinimised() { return std::exchange(wasMinimised_, false); }

  /// Runs an event procedure, unless the window has closed or the program ends; a fault ends the
  /// program with its one closing box.
  void run(const std::function<void()>& procedure);

  /// The window has been made and is about to be shown.
  virtual void Form_Load() {}
  /// The window became the active one, or came back from being minimised.
  virtual void Form_Activate() {}

 protected:
  /// A key press (see platform/Keys.h), before the control that has the focus sees it. A held
  /// F1..F12 or Esc comes once; other keys repeat. No key comes while a menu is open, and none that
  /// belongs to the desktop (Alt with F1..F12 or Esc) or to a running screen reader.
  virtual void Form_KeyDown(int KeyCode, int Shift);
  /// Called for Esc (27), the only key that a window gets as a character; not with Ctrl or Alt.
  virtual void Form_KeyPress(int KeyAscii);
  /// A left click on the background: on the window itself and not on a control.
  virtual void Form_Click() {}
  /// A left double click with both presses on the background.
  virtual void Form_DblClick() {}
  /// The window has another size than before; also at its first show.
  virtual void Form_Resize() {}
  /// The user closes the window by its frame.
  virtual void closeRequested() { unload(); }

  /// Connects a signal of `sender` with an event procedure. The procedure of a button or a menu
  /// entry does not run while a box is open; that of a timer or a text field does.
  template <typename Sender, typename Signal, typename Procedure>
  void on(Sender* sender, Signal signal, Procedure procedure) {
    connect(sender, signal, this, [this, sender, procedure] {
      if (!isBehindBox(sender)) run(procedure);
    });
  }
  /// Runs `procedure` when `option` becomes the chosen one, also by an arrow key.
  template <typename Procedure>
  void onChosen(QAbstractButton* option, Procedure procedure) {
    on(option, &QAbstractButton::toggled, [option, procedure] {
      if (option->isChecked()) procedure();
    });
  }
  /// Makes clicks on `container`, a widget that only holds others, clicks on the background.
  static void markAsBackground(QWidget* container);
  /// Runs `procedure` when Enter is pressed in `field`, once however long it is held.
  void onEnter(QLineEdit* field, std::function<void()> procedure);
  /// Ignores the presses of `button` that begin or end while a box is open. control() guards what
  /// it makes; other buttons must be guarded by hand.
  void guard(QAbstractButton* button);
  /// Makes a control of this window with the object name `controlName`.
  template <typename Control, typename... Arguments>
  Control* control(const QString& controlName, Arguments&&... arguments) {
    auto* made = new Control(std::forward<Arguments>(arguments)..., this);
    made->setObjectName(controlName);
    if constexpr (std::is_base_of_v<QAbstractButton, Control>) guard(made);
    if constexpr (std::is_same_v<Control, QRadioButton>) keepTabStop(made);
    return made;
  }
  /// Makes a button with the object name `name`, the caption `text` and the tool tip `tip` (empty:
  /// none) that runs `procedure`.
  QPushButton* command(const char* name, QStringView text, QStringView tip,
                       std::function<void()> procedure);
  /// The window's command buttons in a row, as all small windows have them.
  static QLayout* commandRow(std::initializer_list<QPushButton*> buttons);
  QMenu* addMenu(const char* menuName, const QString& text);
  QAction* addMenuEntry(QMenu* menu, const char* entryName, const QString& text,
                        std::function<void()> procedure);
  QMenuBar* menuBar();  // precondition: the form has a layout

  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  static bool isBehindBox(const QObject* sender);
  static void keepTabStop(QAbstractButton* option);
  bool handleKey(const QKeyEvent& key);
  void notePress(const QMouseEvent& press);
  bool isPressKey(int code) const;
  bool pressButton(int code, QWidget* focused);
  bool isBackground(const QPoint& place) const;

  Forms& forms_;
  std::string opener_;
  QMenuBar* menuBar_ = nullptr;
  std::string caption_;
  QElapsedTimer sinceCaption_;  // since the title on the screen was brought up to date
  QSize lastSize_;              // that Form_Resize was run for
  int running_ = 0;             // event procedures of this window that have not ended
  bool closing_ = false;
  bool wasMinimised_ = false;
  bool puttingBack_ = false;              // guard() is undoing a choice
  bool keyRepeats_ = false;               // the key that is being handled is a repeat
  bool clickArmed_ = false;               // a left press on the background waits for its release
  bool pressedBackground_ = false;        // the last press was on the background
  bool pressedBackgroundBefore_ = false;  // and so was the one before
};

}  // namespace karvenis
