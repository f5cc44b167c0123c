#include "platform/qt/QtPrinter.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>

#include "platform/Twips.h"
#include "platform/qt/PrintQueue.h"
#include "platform/qt/Text.h"

using namespace Qt::StringLiterals;

namespace karvenis {
namespace {

/// Makes a device pixel of the document a twip.
constexpr int resolution = static_cast<int>(twipsPerInch);

/// The least margin above and below, in twips, even if the printer could print there.
constexpr int leastMargin = 500;

/// The part of the page that is printed on, in twips.
QRectF printable(const QPageLayout& page) {
  QMargins margins = page.marginsPixels(resolution);
  margins.setTop(std::max(margins.top(), leastMargin));
  margins.setBottom(std::max(margins.bottom(), leastMargin));
  return page.fullRectPixels(resolution).marginsRemoved(margins);
}

}  // namespace

/// A document that is being painted. The queue is the system's default one when it was begun. Its
/// device pixels are twips.
struct QtPrinter::Document {
  Document();

  PrintQueue queue;
  QBuffer pdf;
  QPdfWriter writer{&pdf};
  QRectF area;  // what may be printed on
  QPainter painter;
  QPointF next;  // where the next line begins
};

QtPrinter::Document::Document() {
  QPageLayout page = queue.page();
  area = printable(page);
  page.setMode(QPageLayout::FullPageMode);
  writer.setPageLayout(page);
  writer.setResolution(resolution);
  writer.setTitle(u"KARVENIS"_s);
  if (!pdf.open(QIODevice::WriteOnly) || !painter.begin(&writer)) failToPrint();
}

QtPrinter::QtPrinter() = default;
QtPrinter::~QtPrinter() = default;

QtPrinter::Document& QtPrinter::document() {
  if (!document_) document_ = std::make_unique<Document>();
  return *document_;
}

void QtPrinter::fontSize(double points) {
  QPainter& painter = document().painter;
  QFont font = painter.font();
  font.setPointSizeF(points);
  painter.setFont(font);
}

void QtPrinter::currentX(double twips) { document().next.setX(twips); }
void QtPrinter::currentY(double twips) { document().next.setY(twips); }

void QtPrinter::printLine(const std::string& text) {
  Document& page = document();
  const QFontMetricsF metrics(page.painter.font(), &page.writer);
  double top = std::max(page.next.y(), page.area.top());
  if (top + metrics.height() > page.area.bottom()) {
    if (!page.writer.newPage()) failToPrint();
    top = page.area.top();
  }
  const double left = std::max(page.next.x(), page.area.left());
  page.painter.drawText(QPointF(left, top + metrics.ascent()), toQt(text));
  page.next.setY(top + metrics.height());
}

void QtPrinter::endDocument() {
  document();  // begins an empty one if nothing was printed
  const std::unique_ptr<Document> whole = std::move(document_);
  if (!whole->painter.end()) failToPrint();
  whole->queue.send(whole->pdf.data());
}

void QtPrinter::killDocument() noexcept { document_.reset(); }

}  // namespace karvenis
