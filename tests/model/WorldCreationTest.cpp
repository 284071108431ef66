#include "model/WorldCreation.h"

#include <gtest/gtest.h>

#include <cmath>

#include "model/Numeric.h"
#include "support/TestWorld.h"

namespace keldor {
namespace {

using testing::TestWorld;

TEST(WorldCreationTest, DefaultWorldHasGridRingNestAndFood) {
  TestWorld t;
  const World& w = t.world;
  EXPECT_EQ(w.Settings.GridX, 30);
  EXPECT_EQ(w.Settings.GridY, 30);
  EXPECT_EQ(w.Cells.Columns(), 32);
  EXPECT_EQ(w.Cells.Rows(), 32);
  int ringCells = 0;
  for (int x = 0; x <= 31; ++x) {
    for (int y = 0; y <= 31; ++y) {
      const Cell& c = w.Cells(x, y);
      if (x == 0 || y == 0 || x == 31 || y == 31) {
        ++ringCells;
        EXPECT_EQ(c.X, 0);
        EXPECT_EQ(c.Y, 0);
        EXPECT_EQ(c.Food, 0);
        EXPECT_EQ(c.AntCount, 0);
        EXPECT_EQ(c.ObjectCount(), 0);
      } else {
        EXPECT_EQ(c.X, x);
        EXPECT_EQ(c.Y, y);
      }
    }
  }
  EXPECT_EQ(ringCells, 124);

  ASSERT_EQ(w.NestCount, 1);
  const Nest& n = w.Nests[0];
  EXPECT_EQ(n.Name, "NEST_0");
  EXPECT_EQ(n.CellX, 15);
  EXPECT_EQ(n.CellY, 15);
  EXPECT_EQ(n.AntCount(), 30);
  EXPECT_EQ(n.Ants.SlotCount(), 31u);
  EXPECT_EQ(w.Settings.Population, 30);
  EXPECT_EQ(w.Cells(15, 15).AntCount, 30);
  EXPECT_EQ(w.Cells(15, 15).Food, 0);
  EXPECT_EQ(n.Signature.Length(), 16);
  for (int k = 0; k < 16; ++k) EXPECT_TRUE(n.Signature[k] == '0' || n.Signature[k] == '1');

  EXPECT_EQ(w.ShowAnts, 1);
  EXPECT_EQ(w.ShowOdor, 0);
  EXPECT_FALSE(w.Running);
  EXPECT_TRUE(w.TimerEnabled);
  EXPECT_EQ(w.Controls.StopToolTip, "Play");
  EXPECT_EQ(w.Controls.OdorToolTip, "Odor Traces");
  EXPECT_TRUE(w.Controls.WorldControlsEnabled);
}

TEST(WorldCreationTest, FoodPilesMatchTheirCells) {
  TestWorld t(7);
  const World& w = t.world;
  const double capacity = w.Settings.CellFoodCapacity();
  EXPECT_GT(w.FoodPileCount(), 0);
  EXPECT_LT(w.FoodPileCount(), 60);  // about 2 % of 899 free cells
  for (const FoodPile& p : w.FoodPiles) {
    EXPECT_EQ(w.Cells(p.X, p.Y).Food, p.Amount);
    EXPECT_GE(p.Amount, capacity / 4 - 1e-6);
    EXPECT_LE(p.Amount, capacity + 1e-6);
    EXPECT_GE(p.SpreadBudget, 1);
    EXPECT_LE(p.SpreadBudget, 8);
    EXPECT_FALSE(p.X == 15 && p.Y == 15);
  }
}

TEST(WorldCreationTest, AntsStartOnTheNestFacingRandomly) {
  TestWorld t(3);
  const World& w = t.world;
  const Nest& n = w.Nests[0];
  const Ant& queen = n.Ants[0];
  EXPECT_EQ(queen.Length, n.Radius);
  EXPECT_EQ(queen.RearX, n.X);
  EXPECT_NEAR(std::hypot(queen.HeadX - n.X, queen.HeadY - n.Y), n.Radius / 10, 1e-9);
  for (int i = 1; i < n.AntCount(); ++i) {
    const Ant& a = n.Ants[i];
    EXPECT_EQ(a.HeadX, n.X);
    EXPECT_EQ(a.HeadY, n.Y);
    EXPECT_NEAR(std::hypot(a.RearX - n.X, a.RearY - n.Y), n.AntLength / 10, 1e-9);
    EXPECT_EQ(a.LifeFactor, 1.0);
    EXPECT_EQ(a.CellX, 15);
    EXPECT_EQ(a.Colour, Rgb(150, 100, 70));
    EXPECT_GE(a.Energy, Int(Pi * a.Length * a.Length * 0.9));
    EXPECT_LE(a.Energy, Pi * a.Length * a.Length);
  }
  EXPECT_DOUBLE_EQ(n.AntUnit, Pi * (n.AntLength / 4) * (n.AntLength / 4));
}

TEST(WorldCreationTest, SameSeedSameWorldOtherSeedOtherWorld) {
  TestWorld a(42), b(42), c(43);
  ASSERT_EQ(a.world.FoodPileCount(), b.world.FoodPileCount());
  for (int i = 0; i < a.world.FoodPileCount(); ++i) EXPECT_EQ(a.world.FoodPiles[i], b.world.FoodPiles[i]);
  EXPECT_EQ(a.world.Nests[0].Signature, b.world.Nests[0].Signature);
  for (int i = 0; i < 30; ++i) EXPECT_EQ(a.world.Nests[0].Ants[i], b.world.Nests[0].Ants[i]);
  EXPECT_FALSE(a.world.Nests[0].Ants[5] == c.world.Nests[0].Ants[5]);
}

TEST(WorldCreationTest, GridTextRules) {
  EXPECT_EQ(TestWorld(1, {"0", "0", "3", 100}).world.Settings.GridX, 20);
  EXPECT_EQ(TestWorld(1, {"0", "0", "3", 100}).world.Settings.GridY, 20);
  TestWorld odd(1, {"21", "21", "3", 100});
  EXPECT_EQ(odd.world.Nests[0].CellX, 10);
  EXPECT_EQ(odd.world.Nests[0].CellY, 10);
  // Out of range sizes are held to what the program can handle.
  EXPECT_EQ(TestWorld(1, {"100000", "100000", "3", 100}).world.Settings.GridX, MaxGridSize);
  EXPECT_EQ(TestWorld(1, {"-4", "-4", "3", 100}).world.Settings.GridX, MinGridSize);
  // A text that is not a number keeps the grid of the last New.
  TestWorld t(1, {"12", "12", "3", 100});
  mnuFileNew_Click(t.world, t.random, {"abc", "abc", "3", 100});
  EXPECT_EQ(t.world.Settings.GridX, 12);
  EXPECT_EQ(t.world.Cells.Columns(), 14);
  // A one-cell world still puts its nest on the world.
  TestWorld one(1, {"1", "1", "3", 100});
  EXPECT_EQ(one.world.Nests[0].CellX, 1);
  EXPECT_EQ(one.world.Cells(1, 1).AntCount, 30);
}

TEST(WorldCreationTest, FoodRateExtremes) {
  TestWorld none;
  none.world.Settings.FoodRate = 0;
  mnuFileNew_Click(none.world, none.random, {});
  EXPECT_EQ(none.world.FoodPileCount(), 0);

  TestWorld all;
  all.world.Settings.FoodRate = 100;
  mnuFileNew_Click(all.world, all.random, {});
  EXPECT_EQ(all.world.FoodPileCount(), 899);
}

TEST(WorldCreationTest, NestsKeepTheirNamesWhenTheListIsReordered) {
  TestWorld t;
  World& w = t.world;
  w.CursorCellX = 3;
  w.CursorCellY = 3;
  ASSERT_TRUE(CreateNest(w, t.random));
  w.CursorCellX = 5;
  ASSERT_TRUE(CreateNest(w, t.random));
  EXPECT_EQ(w.Nests[2].Name, "NEST_2");
  EXPECT_EQ(w.Settings.Population, 90);
  // Remove nest 0 by the list discipline: the last nest moves into slot 0.
  w.Nests[0] = w.Nests[static_cast<size_t>(w.NestCount - 1)];
  --w.NestCount;
  EXPECT_EQ(w.Nests[0].Name, "NEST_2");
  EXPECT_EQ(w.Nests[0].CellX, 5);
}

TEST(WorldCreationTest, SecondNestTakesTheRadiusOfTheLastNew) {
  TestWorld t;
  World& w = t.world;
  const double radius = w.Nests[0].Radius;
  w.Settings.AntSizeMm = 1.0;
  w.CursorCellX = 2;
  w.CursorCellY = 2;
  ASSERT_TRUE(CreateNest(w, t.random));
  EXPECT_EQ(w.Nests[1].Name, "NEST_1");
  EXPECT_EQ(w.Nests[1].Ants[0].Length, radius);
  EXPECT_DOUBLE_EQ(w.Nests[1].AntLength, 56.7);
}

TEST(WorldCreationTest, CreateNestRefusesToOverflowThePopulation) {
  TestWorld t;
  World& w = t.world;
  w.Settings.AntsPerNest = 32767;
  w.CursorCellX = 2;
  EXPECT_FALSE(CreateNest(w, t.random));
  EXPECT_EQ(w.NestCount, 1);
  EXPECT_EQ(w.Settings.Population, 30);
}

TEST(WorldCreationTest, SignatureOfZerosAndOnes) {
  VirtualClock clock(5);
  RandomSource random(clock);
  const std::string s = MakeSignature(random, 16);
  ASSERT_EQ(s.size(), 16u);
  EXPECT_EQ(s.find_first_not_of("01"), std::string::npos);
  EXPECT_NE(s, MakeSignature(random, 16));  // the clock moved on
}

}  // namespace
}  // namespace keldor
