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
  struct Rule {
    std::function<bool(Fault fault, const std::string& name)> refuses;
    int calls = 0;

    void pass(Fault fault, const std::string& name) {
      ++calls;
      if (refuses && refuses(fault, name)) throw RunTimeError(fault, name, "refused");
    }
  };
  std::shared_ptr<Rule> rule_ = std::make_shared<Rule>();

 public:
  explicit RefusingFiles(Files& inner) : inner_(inner) {}
  /// A file that a fault left open may outlive this; it is refused nothing more.
  ~RefusingFiles() override { refuses = nullptr; }
  RefusingFiles(const RefusingFiles&) = delete;
  RefusingFiles& operator=(const RefusingFiles&) = delete;

  std::function<bool(Fault fault, const std::string& name)>& refuses = rule_->refuses;
  /// Calls that could have been refused so far; refuse the n-th by comparing with it.
  int& calls = rule_->calls;

  std::unique_ptr<File> open(const std::string& name) override {
    rule_->pass(Fault::open, name);
    return std::make_unique<Open>(rule_, inner_.open(name), name);
  }
  bool exists(const std::string& name) override { return inner_.exists(name); }
  std::uint64_t length(const std::string& name) override {
    rule_->pass(Fault::read, name);
    return inner_.length(name);
  }
  void copy(const std::string& from, const std::string& to) override {
    rule_->pass(Fault::copy, to);
    inner_.copy(from, to);
  }
  void remove(const std::string& name) override {
    rule_->pass(Fault::remove, name);
    inner_.remove(name);
  }
  void rename(const std::string& from, const std::string& to) override {
    rule_->pass(Fault::rename, from);
    inner_.rename(from, to);
  }
  std::string currentFolder() override { return inner_.currentFolder(); }

 private:
  class Open final : public File {
   public:
    Open(std::shared_ptr<Rule> rule, std::unique_ptr<File> inner, std::string name)
        : rule_(std::move(rule)), inner_(std::move(inner)), name_(std::move(name)) {}
    std::size_t read(std::uint64_t offset, std::span<std::byte> into) override {
      rule_->pass(Fault::read, name_);
      return inner_->read(offset, into);
    }
    void write(std::uint64_t offset, std::span<const std::byte> bytes) override {
      rule_->pass(Fault::write, name_);
      inner_->write(offset, bytes);
    }
    std::uint64_t length() override { return inner_->length(); }
    void sync() override {
      rule_->pass(Fault::write, name_);
      inner_->sync();
    }
    void close() override { inner_->close(); }

   private:
    std::shared_ptr<Rule> rule_;
    std::unique_ptr<File> inner_;
    std::string name_;
  };

  Files& inner_;
};

}  // namespace karvenis
