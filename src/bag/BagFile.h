#pragma once

#include <cstdint>

#include "core/RecordFile.h"
#include "core/SharedState.h"
#include "core/Surroundings.h"

namespace karvenis {

/// The file that keeps the bag and the bankos between runs. Its records are 16-bit words, numbered
/// from 1: the bag's count, up to 49 balls (0 where there are fewer), the banko count, the bankos.
inline constexpr char bagFileName[] = "KARVENIS.DAT";
inline constexpr int bagCountRecord = 1;
inline constexpr int bankoCountRecord = bagCountRecord + ballsInAll + 1;
static_assert(bankoCountRecord == 51);

/// What the loads say of a file that does not hold what its counts claim.
inline constexpr char bagFileBroken[] = "'KARVENIS.DAT' dosyası bozuk !";
/// What the saves say when they are done.
inline constexpr char bagFileSaved[] = "Seçilen toplar KARVENIS.DAT dosyasına kayıtlandı...";

/// The open bag file.
class BagFile {
 public:
  static constexpr std::size_t recordLength = 2;

  /// Opens the file, creating it where it is missing. Throws RunTimeError(open).
  explicit BagFile(Files& files) : file_(files, bagFileName, recordLength) {}

  /// Bytes in the file; wide and signed, so that no count read from the file can overflow a
  /// comparison with it.
  std::int64_t length() const { return static_cast<std::int64_t>(file_.length()); }
  /// Word `record` (from 1); past the end it is 0. Throws RunTimeError(read).
  std::int16_t get(std::int64_t record);
  /// Throws RunTimeError(write).
  void put(std::int64_t record, std::int16_t word);
  /// Reads `count` (1..49) balls into the bag; the first word that is no ball ends it early.
  void readBag(SharedState& state, std::int16_t count);
  /// Reads `count` bankos as they stand; a count outside 1..5 leaves none.
  void readBanko(SharedState& state, std::int16_t count);
  /// Writes `balls` (49 at most) as the bag; the rest of the bag's part becomes 0. Throws
  /// RunTimeError(write).
  void writeBag(std::span<const std::int16_t> balls);
  /// Writes `balls` (5 at most) as the bankos; words behind them stay. Throws RunTimeError(write).
  void writeBanko(std::span<const std::int16_t> balls);
  /// Whether the file is long enough for `count` bankos.
  bool holdsBanko(std::int16_t count) const;
  /// Returns with everything on disk and the file closed. Throws RunTimeError(write).
  void close() { file_.close(); }

 private:
  void writeCounted(std::int64_t record, std::span<const std::int16_t> balls);

  RecordFile file_;
};

/// Whether the file is there and reaches the banko count.
bool reachesBanko(Files& files);

/// Takes the bag from the file, without its bankos. A file that holds no whole bag leaves the bag
/// as it is; a count of 50 or more empties it. Beeps: twice where a bag was found, else once.
void LoadBagFromFile(Surroundings& around);

/// Takes the bankos from the file and removes them from the bag. A file that does not hold them all
/// leaves them as they are; a count outside 1..5 leaves none. Beeps once.
void LoadBankoFromFile(Surroundings& around);

/// "Torbayı KARVENIS.DAT dosyasından yükle (F6)": asks, then loads; silent without a file.
void askAndLoadBag(Surroundings& around);

/// "Bankoyu KARVENIS.DAT dosyasından yükle (F8)": asks, then loads; silent where the file does not
/// reach the banko count.
void askAndLoadBanko(Surroundings& around);

}  // namespace karvenis
