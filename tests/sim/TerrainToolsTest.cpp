// The terrain tools: placing and removing a nest, removing ants.
#include <gtest/gtest.h>

#include "SimTestSupport.h"
#include "sim/TerrainTools.h"

namespace keldor::testing {
namespace {

// Moves the mouse to the centre of cell (x, y) with the given buttons held.
void MoveTo(World& world, int button, int x, int y) {
  const double side = world.Settings.CellSize;
  picTerreno_MouseMove(world, button, static_cast<float>((x - 0.5) * side * world.ZoomX),
                       static_cast<float>((y - 0.5) * side * world.ZoomY));
}

TEST(TerrainTools, NestToolTogglesANestAndRemoveToolSparesTheQueen) {
  TickRig rig;
  World& world = rig.world();
  btnAction_Click(world, 4);
  MoveTo(world, 0, 5, 5);
  const int16_t population = world.Settings.Population;
  picTerreno_MouseDown(world, rig.test.random, 1);
  picTerreno_MouseUp(world, 1);
  ASSERT_EQ(world.NestCount, 2);
  EXPECT_GT(world.Settings.Population, population);
  world.Nests[1].FoodStore = 7;
  picTerreno_MouseDown(world, rig.test.random, 1);
  picTerreno_MouseUp(world, 1);
  EXPECT_EQ(world.NestCount, 1);
  EXPECT_EQ(world.Settings.Population, population);
  EXPECT_GE(world.Cells(5, 5).Food, 7) << "the store is left as food";

  btnAction_Click(world, 3);
  const Nest& nest = world.Nests[0];
  MoveTo(world, 0, nest.CellX, nest.CellY);
  picTerreno_MouseDown(world, rig.test.random, 1);
  for (int i = 0; i < 3; ++i) rig.Tick();
  EXPECT_GE(world.Nests[0].AntCount(), 1);
  EXPECT_GT(world.Nests[0].Ants[0].Energy, 0);
  EXPECT_EQ(world.Cells(nest.CellX, nest.CellY).AntCount, world.Nests[0].Ants[0].CellX == nest.CellX ? 1 : 0);
  EXPECT_EQ(LivingAnts(world), world.Settings.Population);
}

}  // namespace
}  // namespace keldor::testing
