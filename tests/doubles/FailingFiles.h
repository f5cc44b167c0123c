#pragma once

#include <string>
#include <utility>

#include "doubles/ForwardingFiles.h"
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

/// Fails at one chosen call, counted from 1.
class FailingFiles final : public ForwardingFiles {
 public:
  using ForwardingFiles::ForwardingFiles;

  /// The `at`-th call from now on meets the mishap; `words` are the system's. With `stays` every
  /// later call fails too.
  void failAt(int at, Mishap mishap, std::string words = "no space left on device",
              bool stays = false) {
    at_ = at;
    mishap_ = mishap;
    words_ = std::move(words);
    stays_ = stays;
    calls_ = 0;
  }
  /// Calls so far.
  int calls() const { return calls_; }

 private:
  void pass(const Call& call) override {
    if (dead_) return;
    ++calls_;
    const bool chosen = calls_ == at_;
    if (!chosen && !(stays_ && calls_ > at_)) {
      call.whole();
      return;
    }
    if (chosen && (mishap_ == Mishap::halfFault || mishap_ == Mishap::halfDeath)) {
      call.half ? call.half() : call.whole();
    }
    if (mishap_ == Mishap::death || mishap_ == Mishap::halfDeath) {
      dead_ = true;
      throw Killed();
    }
    throw RunTimeError(call.fault, call.name, words_);
  }

  int at_ = 0;
  Mishap mishap_ = Mishap::fault;
  std::string words_;
  bool stays_ = false;
  int calls_ = 0;
  bool dead_ = false;
};

}  // namespace karvenis
