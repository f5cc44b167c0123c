#include "bag/frmBanko.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "bag/Texts.h"
#include "platform/qt/Letters.h"
#include "platform/qt/NumberField.h"
#include "platform/qt/Text.h"

using namespace Qt::StringLiterals;

namespace karvenis {
namespace {

constexpr int fieldHeight = 40;  // as designed
constexpr int fieldLetters = 20;
constexpr int fieldGap = 10;

}  // namespace

frmBanko::frmBanko(Surroundings& around) : frmSelection(around) {
  auto* whole = new QVBoxLayout(this);
  whole->setSizeConstraint(QLayout::SetFixedSize);
  setCaption("Banko");
  buildMenus();
  whole->addWidget(buildOptions());
  whole->addWidget(buildFields());
  Label3 = control<QLabel>(u"Label3"_s, u"KARVENIS 2005 Randomizer"_s);
  Label4 = control<QLabel>(u"Label4"_s, u"F10= Yardım"_s);
  whole->addWidget(buildFoot(Label3, Label4));
}

void frmBanko::buildMenus() {
  QMenu* choice = buildChoiceMenu();
  addMenuEntry(choice, "mnuSil", u"Seçimi Sil"_s, [this] { mnuSil_Click(); });
  QMenu* help = buildOtherMenus(choice, "mnuL1");
  addMenuEntry(help, "mnuBankoNedir", u"Banko Nedir ve Niçin Kullanılır"_s,
               [this] { mnuBankoNedir_Click(); });
}

QWidget* frmBanko::buildOptions() {
  auto* holder = new QWidget(this);
  auto* row = new QHBoxLayout(holder);
  row->setContentsMargins(0, 0, 0, 0);
  Label1 = control<QLabel>(u"Label1"_s, u"Banko Top Sayısı:"_s);
  row->addWidget(Label1);
  constexpr std::array clicks = {&frmBanko::Option1_Click, &frmBanko::Option2_Click,
                                 &frmBanko::Option3_Click, &frmBanko::Option4_Click,
                                 &frmBanko::Option5_Click, &frmBanko::Option6_Click};
  for (int count = 0; const auto click : clicks) {
    auto* option = control<QRadioButton>(u"Option%1"_s.arg(count + 1), QString::number(count));
    option->setAccessibleName(u"%1 banko top"_s.arg(count));
    onChosen(option, [this, click] { (this->*click)(); });
    Option[count] = option;
    row->addWidget(option);
    ++count;
  }
  return holder;
}

QWidget* frmBanko::buildFields() {
  auto* holder = new QWidget(this);
  auto* column = new QVBoxLayout(holder);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(6);
  Label2 = control<QLabel>(u"Label2"_s);
  column->addWidget(Label2);
  auto* row = new QHBoxLayout;
  row->setSpacing(fieldGap);
  for (int index = 0; index < mostBankos; ++index) row->addWidget(buildField(index));
  column->addLayout(row);
  return holder;
}

/// A hidden field keeps its room, so that the window does not change its size.
QWidget* frmBanko::buildField(int index) {
  auto* field = Text1[index] = control<NumberField>(u"Text1_%1"_s.arg(index));
  field->setAccessibleName(u"%1. banko top"_s.arg(index + 1));
  field->setAlignment(Qt::AlignCenter);
  field->setFixedHeight(qRound(fieldHeight * letterGrowth()));
  setLetters(*field, fieldLetters * letterGrowth());
  QSizePolicy kept(QSizePolicy::Ignored, QSizePolicy::Fixed);
  kept.setRetainSizeWhenHidden(true);
  field->setSizePolicy(kept);
  on(field, &NumberField::textChanged, [this, index] { Text1_Change(index); });
  onEnter(field, [this, index] { Text1_KeyPress(index); });
  return field;
}

void frmBanko::Form_Activate() { ShowBankoSelection(around_.state, *this); }

void frmBanko::ownKey(int KeyCode) {
  if (KeyCode >= keyF4 && KeyCode <= keyF9) {
    chooseCount(KeyCode - keyF4);
    focusFirstEmptyField();
    return tellCount();
  }
  if (KeyCode == keyF11) mnuBankoNedir_Click();
}

/// Moves the focus to where the next digit belongs; if every field is filled, it stays.
void frmBanko::focusFirstEmptyField() {
  const auto empty = std::ranges::find_if(Text1, [](const NumberField* field) {
    return field->isVisible() && field->text().isEmpty();
  });
  if (empty != Text1.end()) (*empty)->setFocus();
}

/// The chosen option speaks for itself only if it has the focus.
void frmBanko::tellCount() {
  const QRadioButton* chosen = Option[count()];
  if (!chosen->hasFocus()) around_.windows.announce(fromQt(chosen->accessibleName()));
}

void frmBanko::showFields(int count) {
  Label2->setText(toQt(bankoCaption(count)));
  for (int index = 0; index < mostBankos; ++index) {
    Text1[index]->setVisible(index < count);
  }
  // The focus follows the choice, unless it is on another control of the window.
  QWidget* focused = focusWidget();
  if (focused == nullptr || qobject_cast<QRadioButton*>(focused) != nullptr) {
    Option[count]->setFocus();
  }
}

/// Rewrites the field only if that changes it, so that the caret does not jump.
void frmBanko::Text1_Change(int Index) {
  NumberField* field = Text1[Index];
  const QString kept = toQt(bankoText(fromQt(field->text())));
  if (kept != field->text()) field->setText(kept);
}

void frmBanko::Text1_KeyPress(int Index) {
  const int next = Index + 1;
  if (next < Text1.size() && Text1[next]->isVisible()) {
    Text1[next]->setFocus();
  } else {
    Command1->setFocus();
  }
}

void frmBanko::Command1_Click() { applyBanko(around_, *this); }
void frmBanko::Command3_Click() { loadBankoInBankoWindow(around_, *this); }
void frmBanko::Command4_Click() { saveBanko(around_, *this); }
void frmBanko::mnuSil_Click() { clearBanko(around_.state); }

void frmBanko::mnuFunctionKeys_Click() {
  around_.boxes.beep();
  around_.boxes.message(bankoKeys);
}

void frmBanko::mnuBankoNedir_Click() { around_.boxes.message(bankoExplained, bankoExplainedTitle); }

int frmBanko::count() const {
  const auto chosen =
      std::ranges::find_if(Option, [](auto* option) { return option->isChecked(); });
  return chosen == Option.end() ? 0 : static_cast<int>(chosen - Option.begin());
}

void frmBanko::chooseCount(int count) { Option[count]->setChecked(true); }

std::string frmBanko::text(int index) const { return fromQt(Text1[index]->text()); }

void frmBanko::setText(int index, const std::string& text) {
  NumberField* field = Text1[index];
  if (field == focusWidget()) {
    field->write(toQt(text));
  } else {
    field->setText(toQt(text));
  }
}

}  // namespace karvenis
