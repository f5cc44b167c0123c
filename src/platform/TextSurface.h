#pragma once

#include <string>

namespace karvenis {

/// The colours of the standard 16-colour palette that the program prints with.
enum class QBColor : unsigned char { blue = 1, red = 4, lightBlue = 9, lightRed = 12 };

/// The surface of a window that text is printed on. Positions are twips (see Twips.h) from its
/// upper left corner. Nothing here fails, and what is printed beyond the edge is not seen.
class TextSurface {
 public:
  virtual ~TextSurface() = default;
  /// Removes everything and goes to position 0, 0.
  virtual void cls() = 0;
  /// Where the next text begins.
  virtual double currentX() const = 0;
  virtual void currentX(double twips) = 0;
  virtual void currentY(double twips) = 0;
  /// Sets the colour of the texts that follow.
  virtual void foreColor(QBColor colour) = 0;
  /// Sets how wide letters are, in percent of their natural width; 100 at first.
  virtual void letterWidth(int percent) = 0;
  /// Prints `text`, which has no line break, at the current position and moves behind it.
  virtual void print(const std::string& text) = 0;
  /// Prints `text` and moves to the start (x = 0) of the next line.
  virtual void printLine(const std::string& text) = 0;
};

}  // namespace karvenis
