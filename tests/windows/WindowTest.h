#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include "doubles/Doubles.h"
#include "platform/qt/Application.h"
#include "platform/qt/Form.h"
#include "platform/qt/Forms.h"
#include "platform/qt/Surface.h"
#include "platform/qt/Text.h"

namespace karvenis {

/// A test with real windows. Boxes are scripted, clock, chance and files are the test's own; keys
/// and clicks go through the native window, as a user's do.
class WindowTest : public testing::Test {
 protected:
  World world;
  Forms forms{world.boxes};
  Surroundings around{world.state, world.boxes,   world.clock, world.chance,
                      world.files, world.printer, forms};

  /// Makes a window known under its name.
  template <typename Window>
  void add(const char* name) {
    forms.add(name, [this] { return new Window(around); });
  }
  /// Shows the window and waits until it has the focus; null when it closed itself at once.
  Form* open(const char* name) {
    forms.show(name);
    Form* form = forms.find(name);
    if (form != nullptr) {
      EXPECT_TRUE(QTest::qWaitForWindowActive(form));
    }
    return form;
  }
  /// A control of the window by its name.
  template <typename Control = QWidget>
  static Control* control(Form* form, const QString& name) {
    auto* found = form->findChild<Control*>(name);
    EXPECT_NE(found, nullptr) << name.toStdString();
    return found;
  }
  static void press(Form* form, Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) {
    QTest::keyClick(form->windowHandle(), key, held);
  }
  /// Types into the control that has the focus.
  static void type(Form* form, const QString& text) {
    for (const QChar c : text) QTest::keyClick(form->windowHandle(), c.toLatin1());
  }
  /// A held key: one press, `repeats` repeats of it, and the release.
  static void hold(Form* form, Qt::Key key, int repeats) {
    QWindow* window = form->windowHandle();
    QTest::keyPress(window, key);
    for (int i = 0; i < repeats; ++i) {
      QKeyEvent repeat(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
      QCoreApplication::sendEvent(window, &repeat);
    }
    QTest::keyRelease(window, key);
  }
  /// A left click in the middle of a control, or at a place of it.
  static void click(QWidget* target, QPoint place = {}) {
    QWidget* top = target->window();
    if (place.isNull()) place = target->rect().center();
    QTest::mouseClick(top->windowHandle(), Qt::LeftButton, {}, target->mapTo(top, place));
  }
  static void doubleClick(QWidget* target, QPoint place) {
    QWidget* top = target->window();
    QTest::mouseDClick(top->windowHandle(), Qt::LeftButton, {}, target->mapTo(top, place));
  }
  static void trigger(Form* form, const QString& entry) {
    auto* action = form->findChild<QAction*>(entry);
    ASSERT_NE(action, nullptr) << entry.toStdString();
    action->trigger();
  }
  /// The menus by their words, each with those of its entries; a line between entries has none.
  static std::vector<std::pair<QString, QStringList>> menusOf(Form* form) {
    std::vector<std::pair<QString, QStringList>> menus;
    for (const QAction* head : form->findChild<QMenuBar*>()->actions()) {
      QStringList entries;
      for (const QAction* entry : head->menu()->actions()) entries.append(entry->text());
      menus.emplace_back(head->text(), entries);
    }
    return menus;
  }
  /// The object names of the menus, each with those of its entries behind it.
  static QStringList menuNamesOf(Form* form) {
    QStringList names;
    for (const QAction* head : form->findChild<QMenuBar*>()->actions()) {
      names.append(head->menu()->objectName());
      for (const QAction* entry : head->menu()->actions()) names.append(entry->objectName());
    }
    return names;
  }
  /// The lines that a window's surface shows.
  static std::vector<std::string> linesOf(Form* form) {
    std::vector<std::string> lines;
    for (const auto& line : form->findChild<Surface*>()->lines())
      lines.push_back(fromQt(line.text));
    return lines;
  }
  template <typename Condition>
  static bool waitFor(Condition condition) {
    return QTest::qWaitFor(condition, 20000);
  }
  /// Runs what closing left for later, so that a closed window is gone.
  static void settle() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

  void TearDown() override {
    settle();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  }
};

}  // namespace karvenis
