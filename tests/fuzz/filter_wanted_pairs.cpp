// The input of the filter on F8: any text leaves the list as it was or thins it out.
#include "fuzz/Filtering.h"

namespace karvenis {
namespace {

const Target filterWantedPairs("filter_wanted_pairs",
                               [](const std::uint8_t* data, std::size_t size) {
                                 filterWith(Filter::FilterWantedPairs, textOf(data, size));
                               });

}  // namespace
}  // namespace karvenis
