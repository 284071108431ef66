// The worlds the benchmarks measure, built the way a user would: New, nests
// placed with CreateNest, walls with the wall tool, then real ticks with
// nothing drawn, through the engine every front end uses. Every world steps
// its clock from a fixed seed, so runs repeat.
#pragma once

#include <memory>

#include "engine/Simulation.h"
#include "model/World.h"
#include "sim/TickPainter.h"
#include "window/WindowState.h"

namespace keldor::bench {

struct BenchWorld {
  Simulation simulation;
  World& world = simulation.TheWorld();
  WindowState window;
  NullPainter painter;
  IgnoredTickEvents events;

  // A new running world; a negative foodRate or antsPerNest keeps the
  // start-up default.
  BenchWorld(int grid, int foodRate, int antsPerNest);
  BenchWorld(const BenchWorld&) = delete;
  BenchWorld& operator=(const BenchWorld&) = delete;

  void AddNest(int x, int y);
  // Runs count ticks; the population limit does not pause them.
  void Tick(int count = 1);
};

// 30 x 30 grid, start-up settings, the one nest New makes.
std::unique_ptr<BenchWorld> DefaultWorld();
// 30 x 30 grid, New's nest removed, four nests of 480 ants.
std::unique_ptr<BenchWorld> CrowdedWorld();
// 100 x 100 grid, food rate 10, ten nests of 200 ants, 200 walls.
std::unique_ptr<BenchWorld> LargeWorld();
// The largest world: 181 x 181 grid, ten nests of 3000 ants spread over it.
std::unique_ptr<BenchWorld> LargestWorld();
// 100 x 100 grid, `nests` nests of 200 ants, food rate twice the nest count.
std::unique_ptr<BenchWorld> ScalingWorld(int nests);

}  // namespace keldor::bench
