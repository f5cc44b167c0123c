// A filter on lists of 32767 columns, ten times and a hundred times as many: the time for each
// record and the memory must not grow with the list.
//
// usage: filter [ROUNDS]

#include <sys/resource.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>

#include "BenchWorld.h"
#include "comblist/Filters.h"
#include "comblist/GeneratorDraw.h"
#include "core/ColumnFile.h"

namespace {

using namespace karvenis;

void makeList(BenchWorld& world, std::int32_t count) {
  std::filesystem::remove(combinationList);
  ColumnFile list(world.state, world.files, combinationList);
  GeneratorDraw random(world.state);
  for (std::int32_t n = 1; n <= count; ++n) {
    list.put(n, {.Word = n, .Balls = random.draw(world.chance)});
  }
  list.close();
}

/// The process's largest resident memory so far, in kilobytes.
long largestMemory() {
  rusage usage{};
  ::getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss;
}

struct Run {
  const char* name;
  Filter filter;
  const char* typed;
};

constexpr Run runs[] = {{"F5 7,13", Filter::FilterUnwantedNumbers, "7,13"},
                        {"F6 1,2,3,4,5,6,7", Filter::FilterWantedNumbers, "1,2,3,4,5,6,7"},
                        {"F7 7-13", Filter::FilterUnwantedPair, "7-13"},
                        {"F8 1-2,3-4,5-6", Filter::FilterWantedPairs, "1-2,3-4,5-6"}};

}  // namespace

int main(int argc, char** argv) {
  const int rounds = argc > 1 ? std::atoi(argv[1]) : 5;
  BenchWorld world;
  ListPage page;
  for (const auto& [name, filter, typed] : runs) {
    world.boxes.typed = typed;
    double smallest = 0;
    for (const std::int32_t count : {32767, 327670, 3276700}) {
      std::vector<double> seconds;
      for (int round = 0; round < rounds; ++round) {
        makeList(world, count);
        seconds.push_back(secondsOf(
            [&, chosen = filter] { filterList(chosen, world.around, page, world.title); }));
      }
      const double perRecord = median(seconds) / count;
      if (smallest == 0) smallest = perRecord;
      std::printf("%-18s %8d records %9.1f ms %7.1f ns each, %.2f of the smallest, %ld kB\n", name,
                  count, perRecord * count * 1e3, perRecord * 1e9, perRecord / smallest,
                  largestMemory());
    }
  }
  return 0;
}
