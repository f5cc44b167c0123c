#pragma once

#include <string>

#include "core/ColumnRecord.h"
#include "core/RecordFile.h"
#include "core/SharedState.h"

namespace karvenis {

/// The column files of the current directory.
inline constexpr char randomColumns[] = "KARVENIS.RND";    ///< the columns the user kept
inline constexpr char combinationList[] = "KARVENIS.LST";  ///< the combination list
inline constexpr char listBackup[] = "KARVENIS.OLD";  ///< the combination list before its change

/// Their scratch files. Each exists only while a command writes a new list, and then takes the old
/// list's place.
inline constexpr char tmpScratch[] = "KARVENIS.TMP";  ///< of the generator and the filters
inline constexpr char yndScratch[] = "KARVENIS.YND";  ///< of the kept columns' append and deletion
inline constexpr char ylsScratch[] = "KARVENIS.YLS";  ///< of the combination list's deletion

/// An open column file: records are read and written as values, each by way of the one record
/// buffer of the shared state. Takes the next file number while it lives.
class ColumnFile {
 public:
  /// Opens `name`, and creates it if it is missing. Throws RunTimeError(open).
  ColumnFile(SharedState& state, Files& files, const std::string& name);
  /// Closes; a failure is not reported. After writing, call close() first.
  ~ColumnFile();
  ColumnFile(const ColumnFile&) = delete;
  ColumnFile& operator=(const ColumnFile&) = delete;

  /// Records in the file: its length / 16, halves to even. Throws RunTimeError(overflow) if that is
  /// beyond 32 bits.
  [[nodiscard]] std::int32_t count() const { return file_.count(); }
  /// Whether all bytes of record `number` (from 1) are in the file.
  [[nodiscard]] bool holdsWhole(std::int64_t number) const { return file_.holdsWhole(number); }
  /// Record `number` (from 1); bytes past the end are 0. Throws RunTimeError(read).
  [[nodiscard]] ColumnRecord at(std::int64_t number);
  /// Writes `record` as record `number` (from 1); a gap before it reads as 0. Throws
  /// RunTimeError(write).
  void put(std::int64_t number, const ColumnRecord& record);
  /// Returns when everything is on disk and the file is closed. The file is not used any more then.
  /// Throws RunTimeError(write).
  void close() { file_.close(); }

 private:
  SharedState& state_;
  RecordFile file_;
};

/// Records of `name`, which must exist. Throws RunTimeError(read, overflow).
[[nodiscard]] std::int32_t columnCount(Files& files, const std::string& name);

/// The same; 0 if there is no such file.
[[nodiscard]] std::int32_t columnCountOrNone(Files& files, const std::string& name);

/// Whether `name` exists and is at least one record (16 bytes) long. Throws RunTimeError(read).
[[nodiscard]] bool holdsColumns(Files& files, const std::string& name);

}  // namespace karvenis
