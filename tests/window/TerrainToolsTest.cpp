// The terrain tools: placing and removing a nest, removing ants.
#include <gtest/gtest.h>

#include "sim/SimTestSupport.h"
#include "window/TerrainTools.h"

namespace keldor::testing {
namespace {

// Moves the mouse to the centre of cell (x, y) with the given buttons held.
void MoveTo(World& world, WindowState& window, int button, int x, int y) {
  const double side = world.Settings.CellSize;
  TerrainPointerMoved(world, window, button, static_cast<float>((x - 0.5) * side * window.View.ZoomX),
                      static_cast<float>((y - 0.5) * side * window.View.ZoomY));
}

TEST(TerrainTools, NestToolTogglesANestAndRemoveToolSparesTheQueen) {
  TickRig rig;
  World& world = rig.world();
  WindowState& window = rig.window();
  SelectTool(world, window, 4);
  MoveTo(world, window, 0, 5, 5);
  const int16_t population = world.Settings.Population;
  TerrainPointerPressed(world, window, rig.test.random, 1);
  TerrainPointerReleased(window, 1);
  ASSERT_EQ(world.NestCount, 2);
  EXPECT_GT(world.Settings.Population, population);
  world.Nests[1].FoodStore = 7;
  TerrainPointerPressed(world, window, rig.test.random, 1);
  TerrainPointerReleased(window, 1);
  EXPECT_EQ(world.NestCount, 1);
  EXPECT_EQ(world.Settings.Population, population);
  EXPECT_GE(world.Cells(5, 5).Food, 7) << "the store is left as food";

  SelectTool(world, window, 3);
  const Nest& nest = world.Nests[0];
  MoveTo(world, window, 0, nest.CellX, nest.CellY);
  TerrainPointerPressed(world, window, rig.test.random, 1);
  for (int i = 0; i < 3; ++i) rig.Tick();
  EXPECT_GE(world.Nests[0].AntCount(), 1);
  EXPECT_GT(world.Nests[0].Ants[0].Energy, 0);
  EXPECT_EQ(world.Cells(nest.CellX, nest.CellY).AntCount, world.Nests[0].Ants[0].CellX == nest.CellX ? 1 : 0);
  EXPECT_EQ(LivingAnts(world), world.Settings.Population);
}

}  // namespace
}  // namespace keldor::testing
