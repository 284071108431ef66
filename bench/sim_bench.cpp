// Simulation-only tick time (nothing drawn) for a default world after 500
// ticks, a crowded four-nest world, a large world, and a scaling series.
//
// Each benchmark runs a fixed number of ticks on a fresh world: the worlds
// change as they run, so a free iteration count would let a faster build
// measure a later, different world.
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
BENCHMARK(BM_DefaultWorldAfter500Ticks)->Iterations(1000)->Unit(benchmark::kMicrosecond);

void BM_CrowdedFourNests(benchmark::State& state) { RunTicks(state, *bench::CrowdedWorld()); }
BENCHMARK(BM_CrowdedFourNests)->Iterations(300)->Unit(benchmark::kMicrosecond);

void BM_LargeWorld(benchmark::State& state) { RunTicks(state, *bench::LargeWorld()); }
BENCHMARK(BM_LargeWorld)->Iterations(300)->Unit(benchmark::kMicrosecond);

void BM_LargestWorld(benchmark::State& state) { RunTicks(state, *bench::LargestWorld()); }
BENCHMARK(BM_LargestWorld)->Iterations(100)->Unit(benchmark::kMillisecond);

// Ants and food both double from one case to the next.
void BM_Scaling(benchmark::State& state) { RunTicks(state, *bench::ScalingWorld(static_cast<int>(state.range(0)))); }
BENCHMARK(BM_Scaling)->RangeMultiplier(2)->Range(1, 8)->Iterations(300)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace keldor

BENCHMARK_MAIN();
