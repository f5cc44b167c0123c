#pragma once

#include <cstdint>

#include "core/BallSet.h"
#include "core/Column.h"
#include "core/ColumnRecord.h"

namespace karvenis {

/// What lives as long as the program and belongs to no window. All of it is 0 or empty at first.
struct SharedState {
  /// The balls that a column is drawn from. An empty bag means that the user has chosen none: a
  /// draw then takes all balls.
  BallSet<ballsInAll> Bag;
  /// The balls that every drawn column holds, in its first positions before it is sorted.
  BallSet<mostBankos> Banko;
  /// The drawn column: what the main window shows and F1 saves.
  Column Drawn{};
  /// The buffer through which every column record is read and written, and the number of the column
  /// file that was opened last (0: none is open). ColumnFile alone uses them.
  ColumnRecord Record;
  std::int16_t FileNo = 0;
};

}  // namespace karvenis
