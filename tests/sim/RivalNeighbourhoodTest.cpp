// The rival summary that lets the encounter search pass over biters: it must
// see a rival within reach, and only what lies within reach.
#include "sim/RivalNeighbourhood.h"

#include <gtest/gtest.h>

#include "RuleWorld.h"
#include "sim/AntIndex.h"

namespace keldor::testing {
namespace {

TEST(RivalNeighbourhood, SeesRivalsWithinReachAndNothingBeyond) {
  RuleWorld rule(2);  // cells 100 wide; slots are the grid and its ring, 22 x 22
  rule.AddNest(10, 15, 2);
  World& world = rule.world;
  ASSERT_FALSE(world.Nests[0].Signature == world.Nests[1].Signature);
  Ant& own = world.Nests[0].Ants[1];
  Ant& rival = world.Nests[1].Ants[1];
  own.HeadX = 450;  // slot (4, 20), in the ring below the last row
  own.HeadY = 2050;
  // A reach of 50 spans 1 + 1 slots: (2..6, 18..21) lies within reach of
  // slot (4, 20); a reach of 250 spans 3 + 1: (0..8, 16..21).
  const struct {
    double reach, rivalX, rivalY;
    bool mayHold;
  } cases[] = {{50, 550, 1850, true},     // slot (5, 18)
               {50, 650, 2150, true},     // slot (6, 21), the last row
               {50, 750, 2050, false},    // slot (7, 20): one column too far
               {50, 550, 1750, false},    // slot (5, 17): one row too far
               {50, 550, 50, false},      // slot (5, 0): the next column's first row, not below the last
               {250, 850, 1650, true},    // slot (8, 16)
               {250, 50, 2150, true},     // slot (0, 21), the first column
               {250, 950, 2050, false},   // slot (9, 20)
               {250, 450, 1550, false},   // slot (4, 15)
               {1e9, 2150, -50, true}};   // a reach beyond the grid: the far corner, slot (21, 0)
  for (const auto& c : cases) {
    rival.HeadX = c.rivalX;
    rival.HeadY = c.rivalY;
    const AntIndex index(world);
    RivalNeighbourhood rivals(world, index, c.reach);
    EXPECT_EQ(rivals.MayHoldRival(index.CellSlotAt(own.HeadX, own.HeadY), 0), c.mayHold)
        << c.reach << ": " << c.rivalX << "," << c.rivalY;
  }
}

}  // namespace
}  // namespace keldor::testing
