// The terrain tools and the editing routines they call.
#include <gtest/gtest.h>

#include "SimTestSupport.h"
#include "model/Queries.h"
#include "sim/Editing.h"
#include "sim/TerrainTools.h"

namespace keldor::testing {
namespace {

// Terrain coordinates of the centre of cell (x, y).
float TerrainX(const World& world, int x) { return static_cast<float>(((x - 1) + 0.5) * world.Settings.CellSize * world.ZoomX); }
float TerrainY(const World& world, int y) { return static_cast<float>(((y - 1) + 0.5) * world.Settings.CellSize * world.ZoomY); }

void MoveTo(World& world, int button, int x, int y) { picTerreno_MouseMove(world, button, TerrainX(world, x), TerrainY(world, y)); }

TEST(TerrainTools, WallDragsPaintAndEraseAndBothButtonsDoNothing) {
  TickRig rig;
  World& world = rig.world();
  btnAction_Click(world, 2);
  EXPECT_TRUE(world.Controls.CrossHairPointer);
  for (int x = 3; x <= 6; ++x) MoveTo(world, 1, x, 4);
  MoveTo(world, 1, 6, 4);  // already a brick: no second one
  EXPECT_EQ(world.WallCount(), 4);
  EXPECT_EQ(world.Cells(6, 4).ObjectCount(), 1);
  MoveTo(world, 3, 7, 4);
  EXPECT_EQ(world.WallCount(), 4) << "both buttons held do nothing";
  MoveTo(world, 2, 4, 4);
  MoveTo(world, 2, 5, 4);
  EXPECT_EQ(world.WallCount(), 2);
  EXPECT_FALSE(CellHasObjectType(world, PlasterBrickType, 4, 4));
  EXPECT_TRUE(CellHasObjectType(world, PlasterBrickType, 3, 4));
  const WallObject& wall = world.Walls[0];
  ASSERT_EQ(wall.Shapes.size(), 2u);
  EXPECT_EQ(wall.Shapes[0].Points[2].X, wall.X * world.Settings.CellSize);
  EXPECT_EQ(wall.Shapes[0].Material, "CaSO4");
}

TEST(TerrainTools, NestToolTogglesANest) {
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
  EXPECT_EQ(world.NestCount, 1);
  EXPECT_EQ(world.Settings.Population, population);
  EXPECT_GE(world.Cells(5, 5).Food, 7);
  EXPECT_EQ(LivingAnts(world), world.Settings.Population);
}

TEST(TerrainTools, HeldFoodToolGrowsAPileTickByTick) {
  TickRig rig;
  World& world = rig.world();
  btnAction_Click(world, 1);
  MoveTo(world, 0, 2, 2);
  world.Cells(2, 2).Food = 0;
  for (int j = world.FoodPileCount() - 1; j >= 0; --j) {
    if (world.FoodPiles[j].X == 2 && world.FoodPiles[j].Y == 2) world.FoodPiles.Remove(j);
  }
  picTerreno_MouseDown(world, rig.test.random, 1);
  rig.Tick();
  const double first = world.Cells(2, 2).Food;
  rig.Tick();
  EXPECT_NEAR(world.Cells(2, 2).Food, Min(first + world.Settings.SpreadFoodAmount, world.Settings.CellFoodCapacity()), 1e-9);
  EXPECT_GT(world.Cells(2, 2).Food, first);
  picTerreno_MouseUp(world, 1);
  EXPECT_FALSE(world.MouseHeld);
}

TEST(TerrainTools, RemoveAntsToolNeverTakesTheQueen) {
  TickRig rig;
  World& world = rig.world();
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

TEST(TerrainTools, PaletteTogglesAndSwapsTops) {
  TickRig rig;
  World& world = rig.world();
  const int collapsed = world.Controls.ActionsHeight;
  btnPickAction_Click(world);
  EXPECT_EQ(world.Controls.PickActionCaption, "^");
  EXPECT_EQ(world.Controls.ActionsHeight, collapsed + 4 * 405 + 90);
  btnAction_Click(world, 3);
  EXPECT_EQ(world.Controls.PickActionCaption, "v");
  EXPECT_EQ(world.Controls.ActionsHeight, collapsed);
  EXPECT_EQ(world.Controls.ActionTops[3], 135);
  EXPECT_EQ(world.Controls.ActionTops[0], 1395);
}

}  // namespace
}  // namespace keldor::testing
