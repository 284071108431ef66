// Picking on the terrain view and what the inspector shows.
#include <gtest/gtest.h>

#include "support/TestWorld.h"
#include "window/PickReport.h"

namespace keldor {
namespace {

struct PickReportTest : ::testing::Test {
  PickReportTest() {
    Nest& nest = world.Nests[0];
    for (int i = 0; i < nest.AntCount(); ++i) nest.Ants[i].Energy = 0;  // out of the way
    // Worker 1 lies from (10, 10) to (14, 10); the last worker from (30, 30) to (30, 34).
    Place(1, 10, 10, 14, 10);
    Place(last, 30, 30, 30, 34);
    // A unit of 40: full is 200, and the upkeep takes 0.4 a tick.
    nest.AntUnit = 40;
    nest.Radius = 1;
    nest.X = nest.Y = 1000;
  }
  void Place(int i, double rx, double ry, double hx, double hy) {
    Ant& a = world.Nests[0].Ants[i];
    a = Ant{rx, ry, hx, hy, 1, 1, a.Serial, 0.5, 4, 12.25, 0.75, 99.3, {}};
  }
  testing::TestWorld t;
  World& world = t.world;
  const int last = world.Nests[0].AntCount() - 1;
};

TEST_F(PickReportTest, PicksTheNearestBodyWithinReachElseTheNestElseTheCell) {
  const Nest& nest = world.Nests[0];
  const double size = world.Settings.CellSize;
  struct Case {
    double x, y;
    Pick::Kind kind;
    uint32_t serial;
  } cases[] = {
      {12, 11.5, Pick::Kind::Ant, nest.Ants[1].Serial},  // 1.5 from the middle of worker 1
      {31.5, 36, Pick::Kind::Ant, nest.Ants[last].Serial},  // 2.5 from the last worker's head (hypot 1.5, 2)
      {12, 12.5, Pick::Kind::Cell, 0},                   // 2.5 from worker 1: out of reach
      {nest.X + 0.9 * nest.Radius / 10, nest.Y, Pick::Kind::Nest, nest.Serial},  // inside the disc (R / ScaleX)
  };
  for (const Case& c : cases) {
    const Pick pick = PickAt(world, c.x, c.y, 2.5 - (c.kind == Pick::Kind::Cell ? 0.01 : 0));
    EXPECT_EQ(pick.What, c.kind) << c.x << "," << c.y;
    EXPECT_EQ(pick.Serial, c.serial) << c.x << "," << c.y;
  }
  const Pick cell = PickAt(world, 2.5 * size, 0.5 * size, 1);
  EXPECT_EQ(cell.CellX, 3);
  EXPECT_EQ(cell.CellY, 1);
  EXPECT_EQ(PickAt(world, -1, 5, 1).What, Pick::Kind::None);  // left of the world
}

TEST_F(PickReportTest, AnAntIsFollowedAcrossRenumberingUntilItDies) {
  Nest& nest = world.Nests[0];
  const Pick pick = PickAt(world, 30, 32, 1);
  ASSERT_EQ(pick.What, Pick::Kind::Ant);
  nest.Ants.Remove(1);  // the picked ant, the last, moves into slot 1
  const PickReport seen = ReportPick(world, pick);
  EXPECT_EQ(seen.Title, "Ant");
  const std::vector<std::pair<std::string, std::string>> expected = {
      {"Colony", "NEST_0"},   {"Doing", "carrying food home"},
      {"Carrying", "12.25 food"}, {"Energy", "50% of full"},  // 99.3 of 200
      {"Life left", "about 249 ticks without eating"},       // 99.3 / 0.4 = 248.25
      {"Cell", "(1, 1)"},     {"Heading", "south"}};           // rear (30, 30), head (30, 34)
  EXPECT_EQ(seen.Lines, expected);
  ASSERT_NE(LivingAnt(world, pick), nullptr);
  Ant& ant = *const_cast<Ant*>(LivingAnt(world, pick));
  ant.Load = 0;
  EXPECT_EQ(ReportPick(world, pick).Lines[1].second, "searching for food");
  EXPECT_EQ(ReportPick(world, pick).Lines[2].second, "nothing");
  nest.X = 30;  // the head (30, 34) lies inside the disc
  nest.Y = 34;
  EXPECT_EQ(ReportPick(world, pick).Lines[1].second, "at the nest");
  ant.Energy = 1.0;
  EXPECT_EQ(ReportPick(world, pick).Lines[4].second, "about 3 ticks without eating");  // 1 / 0.4 = 2.5
  const_cast<Ant*>(LivingAnt(world, pick))->Energy = 0;
  EXPECT_EQ(LivingAnt(world, pick), nullptr);
  EXPECT_EQ(ReportPick(world, pick).Title, "Ant (dead)");
  EXPECT_EQ(ReportPick(world, pick).Lines[1].second, "dead");
}

TEST_F(PickReportTest, NestAndCellLines) {
  Nest& nest = world.Nests[0];
  nest.FoodStore = 2.5;
  const PickReport ofNest = ReportPick(world, {Pick::Kind::Nest, nest.Serial});
  EXPECT_EQ(ofNest.Lines[1], (std::pair<std::string, std::string>{"Colour", "RGB(150, 100, 70)"}));  // the default ant colour
  EXPECT_EQ(ofNest.Lines[2].second, "2.50");
  EXPECT_EQ(ofNest.Lines[3].second, "2");  // the two placed workers live
  Cell& c = world.Cells(4, 5);
  c.Scent = -12.5;
  c.AntCount = 3;
  const PickReport ofCell = ReportPick(world, {Pick::Kind::Cell, 0, 4, 5});
  EXPECT_EQ(ofCell.Title, "Cell (4, 5)");
  EXPECT_EQ(ofCell.Lines[0].second, "-12.50");
  EXPECT_EQ(ofCell.Lines[3].second, "3");
}

}  // namespace
}  // namespace keldor
