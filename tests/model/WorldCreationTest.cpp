#include "model/WorldCreation.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "model/SlotList.h"
#include "support/ScriptedDraws.h"
#include "support/TestWorld.h"

namespace keldor {
namespace {

using testing::TestWorld;

TEST(WorldCreationTest, DefaultWorldHasItsNestOnTheCentreCellAndAnEmptyRing) {
  TestWorld t(7);
  const World& w = t.world;
  ASSERT_TRUE(w.Cells.Columns() == 32 && w.Cells.Rows() == 32);  // 30 and the ring
  for (int x = 0; x <= 31; ++x) {
    for (int y = 0; y <= 31; ++y) {
      const Cell& c = w.Cells(x, y);
      const bool ring = x == 0 || y == 0 || x == 31 || y == 31;
      EXPECT_TRUE(ring ? c.X == 0 && c.Y == 0 && c.Food == 0 && c.AntCount == 0 : c.X == x && c.Y == y) << x << y;
    }
  }
  ASSERT_EQ(w.NestCount, 1);
  const Nest& n = w.Nests[0];
  EXPECT_TRUE(n.Name == "NEST_0" && n.CellX == 15 && n.CellY == 15 && n.AntCount() == 30);
  EXPECT_TRUE(w.Settings.Population == 30 && w.Cells(15, 15).AntCount == 30 && w.Cells(15, 15).Food == 0);
  for (const Ant& a : n.Ants) EXPECT_TRUE(a.CellX == 15 && a.CellY == 15);
}

TEST(WorldCreationTest, NewAndCreateNestDrawInTheirOrder) {
  TestWorld t;
  World& w = t.world;
  w.Settings.AntsPerNest = 2;
  std::vector<double> draws;
  for (int k = 0; k < 16; ++k) draws.push_back(k % 2 == 0 ? 0.2 : 0.7);  // Int(2 r): 0, 1, 0, 1, ...
  draws.insert(draws.end(), {0.75, 0.6, 0.25, 0.5,  // queen: sign +1, 0.6 across, sign -1, energy
                             0.25, 0.6, 0.75, 0.0,  // worker: sign -1, 0.6 across, sign +1, energy
                             0.99, 0.5, 0.0,        // cell (1, 2): food, its budget, its amount
                             0.98,                  // cell (2, 1): not above 98 / 100, no food
                             0.99, 0.999, 0.5});    // cell (2, 2)
  draws.insert(draws.end(), 20, 0.5);
  testing::ScriptedDraws script(draws);
  t.random.UseScript(&script);
  NewWorld(t.simulation, t.window, {"2", "2", "3", 100});
  // New's reseed, the signature's reseed and 16 draws, 4 per ant, 1 per free cell and 2 per pile.
  EXPECT_EQ(script.Log, "RR" + std::string(31, 'd'));
  const Nest& n = w.Nests[0];
  EXPECT_TRUE(n.CellX == 1 && n.Signature.ToString() == "0101010101010101");  // Int(2 / 2)
  // Cells 1000 wide: the nest centre is (500, 500); the queen is CInt(1000 / 2 * 10) = 5000 long.
  EXPECT_NEAR(n.Ants[0].HeadX, 800, 1e-9);  // 500 + 0.6 * 5000 / 10
  EXPECT_NEAR(n.Ants[0].HeadY, 100, 1e-9);  // 500 - Sqr(500^2 - 300^2)
  EXPECT_EQ(n.Ants[0].Energy, 74612824);    // Int(3.1415926 * 5000^2 * 0.95 * 1.0)
  EXPECT_NEAR(n.Ants[1].RearX, 489.794, 1e-9);  // 500 - 0.6 * 17.01
  EXPECT_NEAR(n.Ants[1].RearY, 513.608, 1e-9);  // 500 + 0.8 * 17.01
  EXPECT_EQ(n.Ants[1].Energy, 81808);           // Int(3.1415926 * 170.1^2 * 0.9)
  ASSERT_EQ(w.FoodPileCount(), 2);
  EXPECT_TRUE(w.FoodPiles[0].X == 1 && w.FoodPiles[0].Y == 2 && w.FoodPiles[0].SpreadBudget == 5);  // Int(0.5 * 8) + 1
  EXPECT_NEAR(w.FoodPiles[0].Amount, 19634953.75, 1e-6);  // 3.1415926 * (0 * 3 + 1) / 4 * 5000^2
  EXPECT_TRUE(w.FoodPiles[1].X == 2 && w.FoodPiles[1].Y == 2 && w.FoodPiles[1].SpreadBudget == 8);  // Int(7.992) + 1
  EXPECT_NEAR(w.FoodPiles[1].Amount, 49087384.375, 1e-6);  // 3.1415926 * (0.5 * 3 + 1) / 4 * 5000^2
  w.Settings.AntsPerNest = 1;
  w.Settings.AntSizeMm = 1;  // a later nest takes the new size, but its queen the radius of New
  script.Log.clear();
  ASSERT_TRUE(CreateNest(w, t.random, 2, 2));
  EXPECT_EQ(script.Log, "R" + std::string(20, 'd'));  // the signature's reseed and 16 draws, 4 for the queen
  const Nest& second = w.Nests[1];
  EXPECT_TRUE(second.Name == "NEST_1" && second.Ants[0].Length == 5000 && second.AntLength == 56.7);
  EXPECT_EQ(w.Settings.Population, 3);
  w.Settings.AntsPerNest = 32765;  // a nest that would take the population past 32767 is refused
  EXPECT_FALSE(CreateNest(w, t.random, 2, 2));
  EXPECT_TRUE(w.NestCount == 2 && w.Settings.Population == 3);
}

TEST(WorldCreationTest, GridTextRulesAndFoodRateExtremes) {
  EXPECT_EQ(TestWorld(1, {"0", "0", "3", 100}).world.Settings.GridY, 20);
  const TestWorld odd(1, {"23", "23", "3", 100});
  const Nest& centre = odd.world.Nests[0];
  EXPECT_TRUE(centre.CellX == 11 && centre.CellY == 11);  // Int(23 / 2); rounding 11.5 would give 12
  EXPECT_EQ(TestWorld(1, {"100000", "100000", "3", 100}).world.Settings.GridX, MaxGridSize);
  EXPECT_EQ(TestWorld(1, {"-4", "-4", "3", 100}).world.Settings.GridX, MinGridSize);
  EXPECT_EQ(TestWorld(1, {"1", "1", "3", 100}).world.Cells(1, 1).AntCount, 30);  // a one-cell world holds its nest
  // A text that is not a number keeps the grid of the last New.
  TestWorld t(1, {"12", "12", "3", 100});
  NewWorld(t.simulation, t.window, {"abc", "abc", "3", 100});
  EXPECT_EQ(t.world.Cells.Columns(), 14);

  t.world.Settings.FoodRate = 0;
  ToggleAnts(t.window);
  NewWorld(t.simulation, t.window, {});
  EXPECT_EQ(t.world.FoodPileCount(), 0);
  EXPECT_TRUE(t.window.View.ShowAnts == 1 && t.window.Controls.AntsToolTip == "Show ants") << "New leaves the tool tip";
  t.world.Settings.FoodRate = 100;
  NewWorld(t.simulation, t.window, {});
  EXPECT_EQ(t.world.FoodPileCount(), 899);
}

TEST(SlotListTest, RemoveMovesTheLastItemInAndKeepsOneSpare) {
  SlotList<FoodPile> piles;
  for (int16_t x = 0; x < 4; ++x) piles.Append().X = x;
  piles.Remove(1);  // 0 1 2 3 -> 0 3 2, and a spare
  EXPECT_TRUE(piles.Count() == 3 && piles[1].X == 3 && piles[2].X == 2 && piles.SlotCount() == 4u);
  piles.Remove(0);  // 2 3, and a spare that still holds the moved 2: Append reuses it unchanged
  EXPECT_EQ(piles.Append().X, 2);
  EXPECT_EQ(piles[piles.Count()].X, 0);  // a fresh spare is zeroed
}

}  // namespace
}  // namespace keldor
