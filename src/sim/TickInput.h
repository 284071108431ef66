// What one tick takes from the window besides the world, and what it tells
// the window back. The simulation never reads the window's state: the window
// fills a TickInput before each tick and implements TickEvents.
#pragma once

#include <cstdint>
#include <optional>

namespace keldor {

// The editing tools of the palette.
enum Tool : int16_t { NoTool = 0, FoodTool = 1, WallTool = 2, RemoveAntsTool = 3, NestTool = 4 };

struct TickInput {
  Tool CurrentTool = NoTool;
  // The pointer on the terrain view: whether a button is held, the button of
  // the last press or release (1 left, 2 right), the cell under it (PointerCell,
  // possibly outside the world) and that cell held into the world (CursorCell).
  bool PointerHeld = false;
  int PointerButton = 0;
  double PointerCellX = 0;
  double PointerCellY = 0;
  int CursorCellX = 0;
  int CursorCellY = 0;
  // The "Nest Scent" slider while the options dialog is open: the ants then
  // recognise a nest cell by it. Otherwise they use NestScentMax.
  std::optional<int16_t> NestTraceSlider;
  // Ants are drawn, and a bitten ant takes its nest's colour again after it is drawn.
  bool AntsShown = true;
};

// What a tick reports while it runs.
class TickEvents {
 public:
  virtual ~TickEvents() = default;
  // The population is exactly 2000 at the limit check; the window shows its
  // message and presses Play/Pause before the tick goes on to its births.
  virtual void PopulationLimitReached() = 0;
};

// Ignores every event: for runs that only measure the simulation.
class IgnoredTickEvents : public TickEvents {
 public:
  void PopulationLimitReached() override {}
};

}  // namespace keldor
