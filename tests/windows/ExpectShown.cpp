#include "windows/ExpectShown.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>

#include "platform/qt/Form.h"
#include "platform/qt/Surface.h"
#include "platform/qt/Text.h"

namespace karvenis {
namespace {

template <typename Control = QWidget>
const Control* control(const Form* form, const QString& name) {
  return form->findChild<Control*>(name);
}
std::string textOf(const Form* form, const char* box) {
  return fromQt(control<QLineEdit>(form, QLatin1String(box))->text());
}
bool isChosen(const Form* form, const QString& button) {
  return control<QAbstractButton>(form, button)->isChecked();
}
std::vector<std::string> linesOf(const Form* form) {
  std::vector<std::string> lines;
  for (const auto& line : form->findChild<Surface*>()->lines()) lines.push_back(fromQt(line.text));
  return lines;
}

void expectFiles(const KnownProgram& known, const MemoryFiles& files) {
  std::map<std::string, Bytes> expected;
  const auto add = [&](const char* name, const std::optional<Columns>& columns) {
    if (columns) expected[name] = columnBytes(*columns);
  };
  add("KARVENIS.RND", known.lists.kept);
  add("KARVENIS.LST", known.lists.list);
  add("KARVENIS.OLD", known.lists.backup);
  if (known.bagFile) expected["KARVENIS.DAT"] = words(*known.bagFile);
  if (known.text) {
    const auto bytes = std::as_bytes(std::span(*known.text));
    expected["KARVENIS.TXT"] = {bytes.begin(), bytes.end()};
  }
  for (const auto& [name, bytes] : files.folder) {
    EXPECT_TRUE(expected.contains(name)) << name;
    EXPECT_EQ(bytes, expected[name]) << name;
  }
  EXPECT_EQ(files.folder.size(), expected.size()) << "a file is missing";
}

void expectMain(const KnownProgram& known, const Form* form) {
  EXPECT_EQ(form->caption(), known.caption);
  for (int i = 0; i < 12; ++i) {
    EXPECT_EQ(fromQt(control<QLabel>(form, QStringLiteral("Label1_%1").arg(i))->text()),
              known.labels[static_cast<std::size_t>(i)]);
  }
  EXPECT_EQ(control(form, "Picture0")->isHidden(), !known.covered);
  EXPECT_EQ(isChosen(form, "Option2"), known.fromList);
  EXPECT_EQ(isChosen(form, "Check1"), known.sorted);
}

void expectBag(const KnownProgram& known, const Form* form) {
  std::set<int> marked;
  for (int ball = 1; ball <= ballsInAll; ++ball) {
    if (control(form, QStringLiteral("cmdBall_%1").arg(ball))->font().bold()) marked.insert(ball);
  }
  EXPECT_EQ(marked, known.marked);
}

void expectBanko(const KnownProgram& known, const Form* form) {
  for (int i = 0; i < mostBankos; ++i) {
    const auto* box = control<QLineEdit>(form, QStringLiteral("Text1_%1").arg(i));
    EXPECT_EQ(box->isHidden(), i >= known.bankoCount) << i;
    EXPECT_EQ(fromQt(box->text()), known.bankoTexts[static_cast<std::size_t>(i)]) << i;
  }
  EXPECT_TRUE(isChosen(form, QStringLiteral("Option%1").arg(known.bankoCount + 1)));
}

void expectCoupon(const KnownProgram& known, const Form* form) {
  EXPECT_EQ(linesOf(form), known.coupon.lines);
  EXPECT_EQ(control<QTimer>(form, "Timer1")->isActive(), known.coupon.runs);
  EXPECT_EQ(control(form, "Label1")->isHidden(), known.coupon.complete);
}

void expectKeptColumns(const KnownProgram& known, const Form* form) {
  EXPECT_EQ(form->caption(), known.kept.caption);
  EXPECT_EQ(linesOf(form), known.kept.rows);
}

void expectList(const KnownProgram& known, const Form* form) {
  EXPECT_EQ(form->caption(), known.list.caption);
  EXPECT_EQ(linesOf(form), known.list.rows);
}

void expectGenerator(const KnownProgram& known, const Form* form) {
  EXPECT_EQ(textOf(form, "Text1"), known.wanted);
  EXPECT_EQ(isChosen(form, "Option2"), known.appends);
}

void expectDeletion(const KnownProgram& known, const Form* form) {
  EXPECT_EQ(textOf(form, "Text1"), known.deleted);
}

void expectListing(const KnownProgram& known, const Form* form) {
  EXPECT_EQ(fromQt(control<QAbstractButton>(form, "Command1")->text()),
            known.prints.at(form->name()) ? "Bas" : "Yaz");
  if (form->name() != "frmCLPrint") return;
  EXPECT_EQ(textOf(form, "Text1"), known.first);
  EXPECT_EQ(textOf(form, "Text2"), known.last);
}

/// The titles of the windows in which they never change.
const std::map<std::string, std::string> fixedTitles = {
    {"frmBalls", "6/49 Top Seçme Tablosu"}, {"frmBanko", "Banko"},
    {"frmList", "Sekiz Rastgele Kolon"},    {"frmRnd", "6/49 Rastgele Kolon Üreteci"},
    {"frmRndDel", " Kolon Silme"},          {"frmRLPrint", " Rastgele Kolonlar"},
    {"frmCLPrint", "Kombinasyon Listesi"}};

void expectWindow(const KnownProgram& known, const Form* form) {
  static const std::map<std::string, void (*)(const KnownProgram&, const Form*)> windows = {
      {"frmLoto", expectMain},      {"frmBalls", expectBag},          {"frmBanko", expectBanko},
      {"frmList", expectCoupon},    {"frmRndLst", expectKeptColumns}, {"frmComLst", expectList},
      {"frmRnd", expectGenerator},  {"frmRndDel", expectDeletion},    {"frmRLPrint", expectListing},
      {"frmCLPrint", expectListing}};
  SCOPED_TRACE(form->name());
  EXPECT_TRUE(known.isOpen(form->name())) << "open";
  EXPECT_EQ(fromQt(form->windowTitle()), form->caption());
  const auto title = fixedTitles.find(form->name());
  if (title != fixedTitles.end()) {
    EXPECT_EQ(form->caption(), title->second);
  }
  windows.at(form->name())(known, form);
}

}  // namespace

void expectShown(const KnownProgram& known, Forms& forms, World& world) {
  EXPECT_TRUE(world.boxes.finished()) << "a box did not come";
  ASSERT_FALSE(forms.ending());
  ASSERT_EQ(forms.active()->name(), known.active);
  std::size_t open = 0;
  for (const QWidget* top : QApplication::topLevelWidgets()) {
    const auto* form = qobject_cast<const Form*>(top);
    if (form == nullptr || form->isClosing()) continue;
    ++open;
    expectWindow(known, form);
  }
  EXPECT_EQ(open, known.openers.size()) << "a window is missing";
  expectFiles(known, world.files);
  EXPECT_EQ(bagOf(world.state), known.bag);
  EXPECT_EQ(bankoOf(world.state), known.banko);
  EXPECT_EQ(world.state.Drawn, known.drawn);
  EXPECT_EQ(world.journal.of("seed").size(), known.seeds);
  EXPECT_EQ(std::ranges::count(world.printed(), "end"), known.documents);
  const std::vector<std::string> pointers = world.journal.of("pointer");
  EXPECT_TRUE(pointers.empty() || pointers.back() == "normal") << "the hourglass stays";
}

}  // namespace karvenis
