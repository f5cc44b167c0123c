#pragma once

#include "core/Surroundings.h"
#include "platform/TitleBar.h"

namespace karvenis {

/// The main window's four commands on the random column file. `title` is the main window's.

/// Appends the drawn column and shows its record number in the title. Does nothing if no column has
/// been drawn, and only beeps if the file is full. The record is ascending: with `sorted` the draw
/// has sorted it already, else the drawn column itself is sorted here; the window goes on showing
/// it as it was drawn. Throws RunTimeError.
void saveRndColumn(Surroundings& around, TitleBar& title, bool sorted);

/// Opens the list window if the file holds at least one column; else warns.
void showRndList(Surroundings& around, TitleBar& title);

/// Makes the file, after a question, the combination list; the old combination list goes to its
/// backup. An empty file is deleted without a question. A step that fails is skipped and the next
/// one runs.
void changeRndFile(Surroundings& around, TitleBar& title);

/// Deletes the file after a question and confirms that. A step that fails is skipped and the next
/// one runs.
void deleteRndFile(Surroundings& around, TitleBar& title);

// Steps that the list window's commands take too.

/// Beeps; deletes the file after a question, and goes on if that fails. Returns false if there is
/// no file or the user said No.
bool askAndDeleteRndFile(Surroundings& around);

/// Beeps, and says in a box how many columns the combination list holds now. Throws
/// RunTimeError(read) if there is none.
void reportNewList(Surroundings& around);

}  // namespace karvenis
