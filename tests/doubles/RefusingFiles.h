#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "platform/Files.h"
#include "platform/RunTimeError.h"

namespace karvenis {

/// Passes every call on to other files until `refuses` says that this one fails: by what it would
/// do and to which file (the target of a copy, the old name of a rename). A refused call changes
/// nothing.
class RefusingFiles final : public Files {
 public:
  explicit RefusingFiles(Files& inner) : inner_(inner) {}

  std::function<bool(Fault fault, const std::string& name)> refuses;
  /// Calls that could have been refused so far; refuse the n-th by comparing with it.
  int calls = 0;

  std::unique_ptr<File> open(const std::string& name) override {
    pass(Fault::open, name);
    return std::make_unique<Open>(*this, inner_.open(name), name);
  }
  bool exists(const std::string& name) override { return inner_.exists(name); }
  std::uint64_t length(const std::string& name) override {
    pass(Fault::read, name);
    return inner_.length(name);
  }
  void copy(const std::string& from, const std::string& to) override {
    pass(Fault::copy, to);
    inner_.copy(from, to);
  }
  void remove(const std::string& name) override {
    pass(Fault::remove, name);
    inner_.remove(name);
  }
  void rename(const std::string& from, const std::string& to) override {
    pass(Fault::rename, from);
    inner_.rename(from, to);
  }

 private:
  class Open final : public File {
   public:
    Open(RefusingFiles& files, std::unique_ptr<File> inner, std::string name)
        : files_(files), inner_(std::move(inner)), name_(std::move(name)) {}
    std::size_t read(std::uint64_t offset, std::span<std::byte> into) override {
      files_.pass(Fault::read, name_);
      return inner_->read(offset, into);
    }
    void write(std::uint64_t offset, std::span<const std::byte> bytes) override {
      files_.pass(Fault::write, name_);
      inner_->write(offset, bytes);
    }
    std::uint64_t length() override { return inner_->length(); }
    void sync() override {
      files_.pass(Fault::write, name_);
      inner_->sync();
    }
    void close() override { inner_->close(); }

   private:
    RefusingFiles& files_;
    std::unique_ptr<File> inner_;
    std::string name_;
  };

  void pass(Fault fault, const std::string& name) {
    ++calls;
    if (refuses && refuses(fault, name)) throw RunTimeError(fault, name, "refused");
  }

  Files& inner_;
};

}  // namespace karvenis
