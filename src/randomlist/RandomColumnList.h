#pragma once

#include "core/ListPage.h"
#include "core/Surroundings.h"
#include "platform/TextSurface.h"
#include "platform/TitleBar.h"

namespace karvenis {

/// The list window's redraw and its commands on the whole random column file.

/// Counts the file anew, shows the page that `page` starts at (corrected if the list is shorter)
/// and its number in the title. A missing file is created empty. Throws RunTimeError.
void ShowRndPage(Surroundings& around, ListPage& page, TextSurface& surface, TitleBar& title);

/// Appends all columns to the combination list, after a question; neither list has a length limit.
/// The page then starts behind as many columns as the combination list had before. Throws
/// RunTimeError; the combination list is then as it was.
void appendToCombinationList(Surroundings& around, ListPage& page);

/// Makes a copy of the file the combination list, after a question; the old list goes to its
/// backup. Throws RunTimeError.
void saveAsCombinationList(Surroundings& around);

/// Opens the dialog that deletes one column, if there is one.
void DeleteOneColumn(Surroundings& around, ListPage& page);

/// Opens the dialog that writes or prints the list, if the list holds a whole record.
void openRndListing(Surroundings& around);

/// Shows the window's keys.
void showRndListKeys(Boxes& boxes);

}  // namespace karvenis
