#pragma once

#include <cstdint>
#include <string>

#include "core/ColumnFile.h"
#include "platform/TextSurface.h"

namespace karvenis {

/// Columns on a full page of a list window.
inline constexpr std::int32_t rowsOnPage = 25;
/// What the rows keep clear above and to the left, in twips.
inline constexpr double pageMargin = 200;

/// Which part of a column list a list window shows. A page may start at any record; the last page
/// is always a full one if the list has that many columns.
struct ListPage {
  std::int32_t PageStart = 0;    ///< records before the first one shown
  std::int32_t RecordCount = 0;  ///< records of the list at the last redraw
  std::int32_t PageRows = 0;     ///< columns shown, 0..25
  std::int32_t PageNo = 0;       ///< the page of 25 on which the last column shown lies; 0: none

  /// Moves PageStart as the paging keys do: Down, Up, PageUp, PageDown, Space, Enter, End, Home.
  /// Any other key changes nothing.
  void key(int KeyCode);
  /// One page on, as a click does. fit() brings it back from beyond the end.
  void click();
  /// Takes the length that the list has now: corrects PageStart and sets the three others.
  void fit(std::int32_t count);
};

/// The title of a list window that shows page `PageNo` of `list`.
[[nodiscard]] std::string pageTitle(const std::string& list, std::int32_t PageNo);

/// Clears the surface and prints the page's rows on it: a record's number in light red, then its
/// balls and their sum in light blue. `page` fits `file`. Throws RunTimeError(read), and (overflow)
/// if the sum of a damaged record outgrows 16 bits.
void drawPage(const ListPage& page, ColumnFile& file, TextSurface& surface);

/// Fits the letters of the empty `surface` to the page's rows: they are made as narrow as it takes
/// to keep the balls of records 1 to 9999 in one column. Returns where the widest row ends whose
/// record has a number of six digits, in twips.
[[nodiscard]] double fitRows(TextSurface& surface);

}  // namespace karvenis
