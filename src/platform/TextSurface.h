#pragma once

#include <string>

namespace karvenis {

/// The colours of the standard 16-colour palette that the program prints with.
enum class QBColor : unsigned char { blue = 1, red = 4, lightBlue = 9, lightRed = 12 };

/// A window's own surface that text is printed on. Positions are twips (1/1440 inch) from its upper
/// left corner.
class TextSurface {
 public:
  virtual ~TextSurface() = default;
  /// Removes everything and goes to position 0, 0.
  virtual void cls() = 0;
  virtual double currentX() const = 0;
  virtual void currentX(double twips) = 0;
  virtual void currentY(double twips) = 0;
  virtual void foreColor(QBColor colour) = 0;
  /// Makes the letters `percent` as wide as their font has them, 100 at first.
  virtual void letterWidth(int percent) = 0;
  /// Prints at the current position and stays behind the text.
  virtual void print(const std::string& text) = 0;
  /// Prints and goes to the start (x = 0) of the next line.
  virtual void printLine(const std::string& text) = 0;
};

}  // namespace karvenis
