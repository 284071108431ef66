// A default world for tests: start-up, then New with a seeded virtual clock,
// exactly as the program builds it, with the window state beside it. Same
// seed, same world.
#pragma once

#include <cstdint>
#include <memory>

#include "window/Commands.h"
#include "model/Random.h"
#include "model/World.h"
#include "model/WorldCreation.h"
#include "window/WindowState.h"

namespace keldor::testing {

struct TestWorld {
  explicit TestWorld(uint64_t seed = 1, const NewWorldInputs& inputs = {}) : clock(seed), random(clock) {
    StartUp(world, window);
    NewWorld(world, window, random, inputs);
  }

  VirtualClock clock;
  RandomSource random;
  World world;
  WindowState window;
};

}  // namespace keldor::testing
