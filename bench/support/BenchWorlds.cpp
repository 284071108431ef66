#include "support/BenchWorlds.h"

#include <cmath>
#include <string>

#include "window/Commands.h"
#include "model/Numeric.h"
#include "model/WorldCreation.h"
#include "sim/Editing.h"

namespace keldor::bench {

BenchWorld::BenchWorld(int grid, int foodRate, int antsPerNest) {
  simulation.StepFromSeed(11);
  simulation.SetTickListener(&events);
  StartUp(world, window);
  NewWorldInputs inputs;
  inputs.GridWidthText = std::to_string(grid);
  inputs.GridHeightText = std::to_string(grid);
  if (foodRate >= 0) world.Settings.FoodRate = static_cast<int16_t>(foodRate);
  if (antsPerNest >= 0) world.Settings.AntsPerNest = static_cast<int16_t>(antsPerNest);
  NewWorld(simulation, window, inputs);
  world.Running = true;
}

void BenchWorld::AddNest(int x, int y) {
  CreateNest(world, simulation.Random(), static_cast<int16_t>(x), static_cast<int16_t>(y));
}

void BenchWorld::Tick(int count) {
  for (int i = 0; i < count; ++i) simulation.Tick(painter, TickInputOf(window, world));
}

std::unique_ptr<BenchWorld> DefaultWorld() { return std::make_unique<BenchWorld>(30, -1, -1); }

std::unique_ptr<BenchWorld> CrowdedWorld() {
  auto bench = std::make_unique<BenchWorld>(30, -1, 480);
  World& world = bench->world;
  world.Nests.clear();
  world.NestCount = 0;
  world.Settings.Population = 0;
  for (int x = 1; x <= 30; ++x) {
    for (int y = 1; y <= 30; ++y) world.Cells(x, y).AntCount = 0;
  }
  bench->AddNest(8, 8);
  bench->AddNest(22, 8);
  bench->AddNest(8, 22);
  bench->AddNest(22, 22);
  return bench;
}

std::unique_ptr<BenchWorld> LargeWorld() {
  auto bench = std::make_unique<BenchWorld>(100, 10, 200);
  for (int k = 0; k < 9; ++k) bench->AddNest(10 + 9 * k, 10 + (k % 3) * 35);
  for (int k = 0; k < 200; ++k) {
    AddWallAt(bench->world, static_cast<int16_t>(5 + k % 90), static_cast<int16_t>(25 + (k / 90) * 25));
  }
  return bench;
}

std::unique_ptr<BenchWorld> LargestWorld() {
  auto bench = std::make_unique<BenchWorld>(181, -1, 3000);
  // New's nest at the centre, nine more on a ring around it.
  for (int k = 0; k < 9; ++k) {
    const int x = 91 + static_cast<int>(60 * std::cos(k * 2 * Pi / 9));
    const int y = 91 + static_cast<int>(60 * std::sin(k * 2 * Pi / 9));
    bench->AddNest(x, y);
  }
  return bench;
}

std::unique_ptr<BenchWorld> ScalingWorld(int nests) {
  auto bench = std::make_unique<BenchWorld>(100, 2 * nests, 200);
  for (int k = 1; k < nests; ++k) bench->AddNest(5 + (k * 13) % 90, 5 + (k * 29) % 90);
  return bench;
}

}  // namespace keldor::bench
