#include "core/ListPage.h"

#include <algorithm>

#include "core/Checked.h"
#include "core/Numbers.h"
#include "platform/Keys.h"

namespace karvenis {
namespace {

// Twips.
constexpr double ballColumn = 1600;      // the first ball of a row, if the label ends before it
constexpr double nextBallColumn = 1700;  // else here, if the label ends before this
constexpr double behindLongLabel = 75;   // else this far behind the label
constexpr double ballPitch = 400;        // from ball to ball
constexpr double sumOffset = 2500;       // from the first ball to the sum

/// The start of a full last page; 0 if the list has less than a page.
std::int32_t lastPageStart(std::int32_t count) { return std::max(count - rowsOnPage, 0); }

/// Prints the label of record `number` and returns the place of the row's first ball.
double printLabel(TextSurface& surface, std::int64_t number) {
  surface.currentX(pageMargin);
  surface.foreColor(QBColor::lightRed);
  surface.print("Kolon -" + withBlank(number) + " : ");
  const double x = surface.currentX();
  if (x < ballColumn) return ballColumn;
  if (x < nextBallColumn) return nextBallColumn;
  return x + behindLongLabel;
}

std::string bracketed(std::int16_t sum) {
  if (sum <= 99) return "[ 0" + std::to_string(sum) + " ]";
  return "[" + withBlank(sum) + " ]";
}

void drawRow(TextSurface& surface, ColumnFile& file, std::int64_t number) {
  const Column balls = file.at(number).Balls;
  const std::int16_t ColumnSum = columnSum(balls, file.name(), number);
  const double firstBall = printLabel(surface, number);
  surface.foreColor(QBColor::lightBlue);
  double x = firstBall;
  for (const std::int16_t ball : balls) {
    surface.currentX(x);
    surface.print(withBlank(ball) + "  ");
    x += ballPitch;
  }
  surface.currentX(firstBall + sumOffset);
  surface.printLine(bracketed(ColumnSum));
}

}  // namespace

void ListPage::key(int KeyCode) {
  switch (KeyCode) {
    case keyDown:
      if (PageStart < RecordCount) ++PageStart;
      break;
    case keyUp:
      if (PageStart > 0) --PageStart;
      break;
    case keyPageUp:
      PageStart = PageStart >= rowsOnPage ? PageStart - rowsOnPage : 0;
      break;
    case keyPageDown:
    case keySpace:
    case keyEnter:
      if (std::int64_t{RecordCount} - PageStart >= rowsOnPage) PageStart += rowsOnPage;
      break;
    case keyEnd:
      if (RecordCount >= rowsOnPage) PageStart = lastPageStart(RecordCount);
      break;
    case keyHome:
      PageStart = 0;
      break;
    default:
      break;
  }
}

void ListPage::click() { PageStart = checked<std::int32_t>(std::int64_t{PageStart} + rowsOnPage); }

void ListPage::fit(std::int32_t count) {
  RecordCount = count;
  if (PageStart >= RecordCount) PageStart = lastPageStart(RecordCount);
  PageStart = std::max(PageStart, 0);
  PageRows = std::min(RecordCount - PageStart, rowsOnPage);
  const std::int64_t lastShown = std::int64_t{PageStart} + PageRows;
  PageNo = checked<std::int32_t>((lastShown + rowsOnPage - 1) / rowsOnPage);
}

std::string pageTitle(const std::string& list, std::int32_t PageNo) {
  return " " + list + " - Sayfa" + withBlank(PageNo) + "  [ F10= Yardım ]";
}

void drawPage(const ListPage& page, ColumnFile& file, TextSurface& surface) {
  surface.cls();
  surface.currentY(pageMargin);
  for (std::int32_t RowNo = 1; RowNo <= page.PageRows; ++RowNo) {
    const std::int64_t number = std::int64_t{page.PageStart} + RowNo;
    drawRow(surface, file, number);
  }
}

double fitRows(TextSurface& surface) {
  constexpr int narrowest = 75;  // percent; narrower letters cannot be read
  // No digit is wider than an 8.
  for (int percent = 100; percent > narrowest && printLabel(surface, 8888) > ballColumn;) {
    surface.letterWidth(--percent);
  }
  surface.currentX(printLabel(surface, 888888) + sumOffset);
  surface.print(bracketed(888));
  const double edge = surface.currentX();
  surface.cls();
  return edge;
}

}  // namespace karvenis
