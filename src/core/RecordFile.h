#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "platform/Files.h"

namespace karvenis {

/// How many records of `recordLength` bytes are in `bytes` bytes, rounded to the nearest, halves to
/// even. Throws RunTimeError(overflow) if that is beyond 32 bits.
[[nodiscard]] std::int32_t recordCount(std::uint64_t bytes, std::size_t recordLength);

/// A file of fixed-length records, numbered from 1, open for reading and writing. Bytes past the
/// end read as 0, and so do gaps. The block around the record that was used last is kept in memory,
/// so that a pass over the file needs a system call for each block and not for each record.
class RecordFile {
 public:
  /// Opens `name`, and creates it if it is missing. `recordLength` is in bytes, from 1 to 65536.
  /// Throws RunTimeError(open, read).
  RecordFile(Files& files, const std::string& name, std::size_t recordLength);
  /// Closes the file if it is still open, and reports no failure.
  ~RecordFile();
  RecordFile(const RecordFile&) = delete;
  RecordFile& operator=(const RecordFile&) = delete;

  [[nodiscard]] const std::string& name() const { return name_; }
  /// Length in bytes, what has been written and is still in memory included.
  [[nodiscard]] std::uint64_t length() const { return length_; }
  /// How many records the file has, as recordCount() counts them.
  [[nodiscard]] std::int32_t count() const { return recordCount(length_, recordLength_); }
  /// Whether all bytes of record `number` (from 1) are in the file.
  [[nodiscard]] bool holdsWhole(std::int64_t number) const {
    return std::cmp_less_equal(number, length_ / recordLength_);
  }

  /// Reads record `number` (from 1) into `record`. Preconditions: `record` is recordLength bytes
  /// long, and the file is open. Throws RunTimeError(read), also for a number below 1, and (write)
  /// if bytes written earlier do not go into the file.
  void read(std::int64_t number, std::span<std::byte> record);
  /// Writes `record` as record `number` (from 1); it may reach the disk as late as close(). The
  /// same preconditions. Throws RunTimeError(read, write).
  void write(std::int64_t number, std::span<const std::byte> record);
  /// Returns when everything written is on disk and the file is closed. Afterwards only close() or
  /// the destructor may follow, and neither touches the file again. Throws RunTimeError(write).
  void close();

 private:
  static constexpr std::size_t blockSize = std::size_t{1} << 16;

  std::size_t placeInBlock(std::int64_t number);
  void moveBlock(std::uint64_t offset);
  void flush(File& file);

  std::string name_;
  std::size_t recordLength_;
  std::unique_ptr<File> file_;
  std::uint64_t length_ = 0;
  std::uint64_t blockStart_ = 0;  // where the block begins in the file, in bytes
  std::vector<std::byte> block_;  // empty until the first access
  std::size_t dirtyFrom_ = 0;     // the bytes of the block that are not in the file yet
  std::size_t dirtyTo_ = 0;
  bool written_ = false;  // something has been written since the opening
};

}  // namespace karvenis
