// The input of the filter on F6: any text leaves the list as it was or thins it out.
#include "fuzz/Filtering.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  karvenis::filterWith(karvenis::Filter::FilterWantedNumbers, karvenis::textOf(data, size));
  return 0;
}
