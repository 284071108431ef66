// A crowded multi-nest world run for thousands of ticks, checking the
// bookkeeping invariants after every tick.
#include <gtest/gtest.h>

#include <vector>

#include "SimTestSupport.h"
#include "model/WorldCreation.h"
#include "sim/Editing.h"

namespace keldor::testing {
namespace {

void AddNestAt(World& world, RandomSource& random, int16_t x, int16_t y) {
  world.CursorCellX = x;
  world.CursorCellY = y;
  ASSERT_TRUE(CreateNest(world, random));
}

void ExpectInvariants(const World& world, int tick) {
  const WorldSettings& s = world.Settings;
  ASSERT_EQ(s.Population, LivingAnts(world)) << "tick " << tick;
  std::vector<int> counts(static_cast<size_t>((s.GridX + 2) * (s.GridY + 2)), 0);
  for (int n = 0; n < world.NestCount; ++n) {
    for (const Ant& ant : world.Nests[static_cast<size_t>(n)].Ants) {
      if (ant.Energy > 0) ++counts[static_cast<size_t>(ant.CellX * (s.GridY + 2) + ant.CellY)];
    }
  }
  for (int x = 1; x <= s.GridX; ++x) {
    for (int y = 1; y <= s.GridY; ++y) {
      const Cell& cell = world.Cells(x, y);
      ASSERT_EQ(cell.AntCount, counts[static_cast<size_t>(x * (s.GridY + 2) + y)]) << "tick " << tick;
    }
  }
  for (const FoodPile& pile : world.FoodPiles) {
    ASSERT_EQ(pile.Amount, world.Cells(pile.X, pile.Y).Food) << "tick " << tick;
  }
}

// Scents are checked by a painter: DrawCell sees each cell right after its clamp.
class ScentRangePainter : public NullPainter {
 public:
  bool OutOfRange = false;
  void DrawCell(const World& world, const Cell& cell) override {
    if (cell.Scent > world.Settings.FoodScentMax || cell.Scent < -world.Settings.NestScentMax) OutOfRange = true;
  }
};

TEST(Soak, CrowdedMultiNestWorldKeepsItsBookkeeping) {
  TickRig rig(7);
  World& world = rig.world();
  world.Settings.AntsPerNest = 150;
  AddNestAt(world, rig.test.random, 8, 8);
  AddNestAt(world, rig.test.random, 22, 8);
  AddNestAt(world, rig.test.random, 15, 22);
  for (int16_t y = 12; y <= 18; ++y) ASSERT_TRUE(AddWallAt(world, 12, y));
  ScentRangePainter painter;
  TickContext context{world, rig.test.random, painter, rig.messages};
  world.Running = true;
  for (int tick = 0; tick < 3000; ++tick) {
    rig.test.clock.Advance(0.075);
    Timer1_Timer(context);
    ExpectInvariants(world, tick);
    ASSERT_FALSE(painter.OutOfRange) << "tick " << tick;
    if (!world.Running) world.Running = true;  // resume after the limit message
  }
}

}  // namespace
}  // namespace keldor::testing
