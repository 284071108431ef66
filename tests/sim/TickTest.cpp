// What the tick runs while paused, the cell pass and the population limit.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "RuleWorld.h"
#include "SimTestSupport.h"
#include "sim/Births.h"
#include "sim/OdorField.h"

namespace keldor::testing {
namespace {

TEST(Tick, APausedTickMovesFeedsAndGrowsNothing) {
  TickRig rig(4);
  World& world = rig.world();
  world.Running = true;
  for (int i = 0; i < 50; ++i) rig.Tick();
  world.Running = false;
  world.Nests[0].Ants[1].LifeFactor = 0.5;  // would lose energy in a running tick
  const World before = world;
  rig.Tick();
  EXPECT_EQ(world.Nests[0].Ants, before.Nests[0].Ants);
  EXPECT_EQ(world.FoodPiles, before.FoodPiles);
  EXPECT_EQ(world.Cells(15, 15).Scent, before.Cells(15, 15).Scent) << "no decay on the nest cell";
}

// Records the cells the pass draws.
struct DrawnCells : NullPainter {
  std::vector<std::pair<int, int>> Cells;
  void DrawCell(const World&, const Cell& cell) override { Cells.emplace_back(cell.X, cell.Y); }
};

TEST(Tick, CellPassClampsColoursAndDrawsCellsWithScentOrAntsAndDecaysThemWhileRunning) {
  constexpr Colour untouched{45, 12, 3};
  const struct { double scent; int16_t ants; bool wall; double running, paused; Colour colour; } cases[] = {
      {505, 0, false, 499, 500, {116, 168, 116}},     // clamped to 500, then one unit of decay
      {-260, 0, false, -249, -250, {139, 129, 103}},  // clamped to -250
      {-3, 0, false, -2, -3, {199, 171, 144}},        // 200 - 61 * 0.012 = 199.27, ...
      {1, 0, false, 0, 1, {185, 200, 145}},           // decays to 0, which unmarks it
      {0, 2, false, 0, 0, {200, 172, 145}},           // ants without scent: the zero-scent colour
      {0, 0, false, 0, 0, untouched},                 // neither scent nor ants: left alone
      {-120, 0, true, 0, 0, untouched},               // a wall wipes the scent first
      {-120, 2, true, 0, 0, {200, 172, 145}}};
  const Signature marked(std::string_view("1010101010101010"));
  for (const bool running : {true, false}) {
    RuleWorld rule;
    World& world = rule.world;
    world.Running = running;
    for (int16_t row = 1; const auto& c : cases) {
      ASSERT_TRUE(!c.wall || AddWallAt(world, 3, row));
      Cell& cell = world.Cells(3, row++);
      cell.Scent = c.scent;
      cell.AntCount = c.ants;
      cell.Colour = untouched;
      cell.Signature = marked;
    }
    DrawnCells painter;
    CellUpdate(world, painter);
    for (int row = 1; const auto& c : cases) {
      const Cell& cell = world.Cells(3, row);
      const double scent = running ? c.running : c.paused;
      EXPECT_EQ(cell.Scent, scent) << c.scent << " running " << running;
      EXPECT_EQ(cell.Colour, c.colour) << c.scent;
      EXPECT_EQ(cell.Signature, scent == 0 ? Signature::Unmarked() : marked) << c.scent;
      const auto drawn = std::count(painter.Cells.begin(), painter.Cells.end(), std::pair{3, row++});
      EXPECT_EQ(drawn, c.colour != untouched ? 1 : 0) << c.scent;
    }
  }
}

TEST(Population, LimitOnlyAtExactly2000PausesBeforeBirthsAndStartsNoNestedTick) {
  TickRig rig;
  World& world = rig.world();
  rig.events.Reenter = &rig.context;
  for (const int16_t population : {1999, 2001}) {
    world.Settings.Population = population;
    EXPECT_FALSE(PopulationAtLimit(world)) << population;
  }
  world.Running = true;
  world.Settings.Population = 2000;
  world.Nests[0].FoodStore = 3 * world.Nests[0].AntUnit;
  rig.Tick();
  EXPECT_EQ(rig.events.LimitsReached, 1);
  EXPECT_FALSE(rig.events.NestedTickStarted || world.Running);
  EXPECT_EQ(world.Nests[0].AntCount(), 30) << "paused by the message, the tick bears no ant";
  rig.events.Reenter = nullptr;
  rig.Tick();
  EXPECT_EQ(rig.events.LimitsReached, 2);
  EXPECT_TRUE(world.Running) << "the pause button is pressed again";
}

}  // namespace
}  // namespace keldor::testing
