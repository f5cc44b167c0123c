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
  printIndented(printer, firstLine);
  printIndented(printer, listing.heading + around.clock.date() + " ] ");
  printer.printLine("");
  eachColumnLine(list, range, [&](const std::string& line) { printIndented(printer, line); });
  printer.printLine("");
  printIndented(printer, totalLine(range.count()));
  printer.endDocument();
}

}  // namespace karvenis
