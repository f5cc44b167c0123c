#pragma once

#include <cstdint>
#include <string>

#include "core/ColumnFile.h"
#include "platform/TextSurface.h"

namespace karvenis {

/// Columns on a full page of a list window.
inline constexpr std::int32_t rowsOnPage = 25;
/// The margin above the rows and to their left, in twips.
inline constexpr double pageMargin = 200;

/// Which part of a column list a list window shows. A page may start at any record; the last page
/// is a full one if the list has at least that many columns.
struct ListPage {
  std::int32_t PageStart = 0;    ///< records before the first one shown
  std::int32_t RecordCount = 0;  ///< records of the list at the last redraw
  std::int32_t PageRows = 0;     ///< columns shown, 0..25
  std::int32_t PageNo = 0;       ///< the page of 25 on which the last column shown lies; 0: none

  /// Moves PageStart as the paging key `KeyCode` asks: Down, Up, PageUp, PageDown, Space, Enter,
  /// End or Home. Any other key changes nothing.
  void key(int KeyCode);
  /// Moves PageStart one page on, as a click asks. It may then lie beyond the end, until fit() is
  /// called. Throws RunTimeError(overflow) beyond 32 bits.
  void click();
  /// Adapts the page to a list of `count` records (0 or more): moves PageStart into the list and
  /// sets the three other members. Throws RunTimeError(overflow) beyond 32 bits.
  void fit(std::int32_t count);
};

/// The title of a list window that shows page `PageNo` of the list that is called `list`.
[[nodiscard]] std::string pageTitle(const std::string& list, std::int32_t PageNo);

/// Clears the surface and prints the page's rows on it: a record's number in light red, then its
/// balls and their sum in light blue. Precondition: page.fit(file.count()) has been called. Throws
/// RunTimeError(read), and (damaged) if the sum of a record outgrows 16 bits.
void drawPage(const ListPage& page, ColumnFile& file, TextSurface& surface);

/// Narrows the letters of `surface`, to 75 % at the least, until the balls of records 1 to 9999
/// stand in one column. Returns the right edge, in twips, of the widest row of a record with a
/// six-digit number. Precondition: `surface` is empty; it is empty again afterwards.
[[nodiscard]] double fitRows(TextSurface& surface);

}  // namespace karvenis
