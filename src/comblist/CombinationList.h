#pragma once

#include "core/ListPage.h"
#include "core/Surroundings.h"
#include "platform/TextSurface.h"
#include "platform/TitleBar.h"

namespace karvenis {

/// The combination list window's redraw and its commands on the list.

/// Shows the page that `page` starts at (corrected where the list is shorter) and its number in the
/// title. Without a list nothing changes; of an empty one the user is told.
void ShowPage(Surroundings& around, ListPage& page, TextSurface& surface, TitleBar& title);

/// Whether there is a list to show; if not, the user is told.
bool findList(Surroundings& around);

/// Opens the dialog that writes or prints the list, where there is a whole record.
void OpenListing(Surroundings& around);

/// Copies the list over the random column file; where that exists, after a question. False where
/// the user said No.
bool CopyToRandomColumns(Surroundings& around);

/// Asks for a column's number and deletes it. The number becomes the page's start even where there
/// is no such column; after a deletion the page starts at the column that followed.
void DeleteColumn(Surroundings& around, ListPage& page);

/// Deletes the list after a question, without a backup.
void DeleteList(Surroundings& around);

/// Shows the window's keys.
void ShowListKeys(Boxes& boxes);

}  // namespace karvenis
