#include "platform/qt/QtBoxes.h"

#include <QApplication>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <algorithm>

#include "platform/qt/Text.h"

using namespace Qt::StringLiterals;

namespace karvenis {
namespace {

QMessageBox::Icon shown(Icon icon) {
  switch (icon) {
    case Icon::none:
      return QMessageBox::NoIcon;
    case Icon::exclamation:
      return QMessageBox::Warning;
    case Icon::question:
      return QMessageBox::Question;
    case Icon::critical:
      return QMessageBox::Critical;
  }
  return QMessageBox::NoIcon;
}

/// A box can be closed and moved, and nothing else.
constexpr Qt::WindowFlags boxFlags =
    Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;

/// `text` for showing: what is too long for a line, such as a list of many numbers or a folder's
/// name, may be broken behind its commas and slashes, where it would be cut off otherwise.
QString breakable(const QString& text) {
  static const QRegularExpression longWord(u"\\S{50,}"_s);
  static const QRegularExpression mark(u"([,/])"_s);
  QString shown;
  qsizetype done = 0;
  for (auto words = longWord.globalMatch(text); words.hasNext();) {
    const QRegularExpressionMatch word = words.next();
    shown += QStringView(text).sliced(done, word.capturedStart() - done);
    shown += word.captured().replace(mark, u"\\1\u200B"_s);
    done = word.capturedEnd();
  }
  return shown.append(QStringView(text).sliced(done));
}

/// Gives the text as much room as its lines and the title ask for, up to a width that still reads
/// well; the toolkit alone would break a line for its last mark. Both sides keep the same margin.
void widen(QMessageBox& box) {
  constexpr int margin = 16;
  constexpr int widest = 560;
  auto* label = box.findChild<QLabel*>(u"qt_msgbox_label"_s);
  if (label == nullptr) return;
  const QFontMetrics letters = label->fontMetrics();
  int wanted = letters.horizontalAdvance(box.windowTitle());
  for (const QString& line : box.text().split(u'\n')) {
    wanted = std::max(wanted, letters.horizontalAdvance(line));
  }
  label->setContentsMargins(margin, 0, margin, 0);
  label->setMinimumWidth(std::min(wanted, widest) + 2 * margin);
}

void fill(QMessageBox& box, const std::string& text, const std::string& title, Icon icon) {
  box.setWindowTitle(toQt(title));
  box.setTextFormat(Qt::PlainText);
  box.setText(breakable(toQtLines(text)));
  box.setIcon(shown(icon));
  box.setWindowModality(Qt::ApplicationModal);
  box.setWindowFlags(boxFlags);
  widen(box);
}

}  // namespace

QWidget* QtBoxes::owner() const { return opens ? opens() : QApplication::activeWindow(); }

/// Shows the box until it is answered. Returns its result.
int QtBoxes::serve(QDialog& box) const {
  const int result = box.exec();
  if (closed) closed();
  return result;
}

void QtBoxes::message(const std::string& text, const std::string& title, Icon icon) {
  QMessageBox box(owner());
  fill(box, text, title, icon);
  box.setDefaultButton(box.addButton(u"Tamam"_s, QMessageBox::AcceptRole));
  serve(box);
}

bool QtBoxes::ask(const std::string& text, const std::string& title) {
  QMessageBox box(owner());
  fill(box, text, title, Icon::question);
  QPushButton* yes = box.addButton(u"Evet"_s, QMessageBox::YesRole);
  QPushButton* no = box.addButton(u"Hayır"_s, QMessageBox::NoRole);
  box.setDefaultButton(yes);
  box.setEscapeButton(no);
  serve(box);
  return box.clickedButton() == yes;
}

std::string QtBoxes::input(const std::string& prompt, const std::string& title,
                           const std::string& preset) {
  QInputDialog box(owner());
  box.setWindowTitle(toQt(title));
  box.setLabelText(toQtLines(prompt));
  box.setTextValue(toQt(preset));
  box.setOkButtonText(u"Tamam"_s);
  box.setCancelButtonText(u"İptal"_s);
  box.setWindowModality(Qt::ApplicationModal);
  if (auto* label = box.findChild<QLabel*>()) {
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(420);
  }
  for (QPushButton* button : box.findChildren<QPushButton*>()) button->setIcon(QIcon());
  box.setWindowFlags(boxFlags);
  return serve(box) == QDialog::Accepted ? fromQt(box.textValue()) : std::string();
}

void QtBoxes::beep() { bell_.ring(); }

void QtBoxes::pointer(Pointer shape) {
  while (QApplication::overrideCursor() != nullptr) QApplication::restoreOverrideCursor();
  if (shape == Pointer::hourglass) QApplication::setOverrideCursor(Qt::WaitCursor);
}

}  // namespace karvenis
