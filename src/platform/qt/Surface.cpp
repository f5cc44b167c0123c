#include "platform/qt/Surface.h"

#include <QAccessible>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "platform/Twips.h"
#include "platform/qt/Text.h"

using namespace Qt::StringLiterals;

namespace karvenis {
namespace {

constexpr double textPixels = 13;  // 9.75 points

/// How high a screen must be to show a whole page of the lists as designed, in pixels.
constexpr double pageScreen = 460;
constexpr double leastZoom = 0.75;  // smaller letters cannot be read

/// How much larger than designed everything is printed: as the user's own font asks, but not so
/// large that a page is higher than the screen.
double zoomOf(const QFont& font) {
  const double wanted = std::max(1.0, QFontInfo(font).pixelSize() / textPixels);
  const double fits = QGuiApplication::primaryScreen()->availableSize().height() / pageScreen;
  return std::max(leastZoom, std::min(wanted, fits));
}

QColor shown(QBColor colour) {
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

Surface::Surface(QWidget* parent) : QWidget(parent), zoom_(zoomOf(font())) {
  setObjectName(u"Surface"_s);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setTextSize(textPixels);
  QPalette white = palette();
  white.setColor(QPalette::Window, Qt::white);
  setPalette(white);
  setAutoFillBackground(true);
}

void Surface::setTextSize(double pixels) {
  QFont text = font();
  text.setPixelSize(qRound(pixels * zoom_));
  setFont(text);
}

double Surface::pixels(double twips) const { return twips * zoom_ / twipsPerPixel; }
double Surface::twips(double pixels) const { return pixels * twipsPerPixel / zoom_; }
double Surface::lineHeight() const { return twips(QFontMetricsF(font()).height()); }

QSize Surface::sizeFor(double margin, int lines, double right) const {
  const QSizeF exact(pixels(right + margin), pixels(2 * margin + lines * lineHeight()));
  return {static_cast<int>(std::ceil(exact.width())), static_cast<int>(std::ceil(exact.height()))};
}

void Surface::cls() {
  runs_.clear();
  lines_.clear();
  lineOpen_ = false;
  x_ = y_ = 0;
  update();
  ++redraws_;
  tellFirstLine();
}

void Surface::print(const std::string& text) {
  const QString shownText = toQt(text);
  note(shownText);
  runs_.push_back({x_, y_, colour_, shownText});
  x_ += twips(QFontMetricsF(font()).horizontalAdvance(shownText));
  update();
}

void Surface::printLine(const std::string& text) {
  if (!text.empty()) print(text);
  lineOpen_ = false;
  x_ = 0;
  y_ += lineHeight();
}

/// Adds `text` to the line that is being printed, for those who have it read to them.
void Surface::note(const QString& text) {
  if (!lineOpen_) lines_.push_back({QString(), y_});
  lineOpen_ = true;
  lines_.back().text += text;
}

void Surface::setPage(int number) {
  const bool told = number == page_ || page_ == 0;  // the title tells a new window's first page
  heading_ = told ? QString() : u"Sayfa %1. "_s.arg(number);
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

/// A screen reader speaks what the focus moves to, here the first line when the redraw has ended.
/// It is another object than the one before it, so that it is spoken after every redraw.
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
    painter.setPen(shown(run.colour));
    painter.drawText(QPointF(pixels(run.x), pixels(run.y) + ascent), run.text);
  }
}

}  // namespace karvenis
