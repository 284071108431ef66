// The tick: the 75 ms timer event that advances the world by one step and
// redraws both views. Phases, in order:
//   1. set-up: reseed, clear the views, remove ants under a held pointer
//   2. encounters (running only)
//   3. upkeep and death (running only)
//   4. food piles: editing, pickup, growth, spreading, emission
//   5. the cell pass: wall reset, clamp, colour, draw, decay
//   6-8. walls, nests and food piles drawn
//   9. the ant pass: draw each ant, then step it (running only)
//  10. the population limit check
//  11. the frames of the visible area
//  12. births (running only)
//  13. the zoom label (the window writes the population label after the tick)
//  14. the frame is shown
#pragma once

#include <vector>

#include "sim/AntStep.h"
#include "sim/NeighbourSearch.h"
#include "sim/TickInput.h"

namespace keldor {

struct World;
class RandomSource;
class TickPainter;

// What stays the same from tick to tick: the world, its random source, who
// hears the tick's events, and whether a tick is running.
struct TickContext {
  World& world;
  RandomSource& random;
  TickEvents& events;
  // Pair ants with piles and rivals through a cell index (same results as the
  // full scans, which remain for comparison).
  bool UseAntIndex = true;
  // A tick is running: set and cleared by RunTick.
  bool InProgress = false;
  NeighbourSearch Search{};  // the indexes' arrays, kept from one tick to the next
  std::vector<TurnRotation> Turns{};  // the ant pass's turns of one nest, likewise
};

// Runs one tick with what the window hands it, drawing on `painter` (the
// NullPainter for a tick nobody sees: drawing never changes the world). A call
// made while another tick is still running (from inside the modal
// population-limit message) returns false at once.
bool RunTick(TickContext& context, TickPainter& painter, const TickInput& input);

}  // namespace keldor
