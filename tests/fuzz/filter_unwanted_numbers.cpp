// The input of the filter on F5: any text leaves the list as it was or thins it out.
#include "fuzz/Filtering.h"

namespace karvenis {
namespace {

const Target filterUnwantedNumbers("filter_unwanted_numbers",
                                   [](const std::uint8_t* data, std::size_t size) {
                                     filterWith(Filter::FilterUnwantedNumbers, textOf(data, size));
                                   });

}  // namespace
}  // namespace karvenis
