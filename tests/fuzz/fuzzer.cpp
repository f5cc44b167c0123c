// The program that fuzzes (see run): KARVENIS_TARGET names the target.
#include <cstdio>

#include "fuzz/Fuzz.h"

namespace {

karvenis::FuzzTarget target() {
  const char* name = std::getenv("KARVENIS_TARGET");
  const auto& all = karvenis::fuzzTargets();
  const auto found = all.find(name == nullptr ? "" : name);
  if (found != all.end()) return found->second;
  std::fputs("KARVENIS_TARGET names no target\n", stderr);
  std::exit(1);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const karvenis::FuzzTarget run = target();
  run(data, size);
  return 0;
}
