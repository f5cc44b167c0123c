#pragma once

#include <memory>

#include "platform/Printer.h"

namespace karvenis {

/// Prints on the system's default queue, without a dialog. A document is painted in memory and sent
/// as a whole: a document that is dropped leaves nothing in the queue, and a full disk cannot cut
/// one off.
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
  struct Document;

  Document& document();

  std::unique_ptr<Document> document_;  // null while no document is begun
};

}  // namespace karvenis
