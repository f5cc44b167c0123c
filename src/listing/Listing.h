#pragma once

#include <cstdint>

#include "core/Surroundings.h"
#include "listing/ListText.h"
#include "platform/TitleBar.h"

namespace karvenis {

/// What a list is written to.
enum class Output { text, printer };

/// What differs between the two listing dialogs.
struct Listing {
  const char* source;  ///< the column file
  const char* title;   ///< of the dialog
  const char* questionTitle;
  const char* textQuestion;
  const char* printerQuestion;
  const char* startTitle;  ///< of the dialog until the first byte is written
  const char* progress;    ///< before the byte's number in the title while the file is written
  const char* heading;     ///< the second line up to the date
  const char* headingEnd;  ///< the second line behind the date, in the text file
};

extern const Listing randomColumnListing;
extern const Listing combinationListing;

/// Lists all random columns, after the question. Throws RunTimeError(overflow) if they are more
/// than a 16-bit number counts.
void listRandomColumns(Surroundings& around, TitleBar& title, Output output);

/// Which end of a typed range was refused.
enum class RangeRefusal { none, first, last };

/// Lists the range of the combination list, after the question. Returns which end of the range lies
/// outside the list, after a warning; none if it was listed or the user said No. Throws
/// RunTimeError.
[[nodiscard]] RangeRefusal listCombinations(Surroundings& around, TitleBar& title, Output output,
                                            ListRange range);

/// Writes the range of `list` to the text file and replaces an old one. The title shows the
/// progress: after each byte of the first and the last lines, after each line between them. Ends
/// with a box that says how long the file is. A protected text file is refused before anything is
/// done. Throws RunTimeError.
void WriteListText(Surroundings& around, TitleBar& title, ColumnFile& list, const Listing& listing,
                   ListRange range);

/// Prints the range of `list`. Throws RunTimeError.
void PrintList(Surroundings& around, ColumnFile& list, const Listing& listing, ListRange range);

}  // namespace karvenis
