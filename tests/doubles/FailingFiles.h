#pragma once

#include <memory>
#include <string>
#include <utility>

#include "platform/Files.h"
#include "platform/RunTimeError.h"

namespace karvenis {

/// What leaves a rule when its process dies: nobody catches it, and nothing happens any more.
struct Killed {};

/// What happens at the chosen call.
enum class Mishap {
  fault,      ///< it fails and changes nothing
  halfFault,  ///< a write is broken off, cannot be put back and fails; another call does all, then
              ///< fails
  death,      ///< the process dies before it
  halfDeath,  ///< the process dies in the middle of a write, or right after another call
};

/// A broken write ends on such a boundary of the file: less is never written at once.
inline constexpr std::uint64_t sector = 512;

/// Passes every call on to other files until the chosen one, counted from 1 over the door and all
/// files opened through it.
class FailingFiles final : public Files {
  struct Plan {
    int at = 0;
    Mishap mishap = Mishap::fault;
    std::string words;
    bool stays = false;
    int calls = 0;
    bool dead = false;
  };
  std::shared_ptr<Plan> plan_ = std::make_shared<Plan>();

 public:
  explicit FailingFiles(Files& inner) : inner_(inner) {}

  /// The `at`-th call from now on meets the mishap; `words` are the system's. With `stays` every
  /// later call fails too.
  void failAt(int at, Mishap mishap, std::string words = "no space left on device",
              bool stays = false) {
    *plan_ = {at, mishap, std::move(words), stays};
  }
  /// Calls so far.
  int calls() const { return plan_->calls; }

  std::unique_ptr<File> open(const std::string& name) override {
    std::unique_ptr<File> inner;
    pass(*plan_, Fault::open, name, [&] { inner = inner_.open(name); });
    return std::make_unique<Open>(plan_, std::move(inner), name);
  }
  bool exists(const std::string& name) override { return inner_.exists(name); }
  std::uint64_t length(const std::string& name) override {
    std::uint64_t bytes = 0;
    pass(*plan_, Fault::read, name, [&] { bytes = inner_.length(name); });
    return bytes;
  }
  void copy(const std::string& from, const std::string& to) override {
    pass(*plan_, Fault::copy, to, [&] { inner_.copy(from, to); });
  }
  void remove(const std::string& name) override {
    pass(*plan_, Fault::remove, name, [&] { inner_.remove(name); });
  }
  void rename(const std::string& from, const std::string& to) override {
    pass(*plan_, Fault::rename, from, [&] { inner_.rename(from, to); });
  }
  std::string currentFolder() override { return inner_.currentFolder(); }

 private:
  /// Does `whole`, or what of it happens still.
  template <typename Whole>
  static void pass(Plan& plan, Fault fault, const std::string& name, Whole whole) {
    pass(plan, fault, name, whole, whole);
  }
  template <typename Whole, typename Half>
  static void pass(Plan& plan, Fault fault, const std::string& name, Whole whole, Half half) {
    if (plan.dead) return;
    ++plan.calls;
    const bool chosen = plan.calls == plan.at;
    if (!chosen && !(plan.stays && plan.calls > plan.at)) {
      whole();
      return;
    }
    if (chosen && (plan.mishap == Mishap::halfFault || plan.mishap == Mishap::halfDeath)) half();
    if (plan.mishap == Mishap::death || plan.mishap == Mishap::halfDeath) {
      plan.dead = true;
      throw Killed();
    }
    throw RunTimeError(fault, name, plan.words);
  }

  class Open final : public File {
   public:
    Open(std::shared_ptr<Plan> plan, std::unique_ptr<File> inner, std::string name)
        : plan_(std::move(plan)), inner_(std::move(inner)), name_(std::move(name)) {}
    std::size_t read(std::uint64_t offset, std::span<std::byte> into) override {
      std::size_t count = 0;
      pass(*plan_, Fault::read, name_, [&] { count = inner_->read(offset, into); });
      return count;
    }
    void write(std::uint64_t offset, std::span<const std::byte> bytes) override {
      pass(
          *plan_, Fault::write, name_, [&] { inner_->write(offset, bytes); },
          [&] {
            const std::uint64_t middle = (offset + bytes.size() / 2) / sector * sector;
            if (middle > offset) inner_->write(offset, bytes.first(middle - offset));
          });
    }
    std::uint64_t length() override {
      std::uint64_t bytes = 0;
      pass(*plan_, Fault::read, name_, [&] { bytes = inner_->length(); });
      return bytes;
    }
    void sync() override {
      pass(*plan_, Fault::write, name_, [&] { inner_->sync(); });
    }
    void close() override {
      pass(*plan_, Fault::write, name_, [&] { inner_->close(); });
    }

   private:
    std::shared_ptr<Plan> plan_;
    std::unique_ptr<File> inner_;
    std::string name_;
  };

  Files& inner_;
};

}  // namespace karvenis
