#pragma once

#include <sys/types.h>

#include <functional>
#include <string>
#include <vector>

namespace karvenis {

/// A call that changes files, as the system was asked for it.
struct SystemCall {
  enum class Kind { create, write, shorten, mode, sync, rename, unlink } kind;
  int file = -1;        ///< descriptor; of create the new one
  std::string name{};   ///< of create, rename (the old one) and unlink
  std::string to{};     ///< the new name of a rename
  std::string bytes{};  ///< of write
  off_t offset = 0;     ///< of write; the new length of shorten
};

/// What stands between the program and the system in the test program. `before` hears of every call
/// that changes files and returns 0, or the error that it fails with; `room` tells how many bytes
/// of a write the disk still takes, if these are fewer than it was asked to take; `done` hears of
/// every call that succeeded.
struct SystemCallHooks {
  std::function<int(const SystemCall& call)> before{};
  std::function<std::size_t(const SystemCall& call)> room{};
  std::function<void(const SystemCall& call)> done{};
};

/// The hooks in force; empty ones let everything pass.
SystemCallHooks& systemCallHooks();

}  // namespace karvenis
