#pragma once

#include <cstdint>

#include "core/BallSet.h"
#include "core/Column.h"
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
  /// The buffer through which every column record is read and written, and the number of the column
  /// file that was opened last (0: none is open). ColumnFile keeps both; nobody else touches them.
  ColumnRecord Record;
  std::int16_t FileNo = 0;
};

}  // namespace karvenis
