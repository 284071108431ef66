// A small, quiet world for rule tests, where one rule alone decides an
// outcome: a 20 x 20 grid of cells 100 world units wide, one nest on cell
// (10, 10) with its centre at (950, 950), no food anywhere, running.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>

#include "engine/Simulation.h"
#include "window/Commands.h"
#include "window/WindowState.h"
#include "model/Random.h"
#include "model/World.h"
#include "model/WorldCreation.h"
#include "sim/Editing.h"

namespace keldor::testing {

// Pi*(100/2*10)^2 = 3.1415926*250000: the most food one cell holds.
inline constexpr double CellCapacity = 785398.15;

struct RuleWorld {
  explicit RuleWorld(int16_t antsPerNest = 30) {
    world.Settings.GridX = 20;  // start-up sizes the seeded pile from it
    StartUp(world, window);
    world.Settings.FoodRate = 0;
    world.Settings.AntsPerNest = antsPerNest;
    NewWorld(simulation, window, {"20", "20", "3", 100});
    world.Running = true;
  }

  Nest& nest(int n) { return world.Nests[static_cast<size_t>(n)]; }

  void AddNest(int16_t x, int16_t y, int16_t ants) {
    world.Settings.AntsPerNest = ants;
    EXPECT_TRUE(CreateNest(world, random, x, y));
  }

  // Head on the centre of cell (x, y) moved right by offset, rear one unit
  // behind; the ant is counted on its new cell.
  void PlaceAnt(Ant& ant, int16_t x, int16_t y, double offset = 0) {
    --world.Cells(ant.CellX, ant.CellY).AntCount;
    ++world.Cells(x, y).AntCount;
    ant.CellX = x;
    ant.CellY = y;
    ant.HeadX = (x - 1) * 100 + 50 + offset;
    ant.RearX = ant.HeadX - 1;
    ant.HeadY = ant.RearY = (y - 1) * 100 + 50;
  }

  // A pile and its cell holding the same amount.
  void AddPile(int16_t x, int16_t y, double amount) {
    AppendFoodPile(world, random, x, y, amount);
    world.Cells(x, y).Food = amount;
  }

  VirtualClock clock{1};
  Simulation simulation{&clock};
  World& world = simulation.TheWorld();
  RandomSource& random = simulation.Random();
  WindowState window;
};

}  // namespace keldor::testing
