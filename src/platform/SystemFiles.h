#pragma once

#include "platform/Files.h"

namespace karvenis {

/// The files of the process's current directory. Links are followed: a file behind a link is
/// replaced where it is, and the link stays.
class SystemFiles final : public Files {
 public:
  /// Makes the process ignore the signal of a size limit (`ulimit -f`), so that a write that
  /// reaches the limit fails with an error instead of ending the program.
  SystemFiles();
  std::unique_ptr<File> open(const std::string& name) override;
  bool exists(const std::string& name) override;
  std::uint64_t length(const std::string& name) override;
  void refuseProtected(const std::string& name) override;
  void copy(const std::string& from, const std::string& to) override;
  void remove(const std::string& name) override;
  void rename(const std::string& from, const std::string& to) override;
  std::string currentFolder() override;
};

}  // namespace karvenis
