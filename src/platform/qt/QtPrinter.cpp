#include "platform/qt/QtPrinter.h"

#include <cups/cups.h>

#include <QFontMetricsF>
#include <QLibrary>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>
#include <utility>

#include "platform/RunTimeError.h"
#include "platform/Twips.h"
#include "platform/qt/Text.h"

using namespace Qt::StringLiterals;

namespace karvenis {
namespace {

/// What a page keeps clear above and below where the printer itself would keep less, in twips.
constexpr double leastMargin = 500;

/// One reason for all: no caller tells them apart.
[[noreturn]] void fail() { throw RunTimeError(Fault::printer, "printer", "yazıcı kullanılamıyor"); }

/// The printable part of the page, in dots.
QRectF printable(const QPrinter& printer) {
  const double least = leastMargin / twipsPerInch * printer.resolution();
  const QPageLayout layout = printer.pageLayout();
  const QMargins margins = layout.marginsPixels(printer.resolution());
  const QRectF page = layout.fullRectPixels(printer.resolution());
  return page.adjusted(margins.left(), std::max<double>(margins.top(), least), -margins.right(),
                       -std::max<double>(margins.bottom(), least));
}

/// The toolkit hands a finished document over without asking whether the queue took it. It loads
/// the print library itself when it first prints; linked to the program, that library and the
/// twenty behind it would be loaded at every start.
void refuseUnlessQueued() {
  QLibrary cups(u"cups"_s, 2);
  const auto lastError = reinterpret_cast<decltype(&cupsLastError)>(cups.resolve("cupsLastError"));
  if (lastError == nullptr || lastError() > IPP_STATUS_OK_EVENTS_COMPLETE) fail();
}

}  // namespace

QtPrinter::QtPrinter() = default;
QtPrinter::~QtPrinter() = default;

/// The document's printer: the system's default queue when the document was begun.
QPrinter& QtPrinter::printer() {
  if (printer_) return *printer_;
  const QPrinterInfo queue = QPrinterInfo::defaultPrinter();
  if (queue.isNull()) fail();
  auto made = std::make_unique<QPrinter>(queue, QPrinter::HighResolution);
  if (!made->isValid()) fail();
  made->setFullPage(true);
  made->setDocName(u"KARVENIS"_s);
  printer_ = std::move(made);
  return *printer_;
}

double QtPrinter::dots(double twips) { return twips / twipsPerInch * printer().resolution(); }

void QtPrinter::fontSize(double points) {
  printer();
  font_.setPointSizeF(points);
}

void QtPrinter::currentX(double twips) { x_ = dots(twips); }
void QtPrinter::currentY(double twips) { y_ = dots(twips); }

void QtPrinter::printLine(const std::string& text) {
  const QRectF area = printable(printer());
  const QFontMetricsF metrics(font_, &printer());
  y_ = std::max(y_, area.top());
  if (y_ + metrics.height() > area.bottom()) {
    ++page_;
    y_ = area.top();
  }
  const QPointF place(std::max(x_, area.left()), y_ + metrics.ascent());
  if (!text.empty()) lines_.push_back({page_, place, font_, toQt(text)});
  x_ = 0;
  y_ += metrics.height();
}

void QtPrinter::endDocument() {
  printer();
  const std::unique_ptr<QPrinter> queue = std::move(printer_);
  const std::vector<Line> lines = std::move(lines_);
  killDocument();
  paint(lines, *queue);
}

void QtPrinter::paint(const std::vector<Line>& lines, QPrinter& printer) const {
  QPainter painter;
  if (!painter.begin(&printer)) fail();
  int page = 0;
  for (const Line& line : lines) {
    for (; page < line.page; ++page) {
      if (!printer.newPage()) fail();
    }
    painter.setFont(line.font);
    painter.drawText(line.place, line.text);
  }
  if (!painter.end()) fail();
  refuseUnlessQueued();
}

void QtPrinter::killDocument() noexcept {
  printer_.reset();
  lines_.clear();
  font_ = QFont();
  page_ = 0;
  x_ = y_ = 0;
}

}  // namespace karvenis
