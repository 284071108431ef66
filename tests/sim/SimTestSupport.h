// Shared helpers for the tick tests: a recording message box, a ready-to-tick
// world, and the bookkeeping a world must keep.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "model/MessageBox.h"
#include "model/World.h"
#include "model/WorldCreation.h"
#include "sim/Tick.h"
#include "sim/TickPainter.h"
#include "support/TestWorld.h"

namespace keldor::testing {

// Records every message; while "open" it runs a nested tick, which must not start.
class RecordingMessageBox : public MessageBox {
 public:
  std::vector<std::string> Shown;
  TickContext* Reenter = nullptr;
  bool NestedTickStarted = false;
  void Show(const std::string& text) override {
    Shown.push_back(text);
    if (Reenter == nullptr) return;
    const std::string before = Reenter->world.Controls.PopulationCaption;
    Reenter->world.Controls.PopulationCaption = "marker";
    RunTick(*Reenter);
    NestedTickStarted = Reenter->world.Controls.PopulationCaption != "marker";
    Reenter->world.Controls.PopulationCaption = before;
  }
};

// A test world with its own painter and message box, ready to tick.
struct TickRig {
  explicit TickRig(uint64_t seed = 1) : test(seed) {}
  TestWorld test;
  NullPainter nullPainter;
  RecordingMessageBox messages;
  TickContext context{test.world, test.random, nullPainter, messages};
  World& world() { return test.world; }
  void Tick() {
    test.clock.Advance(0.075);
    RunTick(context);
  }
  void AddNestAt(int x, int y) {
    world().CursorCellX = static_cast<int16_t>(x);
    world().CursorCellY = static_cast<int16_t>(y);
    ASSERT_TRUE(CreateNest(world(), test.random));
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
