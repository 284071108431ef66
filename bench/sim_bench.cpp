// Simulation-only tick time (nothing drawn) for a default world after 500
// ticks, a crowded four-nest world, a large world, and a scaling series.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "model/Commands.h"
#include "model/MessageBox.h"
#include "model/Random.h"
#include "model/World.h"
#include "model/WorldCreation.h"
#include "sim/Editing.h"
#include "sim/Tick.h"
#include "sim/TickPainter.h"

namespace keldor {
namespace {

class SilentMessageBox : public MessageBox {
 public:
  void Show(const std::string&) override {}
};

struct BenchWorld {
  VirtualClock clock{11};
  RandomSource random{clock};
  World world;
  NullPainter painter;
  SilentMessageBox messages;
  TickContext context{world, random, painter, messages};

  BenchWorld(int grid, int foodRate, int antsPerNest) {
    Form_Load(world);
    NewWorldInputs inputs;
    inputs.GridWidthText = std::to_string(grid);
    inputs.GridHeightText = std::to_string(grid);
    // A negative figure keeps the start-up default.
    if (foodRate >= 0) world.Settings.FoodRate = static_cast<int16_t>(foodRate);
    if (antsPerNest >= 0) world.Settings.AntsPerNest = static_cast<int16_t>(antsPerNest);
    mnuFileNew_Click(world, random, inputs);
    world.Running = true;
  }
  void AddNest(int x, int y) {
    world.CursorCellX = static_cast<int16_t>(x);
    world.CursorCellY = static_cast<int16_t>(y);
    CreateNest(world, random);
  }
  void Tick() {
    clock.Advance(0.075);
    Timer1_Timer(context);
    world.Running = true;  // keep running past the population-limit pause
  }
};

void RunTicks(benchmark::State& state, BenchWorld& bench) {
  for (auto _ : state) bench.Tick();
  state.counters["ants"] = bench.world.Settings.Population;
  state.counters["piles"] = bench.world.FoodPileCount();
}

void BM_DefaultWorldAfter500Ticks(benchmark::State& state) {
  BenchWorld bench(30, -1, -1);
  for (int i = 0; i < 500; ++i) bench.Tick();
  RunTicks(state, bench);
}
BENCHMARK(BM_DefaultWorldAfter500Ticks)->Unit(benchmark::kMicrosecond);

void BM_CrowdedFourNests(benchmark::State& state) {
  BenchWorld bench(30, -1, 480);
  bench.world.Nests.clear();
  bench.world.NestCount = 0;
  bench.world.Settings.Population = 0;
  for (int x = 1; x <= 30; ++x) {
    for (int y = 1; y <= 30; ++y) bench.world.Cells(x, y).AntCount = 0;
  }
  bench.AddNest(8, 8);
  bench.AddNest(22, 8);
  bench.AddNest(8, 22);
  bench.AddNest(22, 22);
  RunTicks(state, bench);
}
BENCHMARK(BM_CrowdedFourNests)->Unit(benchmark::kMicrosecond);

void BM_LargeWorld(benchmark::State& state) {
  BenchWorld bench(100, 10, 200);
  for (int k = 0; k < 9; ++k) bench.AddNest(10 + 9 * k, 10 + (k % 3) * 35);
  for (int k = 0; k < 200; ++k) AddWallAt(bench.world, static_cast<int16_t>(5 + k % 90), static_cast<int16_t>(25 + (k / 90) * 25));
  RunTicks(state, bench);
}
BENCHMARK(BM_LargeWorld)->Unit(benchmark::kMicrosecond);

// Ants and food both double from one case to the next.
void BM_Scaling(benchmark::State& state) {
  const int nests = static_cast<int>(state.range(0));
  BenchWorld bench(100, 2 * nests, 200);
  for (int k = 1; k < nests; ++k) bench.AddNest(5 + (k * 13) % 90, 5 + (k * 29) % 90);
  RunTicks(state, bench);
}
BENCHMARK(BM_Scaling)->RangeMultiplier(2)->Range(1, 8)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace keldor

BENCHMARK_MAIN();
