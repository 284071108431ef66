// Simulation-only tick time (nothing drawn) for a default world after 500
// ticks, a crowded four-nest world, a large world, and a scaling series.
#include <benchmark/benchmark.h>

#include "support/BenchWorlds.h"

namespace keldor {
namespace {

void RunTicks(benchmark::State& state, bench::BenchWorld& subject) {
  for (auto _ : state) subject.Tick();
  state.counters["ants"] = subject.world.Settings.Population;
  state.counters["piles"] = subject.world.FoodPileCount();
}

void BM_DefaultWorldAfter500Ticks(benchmark::State& state) {
  auto subject = bench::DefaultWorld();
  subject->Tick(500);
  RunTicks(state, *subject);
}
BENCHMARK(BM_DefaultWorldAfter500Ticks)->Unit(benchmark::kMicrosecond);

void BM_CrowdedFourNests(benchmark::State& state) { RunTicks(state, *bench::CrowdedWorld()); }
BENCHMARK(BM_CrowdedFourNests)->Unit(benchmark::kMicrosecond);

void BM_LargeWorld(benchmark::State& state) { RunTicks(state, *bench::LargeWorld()); }
BENCHMARK(BM_LargeWorld)->Unit(benchmark::kMicrosecond);

// Ants and food both double from one case to the next.
void BM_Scaling(benchmark::State& state) { RunTicks(state, *bench::ScalingWorld(static_cast<int>(state.range(0)))); }
BENCHMARK(BM_Scaling)->RangeMultiplier(2)->Range(1, 8)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace keldor

BENCHMARK_MAIN();
