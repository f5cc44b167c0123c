#include "platform/SystemFiles.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <tuple>
#include <utility>
#include <vector>

#include "platform/RunTimeError.h"
#include "platform/SystemErrorText.h"

namespace karvenis {
namespace {

[[noreturn]] void fail(Fault fault, const std::string& name, int error = errno) {
  throw RunTimeError(fault, name, systemErrorText(error));
}

/// Calls again as long as a signal interrupted the call.
template <typename Call>
auto uninterrupted(Call call) {
  decltype(call()) result;
  do {
    result = call();
  } while (result < 0 && errno == EINTR);
  return result;
}

/// A file descriptor that closes itself.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  ~Descriptor() { close(); }
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    close();
    number_ = std::exchange(other.number_, -1);
    return *this;
  }

  int get() const { return number_; }
  explicit operator bool() const { return number_ >= 0; }
  int close() { return number_ < 0 ? 0 : ::close(std::exchange(number_, -1)); }

 private:
  int number_;
};

/// Waits until the names in a folder are on disk. Returns whether that succeeded.
bool syncFolder(const std::string& folder = ".") {
  const Descriptor names(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  return names && uninterrupted([&] { return ::fsync(names.get()); }) == 0;
}

std::size_t readAll(int descriptor, std::uint64_t offset, std::span<std::byte> into,
                    const std::string& name) {
  std::size_t done = 0;
  while (done < into.size()) {
    const auto rest = into.subspan(done);
    const auto got = uninterrupted([&] {
      return ::pread(descriptor, rest.data(), rest.size(), static_cast<off_t>(offset + done));
    });
    if (got < 0) fail(Fault::read, name);
    if (got == 0) break;
    done += static_cast<std::size_t>(got);
  }
  return done;
}

void writeAll(int descriptor, std::uint64_t offset, std::span<const std::byte> bytes,
              const std::string& name) {
  std::size_t done = 0;
  while (done < bytes.size()) {
    const auto rest = bytes.subspan(done);
    const auto put = uninterrupted([&] {
      return ::pwrite(descriptor, rest.data(), rest.size(), static_cast<off_t>(offset + done));
    });
    if (put < 0) fail(Fault::write, name);
    done += static_cast<std::size_t>(put);
  }
}

struct stat statusOf(int descriptor, Fault fault, const std::string& name) {
  struct stat status {};
  if (::fstat(descriptor, &status) != 0) fail(fault, name);
  return status;
}

/// Gives the open file the owner, the group and the mode that `rights` holds. Only the superuser
/// may give a file away, and a group can be set only by its members: if that is refused, the file
/// keeps its own. The mode comes last, since a change of the owner may change it.
void giveRights(int descriptor, const struct stat& rights, Fault fault, const std::string& name) {
  constexpr mode_t modeBits = 07777;
  const struct stat now = statusOf(descriptor, fault, name);
  if (now.st_uid != rights.st_uid) {
    std::ignore = ::fchown(descriptor, rights.st_uid, static_cast<gid_t>(-1));
  }
  if (now.st_gid != rights.st_gid) {
    std::ignore = ::fchown(descriptor, static_cast<uid_t>(-1), rights.st_gid);
  }
  const bool hasMode = ((now.st_mode ^ rights.st_mode) & modeBits) == 0;
  if (!hasMode && ::fchmod(descriptor, rights.st_mode & modeBits) != 0) fail(fault, name);
}

class SystemFile final : public File {
 public:
  SystemFile(Descriptor descriptor, std::string name, bool created)
      : descriptor_(std::move(descriptor)), name_(std::move(name)), created_(created) {}

  std::size_t read(std::uint64_t offset, std::span<std::byte> into) override {
    return readAll(descriptor_.get(), offset, into, name_);
  }
  /// The bytes stand in the file whole or not at all: if only some of them could be written, those
  /// that stood there before are put back, and the file is as long as it was.
  void write(std::uint64_t offset, std::span<const std::byte> bytes) override {
    const std::uint64_t before = length();
    std::vector<std::byte> old(std::min(bytes.size(), before - std::min(before, offset)));
    readAll(descriptor_.get(), offset, old, name_);
    try {
      writeAll(descriptor_.get(), offset, bytes, name_);
    } catch (const RunTimeError&) {
      putBack(offset, old, before);
      throw;
    }
  }
  std::uint64_t length() override {
    return static_cast<std::uint64_t>(statusOf(descriptor_.get(), Fault::read, name_).st_size);
  }
  void takeRightsOf(const std::string& name) override {
    struct stat rights {};
    if (::stat(name.c_str(), &rights) != 0) fail(Fault::write, name);
    giveRights(descriptor_.get(), rights, Fault::write, name_);
  }
  void sync() override {
    if (uninterrupted([&] { return ::fsync(descriptor_.get()); }) != 0) fail(Fault::write, name_);
    if (created_ && !syncFolder()) fail(Fault::write, name_);
    created_ = false;
  }
  void close() override {
    if (descriptor_.close() != 0) fail(Fault::write, name_);
  }

 private:
  /// A failure here is not reported: the failed write is, which led here.
  void putBack(std::uint64_t offset, std::span<const std::byte> old,
               std::uint64_t length) noexcept {
    try {
      writeAll(descriptor_.get(), offset, old, name_);
      if (this->length() <= length) return;
      std::ignore = ::ftruncate(descriptor_.get(), static_cast<off_t>(length));
    } catch (const RunTimeError&) {
    }
  }

  Descriptor descriptor_;
  std::string name_;
  bool created_;
};

/// Never waits: a pipe or a device under the name is refused after the opening, not waited for.
constexpr int openFlags = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;

/// Opens for reading and writing or, if that is not allowed, for reading only.
Descriptor openExisting(const std::string& name) {
  const int both = ::open(name.c_str(), O_RDWR | openFlags);
  if (both >= 0 || (errno != EACCES && errno != EROFS && errno != EPERM)) return Descriptor(both);
  return Descriptor(::open(name.c_str(), O_RDONLY | openFlags));
}

void refuseAllButRegular(const Descriptor& descriptor, Fault fault, const std::string& name) {
  const mode_t mode = statusOf(descriptor.get(), fault, name).st_mode;
  if (S_ISDIR(mode)) fail(fault, name, EISDIR);
  if (!S_ISREG(mode)) fail(fault, name, EINVAL);
}

/// The whole path of what a name stands for; the name itself if there is no such file.
std::string wholePath(const std::string& name) {
  const std::unique_ptr<char, decltype(&std::free)> path(::realpath(name.c_str(), nullptr),
                                                         &std::free);
  return path ? path.get() : name;
}

/// The file that a link of this name stands for; the name itself if it is no link.
std::string behindLinks(const std::string& name) {
  struct stat status {};
  const bool link = ::lstat(name.c_str(), &status) == 0 && S_ISLNK(status.st_mode);
  return link ? wholePath(name) : name;
}

std::string folderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? "." : path.substr(0, slash + 1);
}

/// Creates the file `name`, empty, and locks it until it is closed. A file that an interrupted copy
/// left behind is removed first. Returns no descriptor if another program holds the lock, since it
/// is copying to the same target, or if the file cannot be created; errno then says which.
Descriptor createLocked(const std::string& name) {
  constexpr int flags = O_CLOEXEC | O_NOFOLLOW;
  {
    const Descriptor leftOver(::open(name.c_str(), O_RDONLY | O_NONBLOCK | flags));
    if (leftOver && ::flock(leftOver.get(), LOCK_EX | LOCK_NB) != 0) return Descriptor();
    ::unlink(name.c_str());
  }
  Descriptor created(::open(name.c_str(), O_RDWR | O_CREAT | O_EXCL | flags, 0600));
  if (created && ::flock(created.get(), LOCK_EX | LOCK_NB) != 0) return Descriptor();
  return created;
}

void failIfProtected(Fault fault, const std::string& name) {
  const bool writable = ::faccessat(AT_FDCWD, name.c_str(), W_OK, AT_EACCESS) == 0;
  if (!writable && errno != ENOENT) fail(fault, name);
}

/// The file that a copy is written to: it has a name of its own beside the target, and takes the
/// target's name when it is whole and on disk. If that does not happen, it is removed; one that a
/// killed process leaves is removed by the next copy to the same target.
class Replacement {
 public:
  explicit Replacement(const std::string& target)
      : target_(behindLinks(target)), name_(target_ + "~"), descriptor_(createLocked(name_)) {
    if (!descriptor_) fail(Fault::copy, target_);
  }
  ~Replacement() {
    // It is ours: createLocked() leaves another program's file alone.
    if (!done_) ::unlink(name_.c_str());
  }
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;

  int descriptor() const { return descriptor_.get(); }

  void takePlace(const struct stat& rights) {
    giveRights(descriptor_.get(), rights, Fault::copy, target_);
    if (uninterrupted([&] { return ::fsync(descriptor_.get()); }) != 0 ||
        descriptor_.close() != 0 || ::rename(name_.c_str(), target_.c_str()) != 0) {
      fail(Fault::copy, target_);
    }
    done_ = true;
    if (!syncFolder(folderOf(target_))) fail(Fault::copy, target_);
  }

 private:
  std::string target_;
  std::string name_;
  Descriptor descriptor_;
  bool done_ = false;
};

}  // namespace

SystemFiles::SystemFiles() { std::ignore = std::signal(SIGXFSZ, SIG_IGN); }

std::unique_ptr<File> SystemFiles::open(const std::string& name) {
  Descriptor descriptor = openExisting(name);
  bool created = false;
  if (!descriptor && errno == ENOENT) {
    descriptor = Descriptor(::open(name.c_str(), O_RDWR | O_CREAT | openFlags, 0666));
    created = true;
  }
  if (!descriptor) fail(Fault::open, name);
  refuseAllButRegular(descriptor, Fault::open, name);
  return std::make_unique<SystemFile>(std::move(descriptor), name, created);
}

bool SystemFiles::exists(const std::string& name) {
  struct stat status {};
  return ::stat(name.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

std::uint64_t SystemFiles::length(const std::string& name) {
  struct stat status {};
  if (::stat(name.c_str(), &status) != 0) fail(Fault::read, name);
  if (!S_ISREG(status.st_mode)) fail(Fault::read, name, EINVAL);
  return static_cast<std::uint64_t>(status.st_size);
}

void SystemFiles::refuseProtected(const std::string& name) { failIfProtected(Fault::write, name); }

void SystemFiles::copy(const std::string& from, const std::string& to) {
  const Descriptor source(::open(from.c_str(), O_RDONLY | openFlags));
  if (!source) fail(Fault::copy, from);
  refuseAllButRegular(source, Fault::copy, from);
  struct stat rights {};
  if (::stat(to.c_str(), &rights) != 0) {
    rights = statusOf(source.get(), Fault::copy, from);
    rights.st_mode |= S_IWUSR;
  }
  if (!S_ISREG(rights.st_mode)) fail(Fault::copy, to, EINVAL);
  failIfProtected(Fault::copy, to);

  Replacement replacement(to);
  std::vector<std::byte> block(std::size_t{1} << 18);
  for (std::uint64_t offset = 0;;) {
    const std::size_t got = readAll(source.get(), offset, block, from);
    if (got == 0) break;
    writeAll(replacement.descriptor(), offset, std::span(block).first(got), to);
    offset += got;
  }
  replacement.takePlace(rights);
}

void SystemFiles::remove(const std::string& name) {
  failIfProtected(Fault::remove, name);
  if (::unlink(name.c_str()) != 0 || !syncFolder()) fail(Fault::remove, name);
}

void SystemFiles::rename(const std::string& from, const std::string& to) {
  const std::string target = behindLinks(to);
  failIfProtected(Fault::rename, to);
  if (::rename(from.c_str(), target.c_str()) != 0) {
    if (errno != EXDEV) fail(Fault::rename, from);
    copy(from, to);  // the link leads to another disk
    remove(from);
    return;
  }
  if (!syncFolder() || (target != to && !syncFolder(folderOf(target)))) fail(Fault::rename, from);
}

std::string SystemFiles::currentFolder() { return wholePath("."); }

}  // namespace karvenis
