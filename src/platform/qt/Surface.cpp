#include "platform/qt/Surface.h"

#include <QAccessible>
#include <QFontMetricsF>
#include <QPainter>
#include <cmath>

#include "platform/Twips.h"
#include "platform/qt/Text.h"

using namespace Qt::StringLiterals;

namespace karvenis {
namespace {

constexpr int marginLines = 2;     // as high as a page's margins, above and below, together
constexpr double smallest = 0.75;  // of the letters as designed; smaller ones cannot be read

/// `font` in letters of `designed` pixels, grown with the desktop's letters as far as `lines` lines
/// have room on the screen.
QFont fitted(QFont font, int designed, int lines) {
  const int least = qRound(designed * smallest);
  int pixels = qRound(designed * letterGrowth());
  for (font.setPixelSize(pixels); pixels > least; font.setPixelSize(--pixels)) {
    if (lines * QFontMetricsF(font).height() <= roomOnScreen().height()) break;
  }
  return font;
}

QColor colourOf(QBColor colour) {
  switch (colour) {
    case QBColor::blue:
      return {0, 0, 128};
    case QBColor::red:
      return {128, 0, 0};
    case QBColor::lightBlue:
      return {0, 0, 255};
    case QBColor::lightRed:
      return {255, 0, 0};
  }
  return Qt::black;
}

}  // namespace

Surface::Surface(QWidget* parent, int lines, int textPixels)
    : QWidget(parent), linesOfPage_(lines) {
  setObjectName(u"Surface"_s);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFont(fitted(font(), textPixels, lines + marginLines));
  zoom_ = static_cast<double>(font().pixelSize()) / textPixels;
  QPalette white = palette();
  white.setColor(QPalette::Window, Qt::white);
  setPalette(white);
  setAutoFillBackground(true);
}

void Surface::letterWidth(int percent) {
  QFont letters = font();
  letters.setStretch(percent);
  setFont(letters);
}

double Surface::pixels(double twips) const { return twips * zoom_ / twipsPerPixel; }
double Surface::twips(double pixels) const { return pixels * twipsPerPixel / zoom_; }
double Surface::lineHeight() const { return twips(QFontMetricsF(font()).height()); }

void Surface::fixSize(double margin, double right) {
  const QSizeF exact(pixels(right + margin), pixels(2 * margin + linesOfPage_ * lineHeight()));
  setFixedSize(static_cast<int>(std::ceil(exact.width())),
               static_cast<int>(std::ceil(exact.height())));
}

void Surface::cls() {
  runs_.clear();
  lines_.clear();
  lineOpen_ = false;
  x_ = y_ = 0;
  update();
  ++timesCleared_;
  tellFirstLine();
}

void Surface::print(const std::string& text) {
  const QString printed = toQt(text);
  note(printed);
  runs_.push_back({x_, y_, colour_, printed});
  x_ += twips(QFontMetricsF(font()).horizontalAdvance(printed));
  update();
}

void Surface::printLine(const std::string& text) {
  if (!text.empty()) print(text);
  lineOpen_ = false;
  x_ = 0;
  y_ += lineHeight();
}

/// Adds `text` to the line that is being printed, for assistive technology.
void Surface::note(const QString& text) {
  if (!lineOpen_) lines_.push_back({QString(), y_});
  lineOpen_ = true;
  lines_.back().text += text;
}

void Surface::setPage(int number) {
  const bool isKnown = number == page_ || page_ == 0;  // a new window's title says its first page
  heading_ = isKnown ? QString() : u"Sayfa %1. "_s.arg(number);
  page_ = number;
}

QString Surface::spokenLine(std::size_t index) const {
  const QString& text = lines_[index].text;
  return index == 0 ? heading_ + text : text;
}

void Surface::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  tellFirstLine();
}

/// Reports that the focus is on the first line, which a screen reader then speaks, once the redraw
/// has ended. After every redraw the line is a new object, so that it is spoken again.
void Surface::tellFirstLine() {
  if (!QAccessible::isActive()) return;
  const auto tell = [this] {
    if (!hasFocus() || lines_.empty()) return;
    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(this);
    QAccessibleEvent focused(list->child(0), QAccessible::Focus);
    QAccessible::updateAccessibility(&focused);
  };
  QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

QRect Surface::lineRect(std::size_t index) const {
  const int top = static_cast<int>(pixels(lines_[index].top));
  return {0, top, width(), static_cast<int>(pixels(lineHeight()))};
}

void Surface::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const double ascent = QFontMetricsF(font()).ascent();
  for (const Run& run : runs_) {
    painter.setPen(colourOf(run.colour));
    painter.drawText(QPointF(pixels(run.x), pixels(run.y) + ascent), run.text);
  }
}

}  // namespace karvenis
