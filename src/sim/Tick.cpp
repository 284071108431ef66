#include "sim/Tick.h"

#include "model/Numeric.h"
#include "model/Random.h"
#include "model/World.h"
#include "sim/AntIndex.h"
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

// Draws every ant (while ants are shown) and steps the living ones.
void AntPass(World& world, RandomSource& random, TickPainter& painter) {
  for (int i = 0; i < world.NestCount; ++i) {
    for (int j = 0; j < world.Nests[static_cast<size_t>(i)].AntCount(); ++j) {
      if (world.ShowAnts == 1) {
        Nest& nest = world.Nests[static_cast<size_t>(i)];
        painter.DrawAnt(world, nest, j);
        // A bitten ant is drawn red once, then takes its nest's colour again.
        nest.Ants[j].Colour = nest.Colour;
      }
      StepAnt(world, random, i, j);
    }
  }
}

// Clears TickInProgress however the tick ends.
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

void Timer1_Timer(TickContext& context) {
  World& world = context.world;
  if (world.TickInProgress) return;
  TickGuard guard(world.TickInProgress);
  RandomSource& random = context.random;
  TickPainter& painter = context.painter;

  random.ReseedFromClock();
  painter.ClearViews(world);
  if (world.Settings.CurrentTool == 3 && world.MouseHeld) RemoveAntsAtCursor(world, random);

  // No ant moves before the ant pass, but upkeep renumbers ants as it
  // removes bodies: the pile pass gets an index of its own.
  const bool indexed = world.Running && context.UseAntIndex;
  if (indexed) {
    AntIndex index(world);
    ResolveEncounters(world, &index);
  } else {
    ResolveEncounters(world, nullptr);
  }
  AntUpkeep(world);
  if (indexed) {
    AntIndex index(world);
    FoodPileUpdate(world, random, &index);
  } else {
    FoodPileUpdate(world, random, nullptr);
  }
  CellUpdate(world, painter);
  painter.DrawWalls(world);
  painter.DrawNests(world);
  painter.DrawFoodPiles(world);
  AntPass(world, random, painter);
  CheckPopulationLimit(world, context.messages);
  painter.DrawViewFrames(world);
  BreedNests(world, random);
  world.Controls.PopulationCaption = CStr(world.Settings.Population);
  painter.DrawZoomLabel(world);
  painter.FinishFrame(world);
}

}  // namespace keldor
