#pragma once

#include "core/ListPage.h"
#include "core/Surroundings.h"
#include "platform/TextSurface.h"
#include "platform/TitleBar.h"

namespace karvenis {

/// The combination list window's redraw and its commands on the list.

/// Shows the page that `page` starts at (corrected if the list is shorter) and its number in the
/// title. Without a list nothing changes; if the list is empty, the user is warned. Throws
/// RunTimeError.
void ShowPage(Surroundings& around, ListPage& page, TextSurface& surface, TitleBar& title);

/// Whether there is a list to show; if not, the user is warned.
[[nodiscard]] bool findList(Surroundings& around);

/// Opens the dialog that writes or prints the list, if the list holds a whole record.
void openListing(Surroundings& around);

/// Copies the list over the random column file; if that exists, after a question. Returns false if
/// the user said No. Throws RunTimeError.
[[nodiscard]] bool copyToRandomColumns(Surroundings& around);

/// Asks for a column's number and deletes that column; the list as it was goes to its backup. The
/// number becomes the page's start even if there is no such column; after a deletion the page
/// starts at the column that followed it. Throws RunTimeError; the list is then as it was.
void DeleteColumn(Surroundings& around, ListPage& page);

/// Deletes the list after a question, without a backup. Throws RunTimeError.
void deleteList(Surroundings& around);

/// Shows the window's keys.
void showListKeys(Boxes& boxes);

}  // namespace karvenis
