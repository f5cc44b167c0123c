#pragma once

#include "core/ListPage.h"
#include "core/Surroundings.h"
#include "platform/TextSurface.h"
#include "platform/TitleBar.h"

namespace karvenis {

/// The list window's redraw and its commands on the whole random column file.

/// Counts the file anew, shows the page that `page` starts at (corrected where the list is shorter)
/// and its number in the title. A missing file is created empty.
void ShowRndPage(Surroundings& around, ListPage& page, TextSurface& surface, TitleBar& title);

/// Appends all columns to the combination list, after a question and whatever the length of either.
/// The page then starts behind as many columns as the combination list had before.
void AppendToCombinationList(Surroundings& around, ListPage& page);

/// Makes a copy of the file the combination list, after a question; the old list goes to its
/// backup.
void SaveAsCombinationList(Surroundings& around);

/// Opens the dialog that deletes one column, where there is one.
void DeleteOneColumn(Surroundings& around, ListPage& page);

/// Deletes the file after a question. What fails is skipped.
void DeleteRndList(Surroundings& around);

/// Opens the dialog that writes or prints the list, where there is a whole record.
void ListRndColumns(Surroundings& around);

/// Shows the window's keys.
void ShowRndListKeys(Boxes& boxes);

}  // namespace karvenis
