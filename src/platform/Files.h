#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace karvenis {

/// One open file. A file that is destroyed while it is open is closed, but a failure is not
/// reported then: after writing, call close(). Only close() may follow close(), and does nothing.
class File {
 public:
  virtual ~File() = default;
  /// Reads from byte `offset` (from 0). Returns how many bytes were read: all that were asked for,
  /// or fewer at the file's end. Throws RunTimeError(read).
  [[nodiscard]] virtual std::size_t read(std::uint64_t offset, std::span<std::byte> into) = 0;
  /// Writes all of `bytes` at byte `offset`; a gap before them reads as 0. Throws
  /// RunTimeError(write); the file then holds what it held before, if the disk allows that to be
  /// put back.
  virtual void write(std::uint64_t offset, std::span<const std::byte> bytes) = 0;
  /// Length in bytes. Throws RunTimeError(read).
  [[nodiscard]] virtual std::uint64_t length() = 0;
  /// Gives this file the rights of the file `name`, which exists: its mode, and its owner and group
  /// as far as the user may set them. Throws RunTimeError(write).
  virtual void takeRightsOf(const std::string& name) = 0;
  /// Returns when everything written, and the name of a file just created, is on disk.
  /// Throws RunTimeError(write).
  virtual void sync() = 0;
  /// Closes the file. Throws RunTimeError(write) if bytes written earlier are lost.
  virtual void close() = 0;
};

/// The door to the files of the current directory. Names are plain file names. A file that the user
/// may not write is protected: it is neither written nor replaced nor removed, even if its folder
/// would allow that.
class Files {
 public:
  virtual ~Files() = default;
  /// Opens for random access, and creates an empty file if there is none. A protected file opens
  /// too, for reading; the first write fails. Throws RunTimeError(open).
  [[nodiscard]] virtual std::unique_ptr<File> open(const std::string& name) = 0;
  /// Whether there is a regular file of exactly this name.
  [[nodiscard]] virtual bool exists(const std::string& name) = 0;
  /// Length in bytes of the file `name`, which exists. Throws RunTimeError(read).
  [[nodiscard]] virtual std::uint64_t length(const std::string& name) = 0;
  /// Throws RunTimeError(write) if the file `name` is protected; does nothing if there is none.
  /// Called before work whose result would be refused in the end.
  virtual void refuseProtected(const std::string& name) = 0;
  /// Makes `to` a copy of `from`, which exists; an old `to` keeps its rights. At every moment `to`
  /// holds either its old or its new bytes; when this returns, the new ones are on disk. Throws
  /// RunTimeError(copy), also if `to` is protected.
  virtual void copy(const std::string& from, const std::string& to) = 0;
  /// Removes the file; that is on disk when this returns. Throws RunTimeError(remove), also if
  /// there is no such file or it is protected.
  virtual void remove(const std::string& name) = 0;
  /// Renames the file `from` to `to` in one step; an old `to` is replaced. That is on disk when
  /// this returns. Throws RunTimeError(rename), also if `to` is protected.
  virtual void rename(const std::string& from, const std::string& to) = 0;
  /// The path of the current directory, to be shown to the user.
  [[nodiscard]] virtual std::string currentFolder() = 0;
};

/// Length in bytes of `name`; 0 if there is no such file. Throws RunTimeError(read).
[[nodiscard]] inline std::uint64_t lengthOrNone(Files& files, const std::string& name) {
  return files.exists(name) ? files.length(name) : 0;
}

}  // namespace karvenis
