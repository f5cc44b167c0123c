#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <span>

#include "core/Column.h"
#include "core/ColumnFile.h"
#include "core/ColumnRecord.h"

namespace karvenis {

/// What lives for the whole run and is owned by no window. All of it starts as 0.
struct SharedState {
  /// Element 0 is the number of balls in the bag, 0..49; elements 1..count are the balls. A count
  /// of 0 means that no bag was chosen, which a draw takes as all balls.
  std::array<std::int16_t, ballsInAll + 1> Bag{};
  /// Element 0 is the number of bankos, 0..5; elements 1..count are the banko balls.
  std::array<std::int16_t, mostBankos + 1> Banko{};
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

  /// The balls in the bag, and the bankos: elements 1..count, never past the array's end.
  std::span<const std::int16_t> balls() const { return chosen(Bag); }
  std::span<const std::int16_t> bankos() const { return chosen(Banko); }

 private:
  static std::span<const std::int16_t> chosen(std::span<const std::int16_t> set) {
    const auto most = static_cast<std::int16_t>(set.size() - 1);
    return set.subspan(1, static_cast<std::size_t>(std::clamp<std::int16_t>(set[0], 0, most)));
  }
};

}  // namespace karvenis
