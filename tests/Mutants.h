// Included before everything else where tests/mutate.py builds the program with all its changes: it
// switches one of them on and tells which of them a run has come by.
#pragma once

#include <sys/mman.h>

#include <cstdio>
#include <cstdlib>

namespace mutants {

inline constexpr int most = 1 << 16;

/// The environment variable KARVENIS_MUTANT names the change that is on, KARVENIS_REACHED the file
/// that gets a byte of 1 for each change that a run has come by, however the run ends.
struct Switches {
  int chosen = 0;
  unsigned char* reached = nullptr;

  Switches() {
    if (const char* number = std::getenv("KARVENIS_MUTANT")) chosen = std::atoi(number);
    const char* name = std::getenv("KARVENIS_REACHED");
    std::FILE* file = name == nullptr ? nullptr : std::fopen(name, "r+");
    const int place = file == nullptr ? MAP_PRIVATE | MAP_ANONYMOUS : MAP_SHARED;
    const int number = file == nullptr ? -1 : ::fileno(file);
    reached = static_cast<unsigned char*>(
        ::mmap(nullptr, most, PROT_READ | PROT_WRITE, place, number, 0));
    if (file != nullptr) std::fclose(file);
  }
};

inline bool on(int number) {
  static const Switches switches;
  switches.reached[number] = 1;
  return number == switches.chosen;
}

}  // namespace mutants
