#include "platform/qt/QtBoxes.h"

#include <QApplication>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "platform/qt/Letters.h"
#include "platform/qt/MessageBox.h"
#include "platform/qt/ReadableText.h"
#include "platform/qt/Text.h"

using namespace Qt::StringLiterals;

namespace karvenis {
namespace {

QMessageBox::Icon iconOf(Icon icon) {
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

constexpr int leastInput = 420;  // pixels that a line to type into has

/// A box can be closed and moved, and nothing else.
constexpr Qt::WindowFlags boxFlags =
    Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;

}  // namespace

QtBoxes::~QtBoxes() { delete last_; }

/// Tells that a box is about to open. Returns the window that it belongs to.
QWidget* QtBoxes::announceOpening() const {
  return beforeOpening ? beforeOpening() : QApplication::activeWindow();
}

/// Shows `box` until it is answered, takes ownership of it and returns its result. The answered box
/// stays, hidden, until the next one is answered: a screen reader still asks about the control that
/// it read last, and would not read the next box if that control were gone.
int QtBoxes::serve(QDialog* box) {
  box->setWindowFlags(boxFlags);
  // The desktop may still be giving the keyboard to the window behind.
  QTimer::singleShot(0, box, &QWidget::activateWindow);
  const int result = box->exec();
  // A hidden popup is in no list of windows. The widget keeps the flags too: if the desktop tells
  // late that it has shown the box, the toolkit makes the native window once more, with these.
  box->overrideWindowFlags(Qt::Popup);
  box->windowHandle()->setFlags(Qt::Popup);
  delete std::exchange(last_, box);
  if (afterClosing) afterClosing();
  return result;
}

void QtBoxes::message(const std::string& text, const std::string& title, Icon icon) {
  QWidget* owner = announceOpening();
  auto* box = new MessageBox(toQtLines(text), toQt(title), iconOf(icon), owner);
  box->setDefaultButton(box->addButton(u"Tamam"_s, QMessageBox::AcceptRole));
  serve(box);
}

bool QtBoxes::ask(const std::string& text, const std::string& title) {
  QWidget* owner = announceOpening();
  auto* box = new MessageBox(toQtLines(text), toQt(title), QMessageBox::Question, owner);
  QPushButton* yes = box->addButton(u"Evet"_s, QMessageBox::YesRole);
  box->addButton(u"Hayır"_s, QMessageBox::NoRole);  // Esc presses it
  box->setDefaultButton(yes);
  serve(box);
  return box->clickedButton() == yes;
}

std::string QtBoxes::input(const std::string& prompt, const std::string& title,
                           const std::string& preset, const std::string& example) {
  auto* box = new QInputDialog(announceOpening());
  box->setWindowTitle(toQt(title));
  box->setLabelText(toQtLines(prompt));
  box->setTextValue(toQt(preset));
  box->findChild<QLineEdit*>()->setPlaceholderText(toQt(example));
  box->setOkButtonText(u"Tamam"_s);
  box->setCancelButtonText(u"İptal"_s);
  auto* label = box->findChild<QLabel*>();
  const int room =
      roomOnScreen().width() - 2 * box->style()->pixelMetric(QStyle::PM_LayoutLeftMargin);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setFixedWidth(std::max(readableWidth(*label, label->text(), room),
                                std::min(qRound(leastInput * letterGrowth()), room)));
  return serve(box) == QDialog::Accepted ? fromQt(box->textValue()) : std::string();
}

void QtBoxes::beep() { bell_.ring(); }

void QtBoxes::pointer(Pointer shape) {
  while (QApplication::overrideCursor() != nullptr) QApplication::restoreOverrideCursor();
  if (shape == Pointer::hourglass) QApplication::setOverrideCursor(Qt::WaitCursor);
}

}  // namespace karvenis
