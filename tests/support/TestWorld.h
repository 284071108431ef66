// A default world for tests: start-up, then New with a seeded virtual clock,
// exactly as the program builds it. Same seed, same world.
#pragma once

#include <cstdint>
#include <memory>

#include "model/Commands.h"
#include "model/Random.h"
#include "model/World.h"
#include "model/WorldCreation.h"

namespace keldor::testing {

struct TestWorld {
  explicit TestWorld(uint64_t seed = 1, const NewWorldInputs& inputs = {}) : clock(seed), random(clock) {
    StartUp(world);
    NewWorld(world, random, inputs);
  }

  VirtualClock clock;
  RandomSource random;
  World world;
};

}  // namespace keldor::testing
