#include "listing/ListText.h"
#include "listing/Listing.h"

namespace karvenis {
namespace {

constexpr double textPoints = 11;
constexpr double topMargin = 500;  // twips
constexpr double leftMargin = 1000;

void printIndented(Printer& printer, const std::string& line) {
  printer.currentX(leftMargin);
  printer.printLine(line);
}

}  // namespace

void PrintList(Surroundings& around, ColumnFile& list, const Listing& listing, ListRange range) {
  Printer& printer = around.printer;
  printer.fontSize(textPoints);
  printer.currentY(topMargin);
  printIndented(printer, "< KARVENIS 2005 Randomizer >");
  printIndented(printer, listing.heading + around.clock.date() + " ] ");
  printer.printLine("");

  const std::size_t digits = digitCount(range.last);
  std::string line;
  for (std::int64_t number = range.first; number <= range.last; ++number) {
    line.clear();
    appendColumnLine(line, static_cast<std::int32_t>(number), digits, list.at(number).Balls);
    printIndented(printer, line);
  }

  printer.printLine("");
  printIndented(printer, totalLine(range.count()));
  printer.endDocument();
}

}  // namespace karvenis
