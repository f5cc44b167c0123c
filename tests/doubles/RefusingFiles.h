#pragma once

#include <functional>
#include <string>

#include "doubles/ForwardingFiles.h"
#include "platform/RunTimeError.h"

namespace karvenis {

/// Refuses the calls that `refuses` chooses, by what they would do and to which file (the target of
/// a copy, the old name of a rename). A refused call changes nothing.
class RefusingFiles final : public ForwardingFiles {
 public:
  using ForwardingFiles::ForwardingFiles;

  std::function<bool(Fault fault, const std::string& name)> refuses;
  /// Calls so far; refuse the n-th by comparing with it.
  int calls = 0;

 private:
  void pass(const Call& call) override {
    ++calls;
    if (refuses && refuses(call.fault, call.name)) {
      throw RunTimeError(call.fault, call.name, "refused");
    }
    call.whole();
  }
};

}  // namespace karvenis
