// A default world for tests: start-up, then New with a seeded virtual clock,
// exactly as the program builds it, with the window state beside it. Same
// seed, same world.
#pragma once

#include <cstdint>
#include <memory>

#include "engine/Simulation.h"
#include "window/Commands.h"
#include "model/Random.h"
#include "model/World.h"
#include "model/WorldCreation.h"
#include "window/WindowState.h"

namespace keldor::testing {

struct TestWorld {
  explicit TestWorld(uint64_t seed = 1, const NewWorldInputs& inputs = {}) : clock(seed) {
    StartUp(world, window);
    NewWorld(simulation, window, inputs);
  }

  VirtualClock clock;
  Simulation simulation{&clock};
  World& world = simulation.TheWorld();
  RandomSource& random = simulation.Random();
  WindowState window;
};

}  // namespace keldor::testing
