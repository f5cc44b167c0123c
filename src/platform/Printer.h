#pragma once

#include <string>

namespace karvenis {

/// The door to the printer: the system's default queue. Positions are twips (1/1440 inch) from the
/// page's upper left corner. Every call throws RunTimeError(printer) where there is no queue or it
/// refuses.
class Printer {
 public:
  virtual ~Printer() = default;
  /// Size of the text that follows, in points.
  virtual void fontSize(double points) = 0;
  virtual void currentX(double twips) = 0;
  virtual void currentY(double twips) = 0;
  /// Prints `text` at the current position and ends the line: the next one starts at x = 0 below
  /// it, on a new page where this one is full.
  virtual void printLine(const std::string& text) = 0;
  /// Sends the document to the queue.
  virtual void endDocument() = 0;
  /// Forgets a document that has not been sent, so that the next one starts afresh.
  virtual void killDocument() noexcept = 0;
};

}  // namespace karvenis
