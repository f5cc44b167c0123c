#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <QAccessible>
#include <QMessageBox>
#include <set>

#include "AllWindows.h"
#include "core/Numbers.h"
#include "platform/qt/Accessibles.h"
#include "platform/qt/Announcer.h"
#include "platform/qt/KeyCodes.h"
#include "platform/qt/NumberField.h"
#include "platform/qt/QtBoxes.h"
#include "windows/SeenBox.h"
#include "windows/WindowTest.h"

// What assistive technology is told of the controls. What a screen reader makes of it is a desktop
// test.

namespace karvenis {
namespace {

using namespace Qt::StringLiterals;

QAccessibleInterface& told(QObject* object) {
  return *QAccessible::queryAccessibleInterface(object);
}

/// A line to type into, which holds "12345678".
class TypedText : public testing::Test {
 protected:
  QWidget window;
  QLineEdit line{u"12345678"_s, &window};

  void SetUp() override {
    installAccessibles();
    line.setGeometry(20, 30, 200, 30);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  }
  QAccessibleTextInterface& text() { return *told(&line).textInterface(); }
  QAccessibleEditableTextInterface& edited() { return *told(&line).editableTextInterface(); }
  /// The selected range; 0, 0 if there is none.
  std::pair<int, int> selected() {
    std::pair<int, int> range(-1, -1);
    text().selection(0, &range.first, &range.second);
    EXPECT_EQ(text().selectionCount(), range.first == range.second ? 0 : 1);
    return range;
  }
};

TEST_F(TypedText, IsAFieldThatCanBeEdited) {
  EXPECT_EQ(told(&line).role(), QAccessible::EditableText);
  EXPECT_TRUE(told(&line).state().editable);
  EXPECT_TRUE(told(&line).state().selectableText);
  EXPECT_TRUE(told(&line).state().focusable) << "as the toolkit tells of every control";
  EXPECT_TRUE(told(&line).actionInterface()->actionNames().contains(
      QAccessibleActionInterface::setFocusAction()));
}

TEST_F(TypedText, TellsItsNameItsValueAndItsExample) {
  line.setAccessibleName(u"Numara"_s);
  line.setPlaceholderText(u"örnek: 7"_s);
  EXPECT_EQ(told(&line).text(QAccessible::Name), u"Numara");
  EXPECT_EQ(told(&line).text(QAccessible::Value), u"12345678");
  EXPECT_EQ(told(&line).text(QAccessible::Description), u"örnek: 7");
  line.setAccessibleDescription(u"en çok 49"_s);
  EXPECT_EQ(told(&line).text(QAccessible::Description), u"en çok 49");
  told(&line).setText(QAccessible::Name, u"Top"_s);
  EXPECT_EQ(line.text(), u"12345678");
  told(&line).setText(QAccessible::Value, u"9"_s);
  EXPECT_EQ(line.text(), u"9");
}

TEST_F(TypedText, IsSelected) {
  line.setCursorPosition(5);
  EXPECT_EQ(selected(), std::pair(0, 0));
  text().addSelection(2, 5);
  EXPECT_EQ(line.selectedText(), u"345");
  EXPECT_EQ(line.cursorPosition(), 5) << "at its end";
  EXPECT_EQ(selected(), std::pair(2, 5));
  text().setSelection(0, 1, 3);
  EXPECT_EQ(selected(), std::pair(1, 3));
  text().removeSelection(0);
  EXPECT_FALSE(line.hasSelectedText());
  text().setCursorPosition(4);
  EXPECT_EQ(line.cursorPosition(), 4);
  EXPECT_EQ(text().cursorPosition(), 4);
}

TEST_F(TypedText, IsReadAndEditedInParts) {
  EXPECT_EQ(text().text(2, 5), u"345");
  EXPECT_EQ(text().characterCount(), 8);
  int start = -1, end = -1;
  EXPECT_EQ(text().attributes(3, &start, &end), QString());
  EXPECT_EQ(std::pair(start, end), std::pair(0, 8));
  edited().deleteText(1, 3);
  EXPECT_EQ(line.text(), u"145678");
  edited().insertText(1, u"23"_s);
  EXPECT_EQ(line.text(), u"12345678");
  edited().replaceText(0, 6, u"9"_s);
  EXPECT_EQ(line.text(), u"978");
}

TEST_F(TypedText, HasItsCharactersWhereTheyArePainted) {
  line.setCursorPosition(3);
  const auto widthOf = [&](int digits) {
    return line.fontMetrics().horizontalAdvance(line.text().left(digits));
  };
  for (int offset = 0; offset < 8; ++offset) {
    const QRect place = text().characterRect(offset);
    EXPECT_EQ(place.width(), widthOf(offset + 1) - widthOf(offset)) << offset;
    EXPECT_EQ(place.left() - text().characterRect(0).left(), widthOf(offset));
    EXPECT_EQ(text().offsetAtPoint(place.center() - QPoint(place.width() / 4, 0)), offset);
    EXPECT_TRUE(QRect(line.mapToGlobal(QPoint()), line.size()).contains(place));
  }
  text().scrollToSubstring(2, 6);
  EXPECT_EQ(line.cursorPosition(), 2);
}

/// What the program reports to assistive technology while this lives; of the changes of a state
/// only those of a mark.
class Reports {
 public:
  Reports() {
    installAccessibles();
    all.clear();
    setActive(true);
    before_ = QAccessible::installUpdateHandler(note);
  }
  ~Reports() {
    QAccessible::installUpdateHandler(before_);
    setActive(false);
  }
  Reports(const Reports&) = delete;
  Reports& operator=(const Reports&) = delete;

  static inline std::vector<std::pair<QAccessible::Event, QString>> all;

  /// Only the toolkit's private part lets somebody listen without a desktop.
  static void setActive(bool active) {
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(active);
  }

 private:
  /// The program's handler lets an event pass by putting itself in again behind it.
  static void note(QAccessibleEvent* event) {
    const QAccessibleInterface* subject = event->accessibleInterface();
    const QString name = subject == nullptr ? QString() : subject->text(QAccessible::Name);
    const bool isChange = event->type() != QAccessible::StateChanged ||
                          static_cast<QAccessibleStateChangeEvent*>(event)->changedStates().checked;
    before_(event);
    const bool passed = QAccessible::installUpdateHandler(note) != note;
    if (passed && isChange && subject != nullptr) all.emplace_back(event->type(), name);
  }
  static inline QAccessible::UpdateHandler before_ = nullptr;
};

TEST(KeysOfAScreenReader, AreNotTheWindowsOwn) {
  const auto isOfReader = [](Qt::Key key, Qt::KeyboardModifiers held = {}) {
    return isOfScreenReader(QKeyEvent(QEvent::KeyPress, key, held));
  };
  const Reports listening;
  EXPECT_TRUE(isOfReader(Qt::Key_Control, Qt::ControlModifier));
  EXPECT_TRUE(isOfReader(Qt::Key_CapsLock));
  EXPECT_TRUE(isOfReader(Qt::Key_Insert));
  EXPECT_FALSE(isOfReader(Qt::Key_Insert, Qt::ShiftModifier)) << "pastes";
  EXPECT_FALSE(isOfReader(Qt::Key_F1));
}

TEST(ToldOfBoxes, ThatOneHasOpened) {
  const Reports reports;
  seeing<QMessageBox>([] { QtBoxes().message("X", "! HATA !", Icon::none); },
                      [](const QMessageBox&) {});
  const std::pair<QAccessible::Event, QString> opened(QAccessible::Alert, u"! HATA !"_s);
  EXPECT_EQ(std::ranges::count(Reports::all, opened), 1);
}

class ToldOfWindows : public WindowTest {
 protected:
  void SetUp() override {
    addWindows(forms, around);
    world.files.folder["KARVENIS.RND"] = countedColumns(30);
    world.files.folder["KARVENIS.LST"] = countedColumns(30);
  }
};

TEST_F(ToldOfWindows, ThePrintedLines) {
  forms.show("frmRndLst");
  auto* page = forms.find("frmRndLst")->findChild<Surface*>();
  EXPECT_EQ(page->window()->focusWidget(), page) << "also before it has the keyboard";
  Form* list = open("frmRndLst");
  QAccessibleInterface& lines = told(page);
  EXPECT_TRUE(lines.state().focusable);
  ASSERT_EQ(lines.childCount(), 25);
  EXPECT_EQ(lines.child(-1), nullptr);
  EXPECT_EQ(lines.child(25), nullptr);
  for (const int index : {0, 1, 24}) {
    QAccessibleInterface* line = lines.child(index);
    EXPECT_EQ(lines.indexOfChild(line), index);
    EXPECT_EQ(line->parent(), &lines);
    EXPECT_TRUE(line->isValid());
    EXPECT_TRUE(line->state().readOnly);
    EXPECT_TRUE(line->state().focusable);
    EXPECT_EQ(line->state().focused, index == 0 ? 1U : 0U);
    EXPECT_EQ(line->rect().topLeft(),
              page->mapToGlobal(page->lineRect(static_cast<std::size_t>(index)).topLeft()));
    EXPECT_EQ(line->rect().size(), page->lineRect(static_cast<std::size_t>(index)).size());
    EXPECT_EQ(line->text(QAccessible::Value), QString());
    EXPECT_EQ(line->childCount(), 0);
    EXPECT_EQ(line->indexOfChild(line), -1);
  }
  EXPECT_EQ(lines.indexOfChild(&lines), -1);
  QAccessibleInterface* last = lines.child(24);
  press(list, Qt::Key_PageDown);
  EXPECT_FALSE(last->isValid()) << "the second page has five";
  EXPECT_EQ(last->text(QAccessible::Name), QString());
  EXPECT_EQ(last->rect(), QRect());
}

TEST_F(ToldOfWindows, TheFirstLineOfEachPageAsTheFocus) {
  Form* list = open("frmRndLst");
  const Reports reports;
  press(list, Qt::Key_PageDown);
  const std::pair<QAccessible::Event, QString> expected(
      QAccessible::Focus, u"Sayfa 2. "_s + toQt(linesOf(list).front()));
  EXPECT_TRUE(waitFor([&] { return std::ranges::count(Reports::all, expected) > 0; }));
  EXPECT_EQ(
      std::ranges::count(Reports::all, QAccessible::Focus, [](auto& one) { return one.first; }), 1);
  QWidget* lines = control(list, "Surface");
  lines->clearFocus();
  Reports::all.clear();
  lines->setFocus();
  EXPECT_TRUE(waitFor([&] { return std::ranges::count(Reports::all, expected) > 0; }));
}

TEST_F(ToldOfWindows, EachEventGoesByTheProgramsHandler) {
  Form* balls = open("frmBalls");
  const auto installed = [] {
    const QAccessible::UpdateHandler handler = QAccessible::installUpdateHandler(nullptr);
    QAccessible::installUpdateHandler(handler);
    return handler;
  };
  const QAccessible::UpdateHandler before = installed();
  ASSERT_NE(before, nullptr);
  Reports::setActive(true);
  QAccessibleEvent focus(balls, QAccessible::Focus);
  QAccessible::updateAccessibility(&focus);
  Reports::setActive(false);
  EXPECT_EQ(installed(), before) << "it put itself back";
}

TEST_F(ToldOfWindows, TheCaretOfTheFieldThatTheUserTypesInto) {
  Form* listing = open("frmCLPrint");
  auto* last = control<NumberField>(listing, "Text2");
  const Reports reports;
  const auto carets = [] {
    std::set<QString> names;
    for (const auto& [kind, name] : std::exchange(Reports::all, {})) {
      if (kind == QAccessible::TextCaretMoved || kind == QAccessible::TextSelectionChanged) {
        names.insert(name);
      }
    }
    return QStringList(names.begin(), names.end());
  };
  press(listing, Qt::Key_Tab);
  ASSERT_TRUE(last->hasFocus());
  EXPECT_EQ(carets(), QStringList()) << "a field is named first";
  type(listing, "7");
  EXPECT_EQ(carets(), QStringList{u"Bitiş :"_s});
  last->write(u"5"_s);
  EXPECT_EQ(carets(), QStringList()) << "the program announces its own numbers";
  type(listing, "8");
  EXPECT_EQ(carets(), QStringList{u"Bitiş :"_s});
  control(listing, "Text1")->setFocus();
  EXPECT_EQ(carets(), QStringList());
}

TEST_F(ToldOfWindows, WhatIsAnnounced) {
  Form* balls = open("frmBalls");
  const Reports reports;
  press(balls, Qt::Key_F4);
  ASSERT_TRUE(waitFor([&] { return balls->findChild<Announcer*>() != nullptr; }));
  auto* announcer = balls->findChild<Announcer*>();
  EXPECT_EQ(told(announcer).role(), QAccessible::Notification);
  EXPECT_EQ(told(announcer).text(QAccessible::Name), u"49 top işaretli");
  EXPECT_EQ(announcer->size(), QSize(1, 1));
  EXPECT_TRUE(announcer->isVisible());
  EXPECT_TRUE(announcer->testAttribute(Qt::WA_TransparentForMouseEvents));
  const std::pair<QAccessible::Event, QString> shown(QAccessible::ObjectShow, u"49 top işaretli"_s);
  EXPECT_EQ(std::ranges::count(Reports::all, shown), 1);
}

TEST_F(ToldOfWindows, WhatIsAnnouncedOnceTheProcedureHasEnded) {
  Form* balls = open("frmBalls");
  const Reports reports;
  balls->run([&] {
    forms.announce("7 top");
    QEvent back(QEvent::WindowActivate);
    QCoreApplication::sendEvent(balls, &back);
    QCoreApplication::processEvents();
    EXPECT_EQ(balls->findChild<Announcer*>(), nullptr) << "a box may still open";
  });
  EXPECT_TRUE(waitFor([&] { return balls->findChild<Announcer*>() != nullptr; }));
}

TEST_F(ToldOfWindows, AFinishedDraw) {
  Form* loto = open("frmLoto");
  auto* sorted = control<QAbstractButton>(loto, "Check1");
  const Reports reports;
  world.boxes.expectBeep(6);
  click(sorted);
  QCoreApplication::processEvents();
  EXPECT_EQ(loto->findChild<Announcer*>(), nullptr) << "the opening picture covers the column";
  click(sorted);
  click(control(loto, "Command1"));
  ASSERT_TRUE(waitFor([&] { return control(loto, "Label1_11")->isHidden(); }));
  click(sorted);
  ASSERT_TRUE(waitFor([&] { return loto->findChild<Announcer*>() != nullptr; }));
  EXPECT_TRUE(world.boxes.finished()) << "it is told when the last ball lies";
  EXPECT_EQ(loto->findChild<Announcer*>()->accessibleName(),
            toQt("Kolon: " + listed(world.state.Drawn)));
}

TEST_F(ToldOfWindows, AColumnFromTheList) {
  Form* loto = open("frmLoto");
  click(control(loto, "Option2"));
  const Reports reports;
  world.chance.script = {0.0F};
  world.boxes.expectBeep();
  click(control(loto, "Command1"));
  ASSERT_TRUE(waitFor([&] { return loto->findChild<Announcer*>() != nullptr; }));
  EXPECT_EQ(loto->findChild<Announcer*>()->accessibleName(),
            toQt("Kayıt 1: " + listed(world.state.Drawn)));
}

// The option that has the focus is told as the focus.
TEST_F(ToldOfWindows, TheNumberOfBankosOnlyOnce) {
  Form* banko = open("frmBanko");
  const Reports reports;
  const auto announced = [&] {
    bool idle = false;
    QTimer::singleShot(0, banko, [&] { QTimer::singleShot(0, banko, [&] { idle = true; }); });
    EXPECT_TRUE(waitFor([&] { return idle; }));
    QStringList all;
    for (const auto* one : banko->findChildren<Announcer*>()) all.append(one->accessibleName());
    return all;
  };
  control(banko, "Option1")->setFocus();
  press(banko, Qt::Key_F4);
  EXPECT_EQ(announced(), QStringList());
  press(banko, Qt::Key_F6);
  EXPECT_EQ(announced(), QStringList{u"2 banko top"_s}) << "the first field has the focus";
}

TEST_F(ToldOfWindows, TheMarksOfBalls) {
  Form* balls = open("frmBalls");
  QWidget* seven = control(balls, "cmdBall_7");
  QAccessibleActionInterface* actions = told(seven).actionInterface();
  EXPECT_EQ(actions->actionNames(), (QStringList{QAccessibleActionInterface::toggleAction(),
                                                 QAccessibleActionInterface::setFocusAction()}));
  EXPECT_TRUE(told(seven).state().checkable);
  EXPECT_FALSE(told(seven).state().checked);
  const Reports reports;
  actions->doAction(QAccessibleActionInterface::toggleAction());
  EXPECT_TRUE(told(seven).state().checked);
  const std::pair<QAccessible::Event, QString> changed(QAccessible::StateChanged, u"7"_s);
  EXPECT_TRUE(waitFor([&] { return std::ranges::count(Reports::all, changed) > 0; }));
  EXPECT_EQ(std::ranges::count(Reports::all, changed), 1);

  world.files.folder["KARVENIS.DAT"] = words({2, 7, 8});
  world.boxes.expectBeep()
      .expectQuestion("Topları KARVENIS.DAT dosyasından yüklemek istiyormusunuz ?", true)
      .expectBeep();
  press(balls, Qt::Key_F2);
  const std::pair<QAccessible::Event, QString> other(QAccessible::StateChanged, u"8"_s);
  EXPECT_TRUE(waitFor([&] { return std::ranges::count(Reports::all, other) > 0; }));
  EXPECT_EQ(std::ranges::count(Reports::all, changed), 1) << "unmarked and marked again at once";
  actions->doAction(QAccessibleActionInterface::setFocusAction());
  EXPECT_TRUE(seven->hasFocus());
}

/// What a window's fields, and the controls whose caption is not their name, are called.
QStringList namesIn(const Form* form) {
  QStringList names;
  for (auto* widget : form->findChildren<QWidget*>()) {
    const QString& name = widget->objectName();
    const bool isField = qobject_cast<QLineEdit*>(widget) != nullptr;
    if (name.startsWith(u"cmdBall_") || (!isField && widget->accessibleName().isEmpty())) continue;
    names.append(name + u": "_s + told(widget).text(QAccessible::Name));
  }
  names.sort();
  return names;
}

TEST_F(ToldOfWindows, AFrameAsAGroup) {
  EXPECT_EQ(told(control(open("frmLoto"), "Frame1")).role(), QAccessible::Grouping);
}

TEST_F(ToldOfWindows, TheNamesOfTheirControls) {
  QStringList balls{u"Frame1: Kolonun kaynağı ve sırası"_s, u"Picture0: Açılış resmi"_s,
                    u"Picture1: KARVENIS amblemi"_s};
  for (int k = 1; k <= ballsInColumn; ++k) {
    balls.append(u"Label1_%1: %2. top: boş"_s.arg(2 * k - 2).arg(k));
    balls.append(u"Label1_%1: %2. sayı: boş"_s.arg(2 * k - 1).arg(k));
  }
  balls.sort();
  EXPECT_EQ(namesIn(open("frmLoto")), balls);
  EXPECT_EQ(namesIn(open("frmBalls")), QStringList{u"Frame1: Toplar"_s});
  EXPECT_EQ(namesIn(open("frmBanko")),
            (QStringList{
                u"Option1: 0 banko top"_s, u"Option2: 1 banko top"_s, u"Option3: 2 banko top"_s,
                u"Option4: 3 banko top"_s, u"Option5: 4 banko top"_s, u"Option6: 5 banko top"_s,
                u"Text1_0: 1. banko top"_s, u"Text1_1: 2. banko top"_s, u"Text1_2: 3. banko top"_s,
                u"Text1_3: 4. banko top"_s, u"Text1_4: 5. banko top"_s}));
  EXPECT_EQ(namesIn(open("frmRnd")), QStringList{u"Text1: Kolon Sayısı:"_s});
  EXPECT_EQ(namesIn(open("frmCLPrint")),
            (QStringList{u"Text1: Başlangıç :"_s, u"Text2: Bitiş :"_s}));
  world.boxes.expectBeep();
  EXPECT_EQ(namesIn(open("frmRndDel")),
            QStringList{u"Text1: Silmek istediğiniz kolon numarasını girin."_s});
}

}  // namespace
}  // namespace karvenis
