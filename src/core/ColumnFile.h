#pragma once

#include <string>

#include "core/ColumnRecord.h"
#include "core/RecordFile.h"

namespace karvenis {

/// The column files of the current directory.
inline constexpr char randomColumns[] = "KARVENIS.RND";    ///< the columns the user kept
inline constexpr char combinationList[] = "KARVENIS.LST";  ///< the combination list
inline constexpr char listBackup[] = "KARVENIS.OLD";  ///< the combination list before its change

/// Their scratch files; each exists only while a command works on a list and takes its place then.
inline constexpr char tmpScratch[] = "KARVENIS.TMP";  ///< of the generator and the filters
inline constexpr char yndScratch[] = "KARVENIS.YND";  ///< of the kept columns' append and deletion
/// Of the combination list's deletion. One that an interrupted run left behind is written over and
/// not cut off first.
inline constexpr char ylsScratch[] = "KARVENIS.YLS";

/// An open column file. Records pass through the column record buffer it was made with.
class ColumnFile {
 public:
  /// Opens `name`, creating it where it is missing. Throws RunTimeError(open).
  ColumnFile(Files& files, const std::string& name, ColumnRecord& buffer)
      : buffer_(buffer), file_(files, name, ColumnRecord::size) {}

  std::uint64_t length() const { return file_.length(); }
  /// Records in the file: length / 16, halves to even.
  std::int32_t count() const { return file_.count(); }
  /// Reads record `number` (from 1) into the buffer; past the end it is all 0. Throws
  /// RunTimeError(read).
  void get(std::int64_t number);
  /// Writes the buffer as record `number`. Throws RunTimeError(write).
  void put(std::int64_t number);
  /// Returns with everything on disk and the file closed. Throws RunTimeError(write).
  void close() { file_.close(); }

 private:
  ColumnRecord& buffer_;
  RecordFile file_;
};

/// Records of `name`, which must exist. Throws RunTimeError(read, overflow).
std::int32_t columnCount(Files& files, const std::string& name);

/// The same; 0 where there is no such file.
std::int32_t columnCountOrNone(Files& files, const std::string& name);

/// Whether `name` exists and is at least one record (16 bytes) long. Throws RunTimeError(read).
bool holdsColumns(Files& files, const std::string& name);

/// Copies the records 1..`count` of `from`, without record `leftOut`, to the records 1, 2, ... of
/// `to`, words included. Both must share one buffer; neither is closed.
void copyColumnsWithout(std::int32_t leftOut, std::int32_t count, ColumnFile& from, ColumnFile& to);

/// Starts an empty scratch file; what an interrupted run left in it is gone then. Neither it nor
/// its name is waited for on disk: both are when it takes its target's place.
/// Throws RunTimeError(remove, open).
void startScratch(Files& files, const std::string& scratch);

/// Starts a scratch file as a copy of the combination list; where there is no list, as an empty
/// one. Throws RunTimeError.
void copyListTo(Files& files, const std::string& scratch);

/// Copies the combination list, where there is one, over its backup. Throws RunTimeError(copy).
void backUpList(Files& files);

}  // namespace karvenis
