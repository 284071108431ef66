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
  // A reach of 50 spans 1 + 1 slots: (2..6, 18..21) lies within reach of slot (4, 20).
  const struct {
    double rivalX, rivalY;
    bool mayHold;
  } cases[] = {{550, 1850, true},    // slot (5, 18)
               {650, 2150, true},    // slot (6, 21), the last row
               {750, 2050, false},   // slot (7, 20): one column too far
               {550, 1750, false},   // slot (5, 17): one row too far
               {550, 50, false}};    // slot (5, 0): the next column's first row, not below the last
  for (const auto& c : cases) {
    rival.HeadX = c.rivalX;
    rival.HeadY = c.rivalY;
    const AntIndex index(world);
    RivalNeighbourhood rivals(world, index, 50);
    EXPECT_EQ(rivals.MayHoldRival(index.CellSlotAt(own.HeadX, own.HeadY), 0), c.mayHold) << c.rivalX << "," << c.rivalY;
  }
}

}  // namespace
}  // namespace keldor::testing
