// Shared helpers for the tick tests: a recording painter and message box, and
// the invariants a world must keep after every tick.
#pragma once

#include <string>
#include <vector>

#include "model/MessageBox.h"
#include "model/World.h"
#include "sim/Tick.h"
#include "sim/TickPainter.h"
#include "support/TestWorld.h"

namespace keldor::testing {

// Records the name of each painter call, in order.
class RecordingPainter : public TickPainter {
 public:
  std::vector<std::string> Calls;
  void ClearViews(const World&) override { Calls.push_back("ClearViews"); }
  void DrawCell(const World&, const Cell&) override { Calls.push_back("DrawCell"); }
  void DrawWalls(const World&) override { Calls.push_back("DrawWalls"); }
  void DrawNests(const World&) override { Calls.push_back("DrawNests"); }
  void DrawFoodPiles(const World&) override { Calls.push_back("DrawFoodPiles"); }
  void DrawAnt(const World&, const Nest&, int) override { Calls.push_back("DrawAnt"); }
  void DrawViewFrames(const World&) override { Calls.push_back("DrawViewFrames"); }
  void DrawZoomLabel(const World&) override { Calls.push_back("DrawZoomLabel"); }
  void FinishFrame(const World&) override { Calls.push_back("FinishFrame"); }
};

// Records every message; while "open" it runs a nested tick, which must not start.
class RecordingMessageBox : public MessageBox {
 public:
  std::vector<std::string> Shown;
  TickContext* Reenter = nullptr;
  bool NestedTickStarted = false;
  void Show(const std::string& text) override {
    Shown.push_back(text);
    if (Reenter != nullptr) {
      const std::string before = Reenter->world.Controls.PopulationCaption;
      Reenter->world.Controls.PopulationCaption = "marker";
      Timer1_Timer(*Reenter);
      NestedTickStarted = Reenter->world.Controls.PopulationCaption != "marker";
      Reenter->world.Controls.PopulationCaption = before;
    }
  }
};

// A test world with its own painter and message box, ready to tick.
struct TickRig {
  explicit TickRig(uint64_t seed = 1, const NewWorldInputs& inputs = {}) : test(seed, inputs) {}
  TestWorld test;
  NullPainter nullPainter;
  RecordingMessageBox messages;
  TickContext context{test.world, test.random, nullPainter, messages};
  World& world() { return test.world; }
  void Tick() {
    test.clock.Advance(0.075);
    Timer1_Timer(context);
  }
};

int LivingAnts(const World& world);

}  // namespace keldor::testing
