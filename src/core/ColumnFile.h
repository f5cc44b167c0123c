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

/// Their scratch files. Each exists only while a command writes a new list into it; then it takes
/// the place of the old list.
inline constexpr char tmpScratch[] = "KARVENIS.TMP";  ///< of the generator and the filters
inline constexpr char yndScratch[] = "KARVENIS.YND";  ///< of the kept columns' append and deletion
inline constexpr char ylsScratch[] = "KARVENIS.YLS";  ///< of the combination list's deletion

/// An open column file: records are read and written as values, each through the one record buffer
/// of the shared state. Holds the next file number as long as it lives.
class ColumnFile {
 public:
  /// Opens `name`, and creates it if it is missing. `state` and `files` must outlive this. Throws
  /// RunTimeError(open, read).
  ColumnFile(SharedState& state, Files& files, const std::string& name);
  /// Closes the file if it is still open, and reports no failure.
  ~ColumnFile();
  ColumnFile(const ColumnFile&) = delete;
  ColumnFile& operator=(const ColumnFile&) = delete;

  [[nodiscard]] const std::string& name() const { return file_.name(); }
  /// How many records the file has: its length / 16, rounded to the nearest, halves to even. Throws
  /// RunTimeError(overflow) if that is beyond 32 bits.
  [[nodiscard]] std::int32_t count() const { return file_.count(); }
  /// Whether all bytes of record `number` (from 1) are in the file.
  [[nodiscard]] bool holdsWhole(std::int64_t number) const { return file_.holdsWhole(number); }
  /// Returns record `number` (from 1); bytes past the end of the file are 0. Precondition: the file
  /// is open. Throws RunTimeError(read), also for a number below 1, and (write) if bytes written
  /// earlier do not go into the file.
  [[nodiscard]] ColumnRecord at(std::int64_t number);
  /// Writes `record` as record `number` (from 1); a gap before it reads as 0. Precondition: the
  /// file is open. It may reach the disk as late as close(). Throws RunTimeError(read, write).
  void put(std::int64_t number, const ColumnRecord& record);
  /// Returns when everything written is on disk and the file is closed. Afterwards only close() or
  /// the destructor may follow, and neither touches the file again. Throws RunTimeError(write).
  void close() { file_.close(); }

 private:
  SharedState& state_;
  RecordFile file_;
};

/// How many records the file `name` has, counted as ColumnFile::count() does. Precondition: it
/// exists. Throws RunTimeError(read, overflow).
[[nodiscard]] std::int32_t columnCount(Files& files, const std::string& name);

/// The same, and 0 if there is no such file. Throws RunTimeError(read, overflow).
[[nodiscard]] std::int32_t columnCountOrNone(Files& files, const std::string& name);

/// Whether `name` exists and is at least one record (16 bytes) long. Throws RunTimeError(read).
[[nodiscard]] bool holdsColumns(Files& files, const std::string& name);

}  // namespace karvenis
