// How long one draw takes, without its seeding and with it.

#include <benchmark/benchmark.h>

#include <chrono>

#include "core/Draw.h"
#include "platform/SystemChance.h"

namespace {

using namespace karvenis;

void DrawWithoutSeeding(benchmark::State& run) {
  SharedState state;
  SystemChance chance;
  for (auto _ : run) {
    drawDistinct(state, chance);
    SortColumn(state.Drawn);
    benchmark::DoNotOptimize(state.Drawn);
  }
}
BENCHMARK(DrawWithoutSeeding);

void SeedingAlone(benchmark::State& run) {
  SystemChance chance;
  std::int64_t clock = 0;
  for (auto _ : run) chance.seed(++clock);
}
BENCHMARK(SeedingAlone);

}  // namespace

BENCHMARK_MAIN();
