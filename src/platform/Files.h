#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace karvenis {

/// One open file. Closing twice is harmless; a file that is destroyed open is closed without a
/// word, so whoever wrote to it closes it himself to hear of a late failure.
class File {
 public:
  virtual ~File() = default;
  /// Reads from byte `offset` (from 0); returns how many bytes came, fewer than asked only at the
  /// file's end. Throws RunTimeError(read).
  virtual std::size_t read(std::uint64_t offset, std::span<std::byte> into) = 0;
  /// Writes all of `bytes` at byte `offset`; a gap that this leaves reads as 0. Throws (write), and
  /// then the file holds what it held before, as far as the disk lets it be put back.
  virtual void write(std::uint64_t offset, std::span<const std::byte> bytes) = 0;
  /// Length in bytes. Throws (read).
  virtual std::uint64_t length() = 0;
  /// Returns when everything written, and the name of a file just created, is on disk.
  /// Throws (write).
  virtual void sync() = 0;
  /// Throws (write) when bytes written earlier are lost.
  virtual void close() = 0;
};

/// The door to the files of the current directory. Names are plain file names.
class Files {
 public:
  virtual ~Files() = default;
  /// Opens for random access, creating an empty file where there is none; a file that may only be
  /// read opens too and fails at the first write. Throws RunTimeError(open).
  virtual std::unique_ptr<File> open(const std::string& name) = 0;
  /// Whether a regular file of exactly this name is there.
  virtual bool exists(const std::string& name) = 0;
  /// Length in bytes of an existing file. Throws (read).
  virtual std::uint64_t length(const std::string& name) = 0;
  /// Makes `to` a copy of `from`. `to` holds its old or its new bytes at every moment and, on
  /// return, its new bytes on disk. Throws (copy).
  virtual void copy(const std::string& from, const std::string& to) = 0;
  /// Throws (remove), also when there is no such file.
  virtual void remove(const std::string& name) = 0;
  /// The same for a file that nobody misses: the disk is not waited for, so that a power failure
  /// may bring it back.
  virtual void discard(const std::string& name) { remove(name); }
  /// Gives `from` the name `to` in one step, replacing an old `to`; on return it is on disk. Throws
  /// (rename).
  virtual void rename(const std::string& from, const std::string& to) = 0;
  /// The current directory's path, for showing.
  virtual std::string currentFolder() = 0;
};

/// Length in bytes of `name`; 0 where there is no such file. Throws (read).
inline std::uint64_t lengthOrNone(Files& files, const std::string& name) {
  return files.exists(name) ? files.length(name) : 0;
}

}  // namespace karvenis
