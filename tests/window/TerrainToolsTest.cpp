// Trail laying and the terrain tools.
#include <gtest/gtest.h>

#include "sim/SimTestSupport.h"
#include "model/Queries.h"
#include "sim/AntStep.h"
#include "window/TerrainTools.h"

namespace keldor::testing {
namespace {

struct TrailRig : TickRig {
  TrailRig() {
    world().Running = true;
    ant().Load = 0;
    ant().Energy = 100;
  }
  Ant& ant() { return world().Nests[0].Ants[1]; }
  Cell& cell(int x) { return world().Cells(x, 3); }
  void Walk(int from, int to) { LayScentTrail(world(), test.random, 0, 1, from, 3, to, 3, world().Settings.NestScentMax); }
};

TEST(Trail, SearchingAntEvensNestScentIntoUnitSteps) {
  TrailRig rig;
  const double nest = -rig.world().Settings.NestScentMax;
  rig.cell(1).Scent = nest;
  for (int x = 2; x <= 8; ++x) rig.cell(x).Scent = 0;
  for (int x = 1; x < 8; ++x) rig.Walk(x, x + 1);
  for (int x = 1; x <= 8; ++x) EXPECT_EQ(rig.cell(x).Scent, nest + (x - 1)) << "cell " << x;
}

TEST(Trail, EachStepMovesScentByOneUnit) {
  const struct {
    double load, from, to;
    int checked;  // the cell whose scent is checked: 4 (left) or 5 (entered)
    double expected;
    const char* what;
  } cases[] = {
      {0, 0, 40, 4, 39, "food scent spreads back to the cell left behind"},
      {3, 40, 0, 5, 39, "a loaded ant carries food scent forward"},
      {2, -3, -9, 4, -8, "a loaded ant pulls the nest gradient behind it"},
  };
  for (const auto& c : cases) {
    TrailRig rig;
    rig.ant().Load = c.load;
    rig.cell(4).Scent = c.from;
    rig.cell(5).Scent = c.to;
    rig.Walk(4, 5);
    EXPECT_EQ(rig.cell(c.checked).Scent, c.expected) << c.what;
  }
  TrailRig rig;
  rig.cell(8).Scent = -rig.world().Settings.NestScentMax;
  rig.cell(9).Scent = 60;
  rig.Walk(8, 9);
  EXPECT_EQ(rig.cell(8).Scent, -rig.world().Settings.NestScentMax) << "the nest cell is never rewritten";
}

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
