// The ant index must not change a single bite, pickup or their order: the
// same worlds run with and without it stay identical tick after tick.
#include <gtest/gtest.h>

#include <utility>

#include "SimTestSupport.h"
#include "model/Queries.h"
#include "model/WorldCreation.h"
#include "sim/Editing.h"

namespace keldor::testing {
namespace {

void ExpectSameWorld(const World& a, const World& b, uint64_t seed, int tick) {
  ASSERT_EQ(a.Settings.Population, b.Settings.Population) << "seed " << seed << " tick " << tick;
  ASSERT_EQ(a.NestCount, b.NestCount);
  for (int n = 0; n < a.NestCount; ++n) {
    const Nest& x = a.Nests[static_cast<size_t>(n)];
    const Nest& y = b.Nests[static_cast<size_t>(n)];
    ASSERT_EQ(x.FoodStore, y.FoodStore) << "seed " << seed << " tick " << tick;
    ASSERT_TRUE(x.Ants == y.Ants) << "seed " << seed << " tick " << tick;
  }
  ASSERT_TRUE(a.FoodPiles == b.FoodPiles) << "seed " << seed << " tick " << tick;
  for (int x = 1; x <= a.Settings.GridX; ++x) {
    for (int y = 1; y <= a.Settings.GridY; ++y) {
      ASSERT_EQ(a.Cells(x, y).Scent, b.Cells(x, y).Scent) << "seed " << seed << " tick " << tick;
    }
  }
}

// Runs the same world with and without the index for some ticks, comparing
// after every tick; setUp builds the world from the rig's random source.
template <class SetUp>
void ExpectIndexChangesNothing(uint64_t seed, int ticks, SetUp setUp) {
  TickRig direct(seed);
  TickRig indexed(seed);
  direct.context.UseAntIndex = false;
  for (TickRig* rig : {&direct, &indexed}) {
    setUp(*rig);
    rig->world().Running = true;
  }
  for (int tick = 0; tick < ticks; ++tick) {
    direct.Tick();
    indexed.Tick();
    direct.world().Running = indexed.world().Running = true;
    ExpectSameWorld(direct.world(), indexed.world(), seed, tick);
    if (::testing::Test::HasFatalFailure()) return;
  }
}

void AddNestAt(TickRig& rig, int x, int y) {
  rig.world().CursorCellX = static_cast<int16_t>(x);
  rig.world().CursorCellY = static_cast<int16_t>(y);
  ASSERT_TRUE(CreateNest(rig.world(), rig.test.random));
}

TEST(AntIndex, IndexedTicksMatchFullScansOnRandomWorlds) {
  for (uint64_t seed = 1; seed <= 6; ++seed) {
    ExpectIndexChangesNothing(seed, 200, [seed](TickRig& rig) {
      World& world = rig.world();
      VirtualClock layout(seed * 977);
      RandomSource place(layout);
      world.Settings.AntsPerNest = static_cast<int16_t>(60 + 40 * (seed % 4));
      for (int k = 0; k < 3; ++k) {
        const int x = static_cast<int>(1 + place.Rnd() * 30);
        const int y = static_cast<int>(1 + place.Rnd() * 30);
        if (!IsNestCell(world, x, y)) AddNestAt(rig, x, y);
      }
      for (int k = 0; k < 10; ++k) {
        AddWallAt(world, static_cast<int16_t>(1 + place.Rnd() * 30), static_cast<int16_t>(1 + place.Rnd() * 30));
      }
    });
    if (::testing::Test::HasFatalFailure()) return;
  }
}

// Four big colonies side by side: rivals and queens meet in crowded cells
// from the first tick on.
TEST(AntIndex, IndexedTicksMatchFullScansInACrowdedWorld) {
  for (uint64_t seed = 1; seed <= 2; ++seed) {
    ExpectIndexChangesNothing(seed, 60, [](TickRig& rig) {
      rig.world().Settings.AntsPerNest = 480;
      for (const auto& [x, y] : {std::pair{14, 14}, {15, 14}, {14, 15}, {15, 15}}) AddNestAt(rig, x, y);
    });
    if (::testing::Test::HasFatalFailure()) return;
  }
}

// Short-lived workers at full piles: ants die and are removed while others
// bite, so the pile pass must not use numbers that removal has changed.
TEST(AntIndex, IndexedTicksMatchFullScansWhileBodiesAreRemoved) {
  ExpectIndexChangesNothing(3, 90, [](TickRig& rig) {
    World& world = rig.world();
    world.Settings.AntsPerNest = 150;
    AddNestAt(rig, 10, 10);
    AddNestAt(rig, 11, 10);
    for (int x = 9; x <= 12; ++x) {
      for (int y = 9; y <= 11; ++y) {
        Cell& cell = world.Cells(x, y);
        if (cell.Food != 0) continue;
        FoodPile* pile = AppendFoodPile(world, rig.test.random, static_cast<int16_t>(x), static_cast<int16_t>(y),
                                        world.Settings.CellFoodCapacity());
        ASSERT_NE(pile, nullptr);
        cell.Food = pile->Amount;
      }
    }
    for (Nest& nest : world.Nests) {
      for (int a = 1; a < nest.AntCount(); ++a) nest.Ants[a].Energy = (a % 40 + 1) * nest.AntUnit / 100;
    }
  });
}

}  // namespace
}  // namespace keldor::testing
