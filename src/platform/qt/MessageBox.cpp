#include "platform/qt/MessageBox.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>

#include "platform/qt/Letters.h"
#include "platform/qt/ReadableText.h"

using namespace Qt::StringLiterals;

namespace karvenis {
namespace {

constexpr int besideTitle = 110;  // what a frame shows beside its title

/// `text` with places to break lines: behind the commas and slashes of a long word, such as a list
/// of many numbers or the name of a folder, and inside what is long without them. It would be cut
/// off otherwise.
QString breakable(const QString& text) {
  static const QRegularExpression longWord(u"\\S{50,}"_s);
  static const QRegularExpression mark(u"([,/]|[^,/]{40})"_s);
  QString broken;
  qsizetype done = 0;
  for (auto words = longWord.globalMatch(text); words.hasNext();) {
    const QRegularExpressionMatch word = words.next();
    broken += QStringView(text).sliced(done, word.capturedStart() - done);
    broken += word.captured().replace(mark, u"\\1\u200B"_s);
    done = word.capturedEnd();
  }
  return broken.append(QStringView(text).sliced(done));
}

}  // namespace

MessageBox::MessageBox(const QString& text, const QString& title, QMessageBox::Icon icon,
                       QWidget* owner)
    : QMessageBox(owner),
      label_(findChild<QLabel*>(u"qt_msgbox_label"_s)),
      scroller_(new QScrollArea(this)) {
  setWindowTitle(title);
  setTextFormat(Qt::PlainText);
  setText(breakable(text));
  setIcon(icon);
  scroller_->setFrameShape(QFrame::NoFrame);
  scroller_->setWidgetResizable(true);
}

/// The toolkit's own layout has no room for a scroll bar and keeps a column for a missing icon.
void MessageBox::layOut() {
  auto* picture = findChild<QLabel*>(u"qt_msgboxex_icon_label"_s);
  auto* buttons = findChild<QDialogButtonBox*>();
  const bool hasIcon = icon() != NoIcon;
  delete layout();
  auto* grid = new QGridLayout(this);
  grid->addWidget(picture, 0, 0, Qt::AlignTop);
  grid->addWidget(scroller_, 0, hasIcon ? 1 : 0, 1, hasIcon ? 1 : 2);
  grid->addWidget(buttons, 1, 0, 1, 2);
  scroller_->setWidget(label_);

  const QMargins margins = grid->contentsMargins();
  QSize taken(
      margins.left() + margins.right(),
      margins.top() + margins.bottom() + grid->verticalSpacing() + buttons->sizeHint().height());
  if (hasIcon) taken.rwidth() += picture->sizeHint().width() + grid->horizontalSpacing();
  const int title = label_->fontMetrics().horizontalAdvance(windowTitle()) + besideTitle;
  sizeText(roomOnScreen() - taken, title - taken.width());
}

/// Sizes the text for a `room` on the screen, at least `least` wide.
void MessageBox::sizeText(const QSize& room, int least) {
  const int natural = textSize(*label_, text(), QWIDGETSIZE_MAX).width();
  int width = readableWidth(*label_, text(), room.width());
  const int gap = label_->fontMetrics().horizontalAdvance(u'm');  // between the text and its bar
  const int bar = gap + style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  if (heightAt(width) > room.height()) width = std::min(natural, room.width() - bar);
  const bool scrolls = heightAt(width) > room.height();
  wraps_ = width < natural;
  label_->setContentsMargins(0, 0, scrolls ? gap : 0, 0);
  scroller_->setFocusPolicy(scrolls ? Qt::TabFocus : Qt::NoFocus);
  scroller_->setFixedSize(std::max(scrolls ? width + bar : width, std::min(least, room.width())),
                          std::min(heightAt(width), room.height()));
}

int MessageBox::heightAt(int width) const { return textSize(*label_, text(), width).height(); }

/// Keeps the size that showEvent() gives the box: QMessageBox would compute another one.
bool MessageBox::event(QEvent* event) {
  return QDialog::event(event);  // NOLINT(bugprone-parent-virtual-call): not QMessageBox's
}

void MessageBox::showEvent(QShowEvent* event) {
  layOut();
  QMessageBox::showEvent(event);
  label_->setWordWrap(wraps_);
  setFixedSize(layout()->totalSizeHint());
  adjustPosition(parentWidget());
}

void MessageBox::keyPressEvent(QKeyEvent* event) {
  QScrollBar* bar = scroller_->verticalScrollBar();
  switch (event->key()) {
    case Qt::Key_PageUp:
      return bar->triggerAction(QScrollBar::SliderPageStepSub);
    case Qt::Key_PageDown:
      return bar->triggerAction(QScrollBar::SliderPageStepAdd);
    default:
      return QMessageBox::keyPressEvent(event);
  }
}

}  // namespace karvenis
