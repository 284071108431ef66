// The food-pile pass rule by rule: pickup, syncing with the cell, removal,
// growth, spreading and scent emission, each in a world where it alone acts.
#include <gtest/gtest.h>

#include "RuleWorld.h"
#include "sim/AntIndex.h"
#include "sim/FoodPiles.h"
#include "support/ScriptedDraws.h"

namespace keldor::testing {
namespace {

TEST(FoodPiles, AntsOnTheDiscBiteInNestThenAntOrderWhileTheyCarryLessThanAUnit) {
  // Nests 0 and 1 bite 100 at a time from a pile of 250 on (4, 4).
  const struct { int nest, ant; double load, offset, loadAfter; } cases[] = {
      {0, 1, 50, 0, 150},    // half a unit carried: a whole unit more, 150 left
      {0, 2, 0, 0, 100},     // 50 left
      {0, 3, 100, 0, 100},   // a whole unit carried: nothing more
      {1, 1, 0, 0.45, 0},    // 4.5 from the centre: within Sqr(250 / Pi) = 8.92, beyond Sqr(50 / Pi) = 3.99
      {1, 2, 0, 0, 50}};     // the last bite takes what is left
  for (const bool indexed : {false, true}) {
    RuleWorld rule(4);
    rule.AddNest(12, 10, 3);
    rule.nest(0).AntUnit = rule.nest(1).AntUnit = 100;
    for (const auto& c : cases) {
      rule.PlaceAnt(rule.nest(c.nest).Ants[c.ant], 4, 4, c.offset);
      rule.nest(c.nest).Ants[c.ant].Load = c.load;
    }
    rule.AddPile(4, 4, 250);
    AntIndex index(rule.world);
    FoodPileUpdate(rule.world, rule.random, indexed ? &index : nullptr, {});
    for (const auto& c : cases) EXPECT_EQ(rule.nest(c.nest).Ants[c.ant].Load, c.loadAfter) << c.ant << indexed;
    EXPECT_EQ(rule.world.FoodPileCount(), 0) << "emptied by its last bite, the pile goes in the same pass";
    EXPECT_EQ(rule.world.Cells(4, 4).Food, 0);
  }
}

TEST(FoodPiles, ThePileFollowsItsCellAndTheMovedPileIsProcessed) {
  RuleWorld rule;
  World& world = rule.world;
  rule.AddPile(3, 3, 1000);
  rule.AddPile(5, 5, 1000);
  world.Cells(3, 3).Food = 0;     // emptied by the food tool
  world.Cells(5, 5).Food = 2000;  // grown by the food tool
  FoodPileUpdate(world, rule.random, nullptr, {});
  ASSERT_EQ(world.FoodPileCount(), 1);
  // Moved into slot 0 and taken in the same pass: 2000 from its cell, plus growth.
  EXPECT_EQ(world.FoodPiles[0].X, 5);
  EXPECT_NEAR(world.FoodPiles[0].Amount, 2157.07963, 1e-6);
  EXPECT_EQ(world.Cells(5, 5).Food, world.FoodPiles[0].Amount);
  world.Running = false;
  world.Cells(5, 5).Food = 3000;
  FoodPileUpdate(world, rule.random, nullptr, {});
  EXPECT_EQ(world.FoodPiles[0].Amount, 3000) << "paused: synced, not grown";
  world.Cells(5, 5).Food = 0;
  FoodPileUpdate(world, rule.random, nullptr, {});
  EXPECT_EQ(world.FoodPileCount(), 0) << "paused, an emptied pile still goes";
}

TEST(FoodPiles, EmissionIsTheWholePartOfTheFullnessAndYieldsToStrongerScent) {
  RuleWorld rule;
  World& world = rule.world;
  world.Running = false;
  const struct { double food, scent, scentAfter; } cases[] = {
      {158000, 0, 100},      // 500 * 158000 / 785398.15 = 100.59, whose whole part is 100
      {158000, -50, 100},    // a weaker nest scent is replaced
      {158000, -130, -130},  // a stronger nest scent stays
      {world.Settings.CellFoodCapacity(), 0, 500}};  // a full pile emits FoodScentMax
  for (int16_t row = 0; row < 4; ++row) {
    rule.AddPile(2, row + 1, cases[row].food);
    world.Cells(2, row + 1).Scent = cases[row].scent;
  }
  FoodPileUpdate(world, rule.random, nullptr, {});
  for (int row = 0; row < 4; ++row) EXPECT_EQ(world.Cells(2, row + 1).Scent, cases[row].scentAfter) << row;
}

TEST(FoodPiles, AFullPileSeedsAFreeNeighbourWhileItHasBudget) {
  // Offsets (-1)^(Int(2 r1) + 1) * Int(2 r2) and likewise from r3, r4; the
  // target (6, 5) is blocked by food ('f') or an ant ('a').
  const struct { int16_t x, y, budget; double r1, r2, r3, r4; char block; int16_t seedX, seedY; } cases[] = {
      {5, 5, 3, 0.5, 0.5, 0.5, 0.0, ' ', 6, 5},   // (+1, 0)
      {5, 5, 3, 0.0, 0.5, 0.75, 0.9, ' ', 4, 6},  // (-1, +1)
      {5, 5, 0, 0.5, 0.5, 0.5, 0.0, ' ', 0, 0},   // no budget left
      {5, 5, 3, 0.5, 0.0, 0.5, 0.0, ' ', 0, 0},   // its own cell
      {5, 5, 3, 0.5, 0.5, 0.5, 0.0, 'f', 0, 0},
      {5, 5, 3, 0.5, 0.5, 0.5, 0.0, 'a', 0, 0},
      {20, 5, 3, 0.5, 0.5, 0.5, 0.0, ' ', 0, 0},  // beyond the last column
      {5, 2, 3, 0.5, 0.0, 0.0, 0.5, ' ', 5, 1},   // (0, -1) into the first row
      {5, 1, 3, 0.5, 0.0, 0.0, 0.5, ' ', 0, 0}};  // (0, -1) above the first row
  for (const auto& c : cases) {
    RuleWorld rule;
    World& world = rule.world;
    rule.AddPile(c.x, c.y, CellCapacity);
    world.FoodPiles[0].SpreadBudget = c.budget;
    world.Cells(6, 5).Food = c.block == 'f' ? 1 : 0;
    world.Cells(6, 5).AntCount = c.block == 'a' ? 1 : 0;
    ScriptedDraws script({c.r1, c.r2, c.r3, c.r4, 0.5});
    rule.random.UseScript(&script);
    FoodPileUpdate(world, rule.random, nullptr, {});
    const bool seeds = c.seedX != 0;
    EXPECT_EQ(script.Log, seeds ? "ddddd" : "dddd") << c.r1 << c.r2 << c.r3 << c.r4;
    ASSERT_EQ(world.FoodPileCount(), seeds ? 2 : 1);
    EXPECT_EQ(world.FoodPiles[0].SpreadBudget, seeds ? c.budget - 1 : c.budget);
    if (!seeds) continue;
    const FoodPile& seeded = world.FoodPiles[1];
    EXPECT_TRUE(seeded.X == c.seedX && seeded.Y == c.seedY && seeded.SpreadBudget == 5);  // Int(0.5 * 8) + 1
    // Seeded with 19634.95375 and, later in the same pass, grown by 157.07963.
    EXPECT_NEAR(seeded.Amount, 19792.03338, 1e-6);
  }
}

}  // namespace
}  // namespace keldor::testing
