#pragma once

#include <string>

namespace karvenis {

/// The door to the printer: the system's default queue. Positions are twips (see Twips.h) from the
/// page's upper left corner. Every call but killDocument() throws RunTimeError(printer) if there is
/// no queue or it refuses.
class Printer {
 public:
  virtual ~Printer() = default;
  /// Size of the text that follows, in points.
  virtual void fontSize(double points) = 0;
  /// Sets where the next line begins.
  virtual void currentX(double twips) = 0;
  virtual void currentY(double twips) = 0;
  /// Prints `text` at the current position and ends the line: the next one stands below it, on a
  /// new page if this one is full.
  virtual void printLine(const std::string& text) = 0;
  /// Sends the document to the queue, as a whole; the next call begins a new one.
  virtual void endDocument() = 0;
  /// Drops a document that has not been sent: nothing of it is printed.
  virtual void killDocument() noexcept = 0;
};

}  // namespace karvenis
