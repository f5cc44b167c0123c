// The linker leads the program's calls of these functions here (see tests/CMakeLists.txt).
#include "doubles/SystemCalls.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstddef>

namespace karvenis {

SystemCallHooks& systemCallHooks() {
  static SystemCallHooks hooks;
  return hooks;
}

namespace {

using Kind = SystemCall::Kind;

/// Asks the hook, then the system; `real` makes the call.
template <typename Real>
auto through(SystemCall call, Real real) -> decltype(real()) {
  const SystemCallHooks& hooks = systemCallHooks();
  if (hooks.before) {
    if (const int error = hooks.before(call); error != 0) {
      errno = error;
      return -1;
    }
  }
  const auto result = real();
  if (hooks.done && result >= 0) {
    if (call.kind == Kind::create) call.file = static_cast<int>(result);
    hooks.done(call);
  }
  return result;
}

/// The bytes of a write that the hook lets through; -1 if the disk is full.
ssize_t fitting(const SystemCall& call, std::size_t count) {
  const SystemCallHooks& hooks = systemCallHooks();
  const std::size_t room = hooks.room ? std::min(hooks.room(call), count) : count;
  if (room > 0 || count == 0) return static_cast<ssize_t>(room);
  errno = ENOSPC;
  return -1;
}

}  // namespace
}  // namespace karvenis

using karvenis::fitting;
using karvenis::Kind;
using karvenis::SystemCall;
using karvenis::through;

// NOLINTBEGIN(bugprone-reserved-identifier): the names are the linker's.
extern "C" {

int __real_open(const char* path, int flags, mode_t mode);
ssize_t __real_pwrite(int file, const void* bytes, std::size_t count, off_t offset);
int __real_ftruncate(int file, off_t length);
int __real_fchmod(int file, mode_t mode);
int __real_fsync(int file);
int __real_rename(const char* from, const char* to);
int __real_unlink(const char* name);

int __wrap_open(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
  va_end(rest);
  if ((flags & O_CREAT) == 0) return __real_open(path, flags, mode);
  return through({.kind = Kind::create, .name = path},
                 [&] { return __real_open(path, flags, mode); });
}

ssize_t __wrap_pwrite(int file, const void* bytes, std::size_t count, off_t offset) {
  SystemCall call{.kind = Kind::write,
                  .file = file,
                  .bytes = std::string(static_cast<const char*>(bytes), count),
                  .offset = offset};
  const ssize_t fits = fitting(call, count);
  if (fits < 0) return -1;
  call.bytes.resize(static_cast<std::size_t>(fits));
  return through(
      call, [&] { return __real_pwrite(file, bytes, static_cast<std::size_t>(fits), offset); });
}

int __wrap_ftruncate(int file, off_t length) {
  return through({.kind = Kind::shorten, .file = file, .offset = length},
                 [&] { return __real_ftruncate(file, length); });
}

int __wrap_fchmod(int file, mode_t mode) {
  return through({.kind = Kind::mode, .file = file}, [&] { return __real_fchmod(file, mode); });
}

int __wrap_fsync(int file) {
  return through({.kind = Kind::sync, .file = file}, [&] { return __real_fsync(file); });
}

int __wrap_rename(const char* from, const char* to) {
  return through({.kind = Kind::rename, .name = from, .to = to},
                 [&] { return __real_rename(from, to); });
}

int __wrap_unlink(const char* name) {
  return through({.kind = Kind::unlink, .name = name}, [&] { return __real_unlink(name); });
}
}
// NOLINTEND(bugprone-reserved-identifier)
