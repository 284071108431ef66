// Shared helpers for the tick tests: recorded tick events, a ready-to-tick
// world, and the bookkeeping a world must keep.
#pragma once

#include <gtest/gtest.h>

#include "model/World.h"
#include "model/WorldCreation.h"
#include "sim/Tick.h"
#include "sim/TickPainter.h"
#include "support/TestWorld.h"
#include "window/Commands.h"
#include "window/WindowState.h"

namespace keldor::testing {

// Answers the population limit as the window does (Play/Pause pressed) and
// counts it; while "open" it runs a nested tick, which must not start.
class RecordingEvents : public TickEvents {
 public:
  RecordingEvents(World& world, WindowState& window) : world_(world), window_(window) {}
  int LimitsReached = 0;
  TickContext* Reenter = nullptr;
  bool NestedTickStarted = false;
  void PopulationLimitReached() override {
    ++LimitsReached;
    NullPainter painter;
    if (Reenter != nullptr) NestedTickStarted = RunTick(*Reenter, painter, TickInputOf(window_, world_));
    TogglePlayPause(world_, window_);
  }

 private:
  World& world_;
  WindowState& window_;
};

// A test world with its own painter and event recorder, ready to tick.
struct TickRig {
  explicit TickRig(uint64_t seed = 1) : test(seed) {}
  TestWorld test;
  NullPainter nullPainter;
  RecordingEvents events{test.world, test.window};
  TickContext context{test.world, test.random, events};
  World& world() { return test.world; }
  WindowState& window() { return test.window; }
  void Tick() {
    test.clock.Advance(0.075);
    RunTick(context, nullPainter, TickInputOf(test.window, test.world));
  }
  void AddNestAt(int x, int y) {
    ASSERT_TRUE(CreateNest(world(), test.random, static_cast<int16_t>(x), static_cast<int16_t>(y)));
  }
};

inline int LivingAnts(const World& world) {
  int living = 0;
  for (int n = 0; n < world.NestCount; ++n) {
    for (const Ant& ant : world.Nests[static_cast<size_t>(n)].Ants) living += ant.Energy > 0 ? 1 : 0;
  }
  return living;
}

}  // namespace keldor::testing
