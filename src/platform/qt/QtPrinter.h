#pragma once

#include <QFont>
#include <QPointF>
#include <QString>
#include <memory>
#include <vector>

#include "platform/Printer.h"

class QPrinter;

namespace karvenis {

/// Prints on the system's default queue, without a dialog. The document is laid out in memory and
/// goes to the queue as a whole, so that one that is given up leaves nothing there.
class QtPrinter final : public Printer {
 public:
  QtPrinter();
  ~QtPrinter() override;
  QtPrinter(const QtPrinter&) = delete;
  QtPrinter& operator=(const QtPrinter&) = delete;

  void fontSize(double points) override;
  void currentX(double twips) override;
  void currentY(double twips) override;
  void printLine(const std::string& text) override;
  void endDocument() override;
  void killDocument() noexcept override;

 private:
  struct Line {
    int page;       // from 0
    QPointF place;  // the text's baseline, in the printer's dots
    QFont font;
    QString text;
  };

  QPrinter& printer();
  double dots(double twips);
  void paint(const std::vector<Line>& lines, QPrinter& printer) const;

  std::unique_ptr<QPrinter> printer_;  // null while no document is begun
  std::vector<Line> lines_;
  QFont font_;
  int page_ = 0;
  double x_ = 0;  // where the next text begins, in dots
  double y_ = 0;
};

}  // namespace karvenis
