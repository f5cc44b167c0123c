#pragma once

#include <cstdint>
#include <span>

#include "core/BallSet.h"
#include "core/RecordFile.h"

namespace karvenis {

/// KARVENIS.DAT holds 16-bit words, little-endian and numbered from 1: the bag count, room for 49
/// balls (0 behind the last), the banko count, the bankos.
inline constexpr char bagFileName[] = "KARVENIS.DAT";
inline constexpr std::int64_t bagWordSize = 2;  // bytes
inline constexpr std::int64_t bagCountWord = 1;
inline constexpr std::int64_t bankoCountWord = bagCountWord + ballsInAll + 1;
static_assert(bankoCountWord == 51);

/// Bytes in the file; 0 if there is none. Wide and signed, so that no count read from the file can
/// overflow a comparison with it. Throws RunTimeError(read).
[[nodiscard]] std::int64_t bagFileLength(Files& files);

/// Whether a file of `length` bytes holds the banko count, and `count` bankos behind it. A negative
/// count needs less.
[[nodiscard]] constexpr bool holdsBankos(std::int64_t length, std::int64_t count) {
  return length >= bagWordSize * (bankoCountWord + count);
}

/// The open bag file.
class BagFile {
 public:
  /// Opens the file, creating it if it is missing. Throws RunTimeError(open, read).
  explicit BagFile(Files& files) : file_(files, bagFileName, bagWordSize) {}

  /// Bytes in the file, with what has been written.
  [[nodiscard]] std::int64_t length() const { return static_cast<std::int64_t>(file_.length()); }
  /// The counts as the file holds them; 0 past its end. Throw RunTimeError(read).
  [[nodiscard]] std::int16_t bagCount() { return get(bagCountWord); }
  [[nodiscard]] std::int16_t bankoCount() { return get(bankoCountWord); }
  /// The first `count` balls of the bag, up to the first word that is no ball; none for a count
  /// outside 1..49. Throws RunTimeError(read).
  [[nodiscard]] BallSet<ballsInAll> bag(std::int16_t count);
  /// The first `count` bankos as the file holds them; none for a count outside 1..5. Throws
  /// RunTimeError(read).
  [[nodiscard]] BallSet<mostBankos> bankos(std::int16_t count);

  /// Writes the bag's part: the count, the balls, and 0 for the rest of the 49. Throws
  /// RunTimeError(read, write).
  void write(const BallSet<ballsInAll>& bag);
  /// Writes the banko count and the bankos; words behind them stay. Throws
  /// RunTimeError(read, write).
  void write(const BallSet<mostBankos>& bankos);
  /// Returns when everything is on disk and the file is closed. Throws RunTimeError(write).
  void close() { file_.close(); }

 private:
  std::int16_t get(std::int64_t word);
  void put(std::int64_t word, std::int16_t value);
  void putCounted(std::int64_t word, std::span<const std::int16_t> balls);

  RecordFile file_;
};

}  // namespace karvenis
