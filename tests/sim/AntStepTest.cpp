// Trail laying, the scent lookups and the ant step's guards.
#include <gtest/gtest.h>

#include "SimTestSupport.h"
#include <cmath>

#include "model/Queries.h"
#include "sim/AntStep.h"

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
  void Walk(int from, int to) { LayScentTrail(world(), test.random, 0, 1, from, 3, to, 3); }
};

TEST(Trail, SearchingAntEvensNestScentIntoUnitSteps) {
  TrailRig rig;
  const double nest = -rig.world().Settings.NestScentMax;
  rig.cell(1).Scent = nest;
  for (int x = 2; x <= 8; ++x) rig.cell(x).Scent = 0;
  for (int x = 1; x < 8; ++x) rig.Walk(x, x + 1);
  for (int x = 1; x <= 8; ++x) EXPECT_EQ(rig.cell(x).Scent, nest + (x - 1)) << "cell " << x;
}

TEST(Trail, FoodScentSpreadsBackAndLoadedAntCarriesItForward) {
  TrailRig rig;
  rig.cell(5).Scent = 0;
  rig.cell(6).Scent = 40;
  rig.Walk(5, 6);  // U1: the cell left behind gets one unit less
  EXPECT_EQ(rig.cell(5).Scent, 39);
  rig.ant().Load = 3;
  rig.cell(7).Scent = 0;
  rig.Walk(6, 7);  // L3: carried forward one unit weaker
  EXPECT_EQ(rig.cell(7).Scent, 39);
  rig.cell(8).Scent = -rig.world().NestTraceValue();
  rig.cell(9).Scent = 60;
  rig.ant().Load = 0;
  rig.Walk(8, 9);
  EXPECT_EQ(rig.cell(8).Scent, -rig.world().NestTraceValue()) << "the nest cell is never rewritten";
}

TEST(Trail, LoadedAntPullsTheNestGradientBehindIt) {
  TrailRig rig;
  rig.ant().Load = 2;
  rig.cell(4).Scent = -3;
  rig.cell(3).Scent = -9;
  rig.Walk(4, 3);
  EXPECT_EQ(rig.cell(4).Scent, -8);
}

TEST(Lookups, CrossNeighbourhoodFindsNestCellAndFoodGradient) {
  TrailRig rig;
  World& world = rig.world();
  for (int x = 9; x <= 11; ++x) {
    for (int y = 9; y <= 11; ++y) world.Cells(x, y).Scent = 0;
  }
  world.Cells(11, 11).Scent = 80;  // diagonal: never considered
  world.Cells(10, 11).Scent = 20;
  world.Cells(9, 10).Scent = -world.NestTraceValue();
  EXPECT_EQ(FoodwardCell(world, 10, 10).Scent, 20);
  EXPECT_EQ(NestwardCell(world, 10, 10).Scent, -world.NestTraceValue());
}

TEST(AntStep, PausedOrDeadAntsStayPut) {
  TickRig rig;
  World& world = rig.world();
  const Ant before = world.Nests[0].Ants[1];
  StepAnt(world, rig.test.random, 0, 1);
  EXPECT_EQ(world.Nests[0].Ants[1], before);
  world.Running = true;
  world.Nests[0].Ants[1].Energy = 0;
  const Ant dead = world.Nests[0].Ants[1];
  StepAnt(world, rig.test.random, 0, 1);
  EXPECT_EQ(world.Nests[0].Ants[1], dead);
}

TEST(AntStep, WorkersAlwaysEndInTheCellOfTheirHeadAndKeepTheirLength) {
  TickRig rig(9);
  World& world = rig.world();
  world.Running = true;
  for (int tick = 0; tick < 200; ++tick) {
    rig.Tick();
    const Nest& nest = world.Nests[0];
    for (int a = 1; a < nest.AntCount(); ++a) {
      const Ant& ant = nest.Ants[a];
      if (!(ant.Energy > 0)) continue;
      ASSERT_EQ(ant.CellX, CellOfCoordinate(ant.HeadX, world.Settings.CellSize)) << "tick " << tick;
      ASSERT_EQ(ant.CellY, CellOfCoordinate(ant.HeadY, world.Settings.CellSize)) << "tick " << tick;
      ASSERT_NEAR(std::hypot(ant.HeadX - ant.RearX, ant.HeadY - ant.RearY), ant.Length / world.Settings.ScaleX, 1e-6);
    }
  }
}

}  // namespace
}  // namespace keldor::testing
