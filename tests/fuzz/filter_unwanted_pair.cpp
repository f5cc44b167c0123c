// The input of the filter on F7: any text leaves the list as it was or thins it out.
#include "fuzz/Filtering.h"

namespace karvenis {
namespace {

const Target filterUnwantedPair("filter_unwanted_pair",
                                [](const std::uint8_t* data, std::size_t size) {
                                  filterWith(Filter::FilterUnwantedPair, textOf(data, size));
                                });

}  // namespace
}  // namespace karvenis
