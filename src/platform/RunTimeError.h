#pragma once

#include <stdexcept>
#include <string>

namespace karvenis {

/// What went wrong when the program cannot go on.
enum class Fault {
  open,      ///< a file could not be opened or created
  read,      ///< a file could not be read
  write,     ///< bytes could not be written or put on disk
  copy,      ///< a file could not be copied over another
  remove,    ///< a file could not be deleted
  rename,    ///< a file could not take another name
  damaged,   ///< a file holds a column whose sum outgrows 16 bits
  overflow,  ///< a number outgrew its 16 or 32 bits
  printer,   ///< the printer refused
};

/// An unexpected fault, which ends the program with one box (see Forms). A refusal that the user
/// can meet in normal work is a return value and never a RunTimeError. In comments,
/// RunTimeError(read) means one whose fault() is Fault::read.
class RunTimeError : public std::runtime_error {
 public:
  /// `subject` is the file concerned, or the number that overflowed; `reason` says why, in Turkish.
  RunTimeError(Fault fault, std::string subject, const std::string& reason)
      : std::runtime_error(subject + ": " + reason),
        fault_(fault),
        subject_(std::move(subject)),
        reason_(reason) {}

  /// What failed, on what, and why: the parts that describe() makes a sentence of.
  Fault fault() const { return fault_; }
  const std::string& subject() const { return subject_; }
  const std::string& reason() const { return reason_; }

 private:
  Fault fault_;
  std::string subject_;
  std::string reason_;
};

/// The Turkish text of the closing box for `error`: which file or number, what failed, and why.
/// Character 13 in it is a line break.
[[nodiscard]] std::string describe(const RunTimeError& error);

}  // namespace karvenis
