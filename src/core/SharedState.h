#pragma once

#include <optional>

#include "core/BallSet.h"
#include "core/Column.h"
#include "core/ColumnFile.h"
#include "core/ColumnRecord.h"

namespace karvenis {

/// What lives for the whole run and is owned by no window. All of it starts as 0.
struct SharedState {
  /// The balls that a column is drawn from. An empty bag is one that was not chosen; a draw takes
  /// it as all balls.
  BallSet<ballsInAll> Bag;
  /// The balls that every drawn column begins with.
  BallSet<mostBankos> Banko;
  /// The drawn column: what the main window shows and F1 saves.
  Column Drawn{};
  /// The buffer through which every column record is read and written.
  ColumnRecord Record;
  /// The file number that every window opens its column file on; empty while none is open.
  std::optional<ColumnFile> FileNo;
  /// Returns with the file of FileNo, where one is open, on disk and closed. Throws
  /// RunTimeError(write).
  void closeFile() {
    if (!FileNo) return;
    FileNo->close();
    FileNo.reset();
  }
};

}  // namespace karvenis
