#include <QCheckBox>
#include <QRadioButton>
#include <QRegularExpression>
#include <deque>

#include "AllWindows.h"
#include "faults/DiskFolder.h"
#include "platform/Keys.h"
#include "windows/ExpectShown.h"
#include "windows/KnownProgram.h"
#include "windows/WindowTest.h"

// A user who does anything at random in all windows and knows what the program must answer: each
// box, and after each step every title, row, mark and byte.

namespace karvenis {
namespace {

constexpr std::size_t mostColumns =
    400;  // a list that has grown beyond is replaced behind the program

Qt::Key qtKey(int key) {
  static const std::map<int, Qt::Key> others = {
      {keyEnter, Qt::Key_Return},      {keyEscape, Qt::Key_Escape},
      {keySpace, Qt::Key_Space},       {keyPageUp, Qt::Key_PageUp},
      {keyPageDown, Qt::Key_PageDown}, {keyEnd, Qt::Key_End},
      {keyHome, Qt::Key_Home},         {keyUp, Qt::Key_Up},
      {keyDown, Qt::Key_Down}};
  const auto other = others.find(key);
  return other != others.end() ? other->second : static_cast<Qt::Key>(Qt::Key_F1 + (key - keyF1));
}

/// While it lives, the timers of the balls and of the coupon tick only when the test says so.
class StoppedTimers : public QObject {
 public:
  StoppedTimers() { qApp->installEventFilter(this); }

  /// Lets `timer` tick `most` times, as long as it runs.
  void tick(QTimer* timer, int most = 1) {
    ticking_ = true;
    for (int i = 0; i < most && timer->isActive(); ++i) {
      QTimerEvent event(timer->timerId());
      QCoreApplication::sendEvent(timer, &event);
    }
    ticking_ = false;
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    static const QRegularExpression stopped("^Timer[1-6]$");
    return event->type() == QEvent::Timer && !ticking_ &&
           stopped.match(watched->objectName()).hasMatch();
  }

 private:
  bool ticking_ = false;
};

class KnowingUser : public WindowTest {
 protected:
  StoppedTimers timers;
  std::mt19937 random{seed()};
  std::optional<KnownProgram> known;
  std::deque<std::string> past;  // what was done last

  static unsigned seed() {
    const char* told = std::getenv("KARVENIS_SEED");
    return told == nullptr ? 2005U : static_cast<unsigned>(std::strtoul(told, nullptr, 10));
  }
  void SetUp() override {
    addWindows(forms, around);
    forms.show("frmLoto");
    Form* main = forms.find("frmLoto");
    ASSERT_TRUE(QTest::qWaitForWindowActive(main));
    known.emplace(world, random);
    replaceLists();
  }

  // Doing.

  template <typename... Parts>
  void note(Parts&&... parts) {
    std::ostringstream told;
    (told << ... << parts);
    past.push_back(told.str());
    if (past.size() > 12) past.pop_front();
  }
  std::string story() const {
    std::string all;
    for (const std::string& step : past) all += "\n  " + step;
    return all;
  }
  std::size_t below(std::size_t count) { return random() % count; }
  Form* active() const { return forms.active(); }

  void step() {
    if (known->chance(12)) return goElsewhere();
    if (known->chance(20)) return closeAny();
    if (known->chance(40)) return replaceLists();
    static const std::map<std::string, void (KnowingUser::*)()> windows = {
        {"frmLoto", &KnowingUser::inMain},       {"frmBalls", &KnowingUser::inBag},
        {"frmBanko", &KnowingUser::inBanko},     {"frmList", &KnowingUser::inCoupon},
        {"frmRndLst", &KnowingUser::inList},     {"frmComLst", &KnowingUser::inList},
        {"frmRnd", &KnowingUser::inGenerator},   {"frmRndDel", &KnowingUser::inDeletion},
        {"frmRLPrint", &KnowingUser::inListing}, {"frmCLPrint", &KnowingUser::inListing}};
    (this->*windows.at(known->active))();
  }

  void key(int code) {
    note(known->active, ": key ", code);
    Form* form = active();
    known->press(code);
    press(form, qtKey(code));
  }
  int anyOf(std::initializer_list<int> codes) { return codes.begin()[below(codes.size())]; }

  void closeAny() {
    const std::string window = anyWindow();
    if (window == "frmLoto") return;
    note("closes ", window);
    Form* form = forms.find(window);
    known->close(window);
    form->close();
  }
  /// Some desktops pass through a third window on the way from one that closed to its opener.
  void passThrough() {
    const std::string third = anyWindow();
    if (third == known->active) return;
    forms.find(third)->activateWindow();
    active()->activateWindow();
  }
  void goElsewhere() {
    const std::string window = anyWindow();
    if (window == known->active) return;
    note("goes to ", window);
    known->goTo(window);
    bring(forms.find(window));
    forms.settle();
  }
  std::string anyWindow() {
    auto window = known->openers.begin();
    std::advance(window, below(known->openers.size()));
    return window->first;
  }
  static void bring(Form* form) {
    form->activateWindow();
    ASSERT_TRUE(waitFor([form] { return QApplication::activeWindow() == form; }));
  }

  /// Somebody else brings other lists into the folder.
  void replaceLists() {
    note("other lists come");
    const auto some = [&](std::optional<Columns>& columns, const char* name) {
      const Bytes bytes = countedColumns(static_cast<std::int32_t>(below(80)));
      columns = columnsOf(bytes);
      world.files.folder[name] = bytes;
    };
    some(known->lists.kept, "KARVENIS.RND");
    some(known->lists.list, "KARVENIS.LST");
  }

  void inMain() {
    Form* main = active();
    switch (below(10)) {
      case 0:
      case 1:
        note("draws");
        known->draw();
        click(control(main, "Command1"));
        return roll(main);
      case 2:
        known->chooseSource(known->chance(2));
        note("draws from the list: ", known->fromList);
        return click(control(main, known->fromList ? "Option2" : "Option1"), {10, 10});
      case 3:
        note("sorts: ", !known->sorted);
        known->sortNumbers(!known->sorted);
        return click(control(main, "Check1"), {10, 10});
      case 4:
        if (!known->covered) return;
        note("lifts the picture");
        known->liftPicture();
        return click(control(main, "Picture0"));
      default:
        return key(anyOf({keyF1, keyF1, keyF2, keyF2, keyF3, keyF4, keyF5, keyF6, keyF7, keyF8,
                          keyF9, keyF11, keyF12, keyF12}));
    }
  }
  void roll(Form* main) {
    for (int ball = 1; ball <= 6; ++ball) {
      timers.tick(control<QTimer>(main, QStringLiteral("Timer%1").arg(ball)), 100);
    }
  }

  void inBag() {
    if (known->chance(2)) {
      const int ball = static_cast<int>(1 + below(49));
      note("marks ", ball);
      known->mark(ball);
      return click(control(active(), QStringLiteral("cmdBall_%1").arg(ball)));
    }
    key(anyOf({keyF1, keyF2, keyF3, keyF4, keyF5, keyF6, keyEscape}));
  }
  void inBanko() {
    switch (below(4)) {
      case 0: {
        if (known->bankoCount == 0) return;
        const std::size_t box = below(static_cast<std::size_t>(known->bankoCount));
        const std::string digits = std::to_string(below(60));
        note("types ", digits, " into box ", box);
        known->typeBanko(box, digits);
        return retype(QStringLiteral("Text1_%1").arg(box), digits);
      }
      case 1:
        if (!known->chance(3)) return;
        note("clears the bankos");
        known->clearBankos();
        return trigger(active(), "mnuSil");
      default:
        return key(
            anyOf({keyF1, keyF2, keyF3, keyF4, keyF5, keyF6, keyF7, keyF8, keyF9, keyEscape}));
    }
  }
  /// Types over what a box holds.
  void retype(const QString& name, const std::string& typed) {
    auto* box = control<QLineEdit>(active(), name);
    box->setFocus();
    box->selectAll();
    QTest::keyClick(box, Qt::Key_Delete);
    type(active(), QString::fromStdString(typed));
  }
  void inCoupon() {
    if (known->chance(6)) return key(anyOf({keyF1, keyF5, keyDown, keyEscape}));
    auto* timer = control<QTimer>(active(), "Timer1");
    note("the coupon types");
    for (std::size_t i = below(60); i > 0 && known->coupon.runs; --i) {
      known->typeCoupon();
      timers.tick(timer);
      known->takeOver();
    }
  }
  void inList() {
    if (known->chance(8)) {
      note("clicks");
      known->clickPage();
      return click(active()->findChild<Surface*>());
    }
    // A list that is gone can neither be copied nor read: the program ends.
    const bool kept = known->active == "frmRndLst";
    const int code =
        kept ? anyOf({keyF1, keyF2, keyF3, keyF4, keyF9, keyUp, keyDown, keyPageUp, keyPageDown,
                      keyHome, keyEnd, keyEnter, keySpace, keyF12, keyEscape})
             : anyOf({keyF1, keyF2, keyF3, keyF3, keyF4, keyF5, keyF6, keyF7, keyF8, keyF11, keyUp,
                      keyDown, keyPageUp, keyPageDown, keyHome, keyEnd, keyEnter, keyEscape});
    if (kept && code == keyF2 && !known->lists.kept) return;
    key(code);
  }
  void inGenerator() {
    switch (below(4)) {
      case 0: {
        const bool canAppend = known->existing >= 1 && known->existing < 32767;
        const bool append = canAppend && known->chance(2);
        note("chooses to append: ", append);
        known->chooseMode(append);
        return click(control(active(), append ? "Option2" : "Option1"), {10, 10});
      }
      case 1:
        return key(anyOf({keyF10, keyEscape, keyF5}));
      default: {
        static const char* const refused[] = {"0", "40000", "-3"};
        const std::string count =
            known->chance(5) ? refused[below(3)] : std::to_string(1 + below(40));
        note("types ", count);
        known->wanted = count;
        retype("Text1", count);
        return key(keyF1);
      }
    }
  }
  void inDeletion() {
    if (known->chance(5)) return key(keyEscape);
    // It would delete from another list than it has counted.
    if (Lists::count(known->lists.kept) != known->deletable) return;
    known->deleted = std::to_string(below(known->deletable + 3));
    note("types ", known->deleted);
    retype("Text1", known->deleted);
    key(keyEnter);
  }
  void inListing() {
    switch (below(4)) {
      case 0: {
        const bool printer = known->chance(2);
        note("chooses the printer: ", printer);
        known->chooseOutput(printer);
        return click(control(active(), printer ? "Option2" : "Option1"), {10, 10});
      }
      case 1:
        if (known->active != "frmCLPrint") return;
        (known->chance(2) ? known->first : known->last) = std::to_string(below(90));
        note("types ", known->first, " to ", known->last);
        retype("Text1", known->first);
        return retype("Text2", known->last);
      default:
        return key(anyOf({keyF1, keyF1, keyF10, keyEscape}));
    }
  }

  /// Until the program has nothing left to do: a key that came sooner would be dropped as one that
  /// was pressed while a long action ran.
  static void rest() {
    bool idle = false;
    QTimer::singleShot(0, qApp, [&] { QTimer::singleShot(0, qApp, [&] { idle = true; }); });
    while (!idle) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    settle();
  }
};

/// KARVENIS_ROUNDS=100000 is the long form; KARVENIS_SEED plays another user.
TEST_F(KnowingUser, GetsFromEachWindowWhatHeKnows) {
  std::set<std::string> seen;
  for (int i = 0; i < rounds(2000); ++i) {
    const std::string before = known->active;
    step();
    if (!known->isOpen(before)) passThrough();
    rest();
    ASSERT_TRUE(waitFor([&] { return QApplication::activeWindow() == active(); })) << story();
    known->takeOver();
    expectShown(*known, forms, world);
    ASSERT_FALSE(HasFailure()) << "step " << i << ", seed " << seed() << ":" << story();
    seen.insert(known->active);
    world.journal.lines.clear();
    known->seeds = 0;
    known->documents = 0;
    const auto isLong = [](const auto& columns) { return Lists::count(columns) > mostColumns; };
    if (isLong(known->lists.kept) || isLong(known->lists.list)) replaceLists();
  }
  EXPECT_EQ(seen.size(), 10U) << "some window was never worked in";
}

}  // namespace
}  // namespace karvenis
