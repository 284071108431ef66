// The ant index must not change a single bite, pickup or their order: the
// same worlds run with and without it stay identical tick after tick.
#include <gtest/gtest.h>

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

TEST(AntIndex, IndexedTicksMatchFullScansOnRandomWorlds) {
  for (uint64_t seed = 1; seed <= 8; ++seed) {
    TickRig direct(seed);
    TickRig indexed(seed);
    direct.context.UseAntIndex = false;
    for (TickRig* rig : {&direct, &indexed}) {
      World& world = rig->world();
      VirtualClock layout(seed * 977);
      RandomSource place(layout);
      world.Settings.AntsPerNest = static_cast<int16_t>(60 + 40 * (seed % 4));
      for (int k = 0; k < 3; ++k) {
        world.CursorCellX = static_cast<int16_t>(1 + place.Rnd() * 30);
        world.CursorCellY = static_cast<int16_t>(1 + place.Rnd() * 30);
        if (!IsNestCell(world, world.CursorCellX, world.CursorCellY)) {
          ASSERT_TRUE(CreateNest(world, rig->test.random));
        }
      }
      for (int k = 0; k < 10; ++k) {
        AddWallAt(world, static_cast<int16_t>(1 + place.Rnd() * 30), static_cast<int16_t>(1 + place.Rnd() * 30));
      }
      world.Running = true;
    }
    for (int tick = 0; tick < 250; ++tick) {
      direct.Tick();
      indexed.Tick();
      direct.world().Running = indexed.world().Running = true;
      ExpectSameWorld(direct.world(), indexed.world(), seed, tick);
      if (::testing::Test::HasFatalFailure()) return;
    }
  }
}

}  // namespace
}  // namespace keldor::testing
