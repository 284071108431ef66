#include "sim/Tick.h"

#include <algorithm>
#include <vector>

#include "model/Numeric.h"
#include "model/Random.h"
#include "model/World.h"
#include "sim/AntStep.h"
#include "sim/Births.h"
#include "sim/Editing.h"
#include "sim/Encounters.h"
#include "sim/FoodPiles.h"
#include "sim/OdorField.h"
#include "sim/TickPainter.h"
#include "sim/Upkeep.h"

namespace keldor {
namespace {

// How many ants ahead the ant pass asks for the cells an ant will read.
constexpr int PrefetchDistance = 4;

// Asks the memory system for the cells around an ant's last cell, which its
// step reads next: in a large world they are rarely in the nearest caches.
void PrefetchCellsAround(const World& world, const Ant& ant) {
  const int x = std::clamp<int>(ant.CellX, 1, world.Settings.GridX);
  const int y = std::clamp<int>(ant.CellY, 1, world.Settings.GridY);
  __builtin_prefetch(&world.Cells(x, y));
  __builtin_prefetch(&world.Cells(x - 1, y));
  __builtin_prefetch(&world.Cells(x + 1, y));
}

// Draws every ant (while ants are shown) and steps the living ones. Each
// nest's worker turns are worked out before its ants step, so that no step
// waits for them: an ant's angle changes only in its own step (the queen
// draws hers during it).
void AntPass(World& world, RandomSource& random, TickPainter& painter, const TickInput& input,
             std::vector<TurnRotation>& turns) {
  const int16_t nestTrace = input.NestTraceSlider.value_or(world.Settings.NestScentMax);
  for (int i = 0; i < world.NestCount; ++i) {
    Nest& nest = world.Nests[static_cast<size_t>(i)];
    turns.resize(static_cast<size_t>(nest.AntCount()));
    for (int j = 1; j < nest.AntCount(); ++j) turns[static_cast<size_t>(j)] = TurnRotation::Of(nest.Ants[j].Angle);
    for (int j = 0; j < nest.AntCount(); ++j) {
      if (j + PrefetchDistance < nest.AntCount()) PrefetchCellsAround(world, nest.Ants[j + PrefetchDistance]);
      if (input.AntsShown) {
        painter.DrawAnt(world, nest, j);
        // A bitten ant is drawn red once, then takes its nest's colour again.
        nest.Ants[j].Colour = nest.Colour;
      }
      StepAnt(world, random, i, j, nestTrace, turns[static_cast<size_t>(j)]);
    }
  }
}

// Ant records of every nest, queens and unremoved dead included.
int AntRecordCount(const World& world) {
  int records = 0;
  for (int n = 0; n < world.NestCount; ++n) records += world.Nests[static_cast<size_t>(n)].AntCount();
  return records;
}

// Marks a tick as running until it ends, however it ends.
class TickGuard {
 public:
  explicit TickGuard(bool& flag) : flag_(flag) { flag_ = true; }
  ~TickGuard() { flag_ = false; }
  TickGuard(const TickGuard&) = delete;
  TickGuard& operator=(const TickGuard&) = delete;

 private:
  bool& flag_;
};

}  // namespace

bool RunTick(TickContext& context, TickPainter& painter, const TickInput& input) {
  World& world = context.world;
  if (context.InProgress) return false;
  TickGuard guard(context.InProgress);
  RandomSource& random = context.random;

  random.ReseedFromClock();
  painter.ClearViews(world);
  if (input.CurrentTool == RemoveAntsTool && input.PointerHeld) {
    RemoveAntsAt(world, random, input.CursorCellX, input.CursorCellY);
  }

  // No ant moves before the ant pass, but upkeep renumbers ants when it
  // removes bodies or nests: the pile pass then needs a fresh index. Ants
  // that die in upkeep may stay in it, since a dead ant takes no bite.
  if (world.Running && context.UseAntIndex) {
    NeighbourSearch& search = context.Search;
    search.Index.Rebuild(world);
    ResolveEncounters(world, &search);
    const int records = AntRecordCount(world);
    AntUpkeep(world);
    if (AntRecordCount(world) != records) search.Index.Rebuild(world);
    FoodPileUpdate(world, random, &search.Index, input);
  } else {
    ResolveEncounters(world, nullptr);
    AntUpkeep(world);
    FoodPileUpdate(world, random, nullptr, input);
  }
  CellUpdate(world, painter);
  painter.DrawWalls(world);
  painter.DrawNests(world);
  painter.DrawFoodPiles(world);
  AntPass(world, random, painter, input, context.Turns);
  if (PopulationAtLimit(world)) context.events.PopulationLimitReached();
  painter.DrawViewFrames(world);
  BreedNests(world, random);
  painter.DrawZoomLabel(world);
  painter.FinishFrame(world);
  return true;
}

}  // namespace keldor
