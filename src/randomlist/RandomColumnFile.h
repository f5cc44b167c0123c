#pragma once

#include "core/Surroundings.h"
#include "platform/TitleBar.h"

namespace karvenis {

/// The main window's four commands on the random column file. `title` is the main window's.

/// Appends the drawn column; its record number stays in the title. Does nothing while the draw is
/// not complete, and only beeps where the file is full. The record is ascending whatever `sorted`
/// is: where the user did not ask for sorted numbers, the drawn column itself is sorted here first
/// (and shown as it was); where he did, the draw has sorted it already.
void SaveRndColumn(Surroundings& around, TitleBar& title, bool sorted);

/// Opens the list window where the file holds at least one column.
void ShowRndList(Surroundings& around, TitleBar& title);

/// Makes the file, after a question, the combination list, whose old bytes go to its backup. An
/// empty file is deleted without a question. A step that fails is skipped and the next one runs.
void ChangeRndFile(Surroundings& around, TitleBar& title);

/// Deletes the file after a question. A step that fails is skipped and the next one runs.
void DeleteRndFile(Surroundings& around, TitleBar& title);

}  // namespace karvenis
