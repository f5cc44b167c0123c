#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "platform/Files.h"
#include "platform/RunTimeError.h"

namespace karvenis {

/// Hands every call on to other files. A child sees each call that may fail, on the door and on the
/// files opened through it, and decides what becomes of it. The files it opens do not outlive it.
class ForwardingFiles : public Files {
 public:
  explicit ForwardingFiles(Files& inner) : inner_(inner) {}

  std::unique_ptr<File> open(const std::string& name) override {
    std::unique_ptr<File> inner;
    pass({Fault::open, name, [&] { inner = inner_.open(name); }});
    return std::make_unique<Open>(*this, std::move(inner), name);
  }
  bool exists(const std::string& name) override { return inner_.exists(name); }
  std::uint64_t length(const std::string& name) override {
    std::uint64_t bytes = 0;
    pass({Fault::read, name, [&] { bytes = inner_.length(name); }});
    return bytes;
  }
  void refuseProtected(const std::string& name) override {
    pass({Fault::write, name, [&] { inner_.refuseProtected(name); }});
  }
  void copy(const std::string& from, const std::string& to) override {
    pass({Fault::copy, to, [&] { inner_.copy(from, to); }});
  }
  void remove(const std::string& name) override {
    pass({Fault::remove, name, [&] { inner_.remove(name); }});
  }
  void rename(const std::string& from, const std::string& to) override {
    pass({Fault::rename, from, [&] { inner_.rename(from, to); }});
  }
  std::string currentFolder() override { return inner_.currentFolder(); }

 protected:
  struct Call {
    Fault fault;                   ///< that it may end in
    const std::string& name;       ///< of the file; of a copy's target, of a rename's old name
    std::function<void()> whole;   ///< does it
    std::function<void()> half{};  ///< does the half of it; none: it has no half
  };
  virtual void pass(const Call& call) = 0;

 private:
  /// A broken write ends on such a boundary of the file: less is never written at once.
  static constexpr std::uint64_t sector = 512;

  class Open final : public File {
   public:
    Open(ForwardingFiles& door, std::unique_ptr<File> inner, std::string name)
        : door_(door), inner_(std::move(inner)), name_(std::move(name)) {}
    std::size_t read(std::uint64_t offset, std::span<std::byte> into) override {
      std::size_t count = 0;
      door_.pass({Fault::read, name_, [&] { count = inner_->read(offset, into); }});
      return count;
    }
    void write(std::uint64_t offset, std::span<const std::byte> bytes) override {
      const auto writeHalf = [&] {
        const std::uint64_t middle = (offset + bytes.size() / 2) / sector * sector;
        if (middle > offset) inner_->write(offset, bytes.first(middle - offset));
      };
      door_.pass({Fault::write, name_, [&] { inner_->write(offset, bytes); }, writeHalf});
    }
    std::uint64_t length() override {
      std::uint64_t bytes = 0;
      door_.pass({Fault::read, name_, [&] { bytes = inner_->length(); }});
      return bytes;
    }
    void takeRightsOf(const std::string& name) override {
      door_.pass({Fault::write, name_, [&] { inner_->takeRightsOf(name); }});
    }
    void sync() override {
      door_.pass({Fault::write, name_, [&] { inner_->sync(); }});
    }
    void close() override {
      door_.pass({Fault::write, name_, [&] { inner_->close(); }});
    }

   private:
    ForwardingFiles& door_;
    std::unique_ptr<File> inner_;
    std::string name_;
  };

  Files& inner_;
};

}  // namespace karvenis
