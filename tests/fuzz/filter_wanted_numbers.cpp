// The input of the filter on F6: any text leaves the list as it was or thins it out.
#include "fuzz/Filtering.h"

namespace karvenis {
namespace {

const Target filterWantedNumbers("filter_wanted_numbers",
                                 [](const std::uint8_t* data, std::size_t size) {
                                   filterWith(Filter::FilterWantedNumbers, textOf(data, size));
                                 });

}  // namespace
}  // namespace karvenis
