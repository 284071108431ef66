// Long runs: a crowded world keeps its bookkeeping after every tick, and the
// ant index changes nothing. Foraging itself is pinned by the golden runs.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "SimTestSupport.h"
#include "model/Queries.h"
#include "sim/Editing.h"

namespace keldor::testing {
namespace {

void ExpectInvariants(const World& world) {
  const WorldSettings& s = world.Settings;
  ASSERT_EQ(s.Population, LivingAnts(world));
  std::vector<int> counts(static_cast<size_t>((s.GridX + 2) * (s.GridY + 2)), 0);
  for (int n = 0; n < world.NestCount; ++n) {
    for (const Ant& ant : world.Nests[static_cast<size_t>(n)].Ants) {
      if (!(ant.Energy > 0)) continue;
      ++counts[static_cast<size_t>(ant.CellX * (s.GridY + 2) + ant.CellY)];
      ASSERT_EQ(ant.CellX, CellOfCoordinate(ant.HeadX, s.CellSize)) << "an ant ends in the cell of its head";
      ASSERT_EQ(ant.CellY, CellOfCoordinate(ant.HeadY, s.CellSize));
      ASSERT_NEAR(std::hypot(ant.HeadX - ant.RearX, ant.HeadY - ant.RearY), ant.Length / s.ScaleX, 1e-6);
    }
  }
  for (int x = 1; x <= s.GridX; ++x) {
    for (int y = 1; y <= s.GridY; ++y) {
      ASSERT_EQ(world.Cells(x, y).AntCount, counts[static_cast<size_t>(x * (s.GridY + 2) + y)]);
    }
  }
  for (const FoodPile& pile : world.FoodPiles) ASSERT_EQ(pile.Amount, world.Cells(pile.X, pile.Y).Food);
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
  for (const auto& [x, y] : {std::pair{8, 8}, {22, 8}, {15, 22}}) rig.AddNestAt(x, y);
  for (int16_t y = 12; y <= 18; ++y) ASSERT_TRUE(AddWallAt(world, 12, y));
  ScentRangePainter painter;
  TickContext context{world, rig.test.random, rig.events};
  for (int tick = 0; tick < 3000 && !::testing::Test::HasFatalFailure(); ++tick) {
    SCOPED_TRACE(tick);
    world.Running = true;  // resumes after the limit message
    rig.test.clock.Advance(0.075);
    RunTick(context, painter, TickInputOf(rig.window(), world));
    ExpectInvariants(world);
    ASSERT_FALSE(painter.OutOfRange);
  }
}

void ExpectSameWorld(const World& a, const World& b) {
  ASSERT_EQ(a.Settings.Population, b.Settings.Population);
  ASSERT_EQ(a.NestCount, b.NestCount);
  for (size_t n = 0; n < static_cast<size_t>(a.NestCount); ++n) {
    ASSERT_EQ(a.Nests[n].FoodStore, b.Nests[n].FoodStore);
    ASSERT_TRUE(a.Nests[n].Ants == b.Nests[n].Ants);
  }
  ASSERT_TRUE(a.FoodPiles == b.FoodPiles);
  for (int x = 1; x <= a.Settings.GridX; ++x) {
    for (int y = 1; y <= a.Settings.GridY; ++y) ASSERT_EQ(a.Cells(x, y).Scent, b.Cells(x, y).Scent);
  }
}

// Runs the same world with and without the index, comparing after every tick.
template <class SetUp>
void ExpectIndexChangesNothing(uint64_t seed, int ticks, SetUp setUp) {
  SCOPED_TRACE(seed);
  TickRig direct(seed), indexed(seed);
  direct.context.UseAntIndex = false;
  setUp(direct);
  setUp(indexed);
  for (int tick = 0; tick < ticks && !::testing::Test::HasFatalFailure(); ++tick) {
    SCOPED_TRACE(tick);
    direct.world().Running = indexed.world().Running = true;
    direct.Tick();
    indexed.Tick();
    ExpectSameWorld(direct.world(), indexed.world());
  }
}

TEST(AntIndex, IndexedTicksMatchFullScansOnRandomWorlds) {
  for (uint64_t seed = 1; seed <= 6 && !::testing::Test::HasFatalFailure(); ++seed) {
    ExpectIndexChangesNothing(seed, 200, [seed](TickRig& rig) {
      VirtualClock layout(seed * 977);
      RandomSource place(layout);
      rig.world().Settings.AntsPerNest = static_cast<int16_t>(60 + 40 * (seed % 4));
      for (int k = 0; k < 3; ++k) {
        const int x = static_cast<int>(1 + place.Rnd() * 30), y = static_cast<int>(1 + place.Rnd() * 30);
        if (!IsNestCell(rig.world(), x, y)) rig.AddNestAt(x, y);
      }
      for (int k = 0; k < 10; ++k) {
        AddWallAt(rig.world(), static_cast<int16_t>(1 + place.Rnd() * 30), static_cast<int16_t>(1 + place.Rnd() * 30));
      }
    });
  }
}

// Four big colonies side by side: rivals and queens meet in crowded cells.
// Their ants are half as long as New's, so the first nest sets the reach.
TEST(AntIndex, IndexedTicksMatchFullScansInACrowdedWorld) {
  for (uint64_t seed = 1; seed <= 2 && !::testing::Test::HasFatalFailure(); ++seed) {
    ExpectIndexChangesNothing(seed, 60, [](TickRig& rig) {
      rig.world().Settings.AntsPerNest = 480;
      rig.world().Settings.AntSizeMm = 1.5;
      for (const auto& [x, y] : {std::pair{14, 14}, {15, 14}, {14, 15}, {15, 15}}) rig.AddNestAt(x, y);
    });
  }
}

// Short-lived workers at full piles: ants die and are removed while others
// bite, so the pile pass must not use numbers that removal has changed.
TEST(AntIndex, IndexedTicksMatchFullScansWhileBodiesAreRemoved) {
  ExpectIndexChangesNothing(3, 90, [](TickRig& rig) {
    World& world = rig.world();
    world.Settings.AntsPerNest = 150;
    rig.AddNestAt(10, 10);
    rig.AddNestAt(11, 10);
    for (int x = 9; x <= 12; ++x) {
      for (int y = 9; y <= 11; ++y) {
        if (world.Cells(x, y).Food != 0) continue;
        FoodPile* pile = AppendFoodPile(world, rig.test.random, static_cast<int16_t>(x), static_cast<int16_t>(y),
                                        world.Settings.CellFoodCapacity());
        ASSERT_NE(pile, nullptr);
        world.Cells(x, y).Food = pile->Amount;
      }
    }
    for (Nest& nest : world.Nests) {
      for (int a = 1; a < nest.AntCount(); ++a) nest.Ants[a].Energy = (a % 40 + 1) * nest.AntUnit / 100;
    }
  });
}

}  // namespace
}  // namespace keldor::testing
