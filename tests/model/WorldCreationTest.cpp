#include "model/WorldCreation.h"

#include <gtest/gtest.h>

#include <cmath>

#include "model/Numeric.h"
#include "model/SlotList.h"
#include "support/TestWorld.h"

namespace keldor {
namespace {

using testing::TestWorld;

TEST(WorldCreationTest, DefaultWorldHasRingNestAndFood) {
  TestWorld t(7);
  const World& w = t.world;
  EXPECT_EQ(w.Settings.GridX, 30);
  ASSERT_EQ(w.Cells.Columns(), 32);
  ASSERT_EQ(w.Cells.Rows(), 32);
  for (int x = 0; x <= 31; ++x) {
    for (int y = 0; y <= 31; ++y) {
      const Cell& c = w.Cells(x, y);
      const bool ring = x == 0 || y == 0 || x == 31 || y == 31;
      EXPECT_EQ(c.X, ring ? 0 : x);
      EXPECT_EQ(c.Y, ring ? 0 : y);
      EXPECT_TRUE(!ring || (c.Food == 0 && c.AntCount == 0 && c.ObjectCount() == 0)) << x << "," << y;
    }
  }
  ASSERT_EQ(w.NestCount, 1);
  const Nest& n = w.Nests[0];
  EXPECT_EQ(n.Name, "NEST_0");
  EXPECT_EQ(n.CellX, 15);
  EXPECT_EQ(n.CellY, 15);
  EXPECT_EQ(n.AntCount(), 30);
  EXPECT_EQ(w.Settings.Population, 30);
  EXPECT_EQ(w.Cells(15, 15).AntCount, 30);

  EXPECT_GT(w.FoodPileCount(), 0);
  EXPECT_LT(w.FoodPileCount(), 60);  // about 2 % of 899 free cells
  for (const FoodPile& p : w.FoodPiles) {
    EXPECT_EQ(w.Cells(p.X, p.Y).Food, p.Amount);
    EXPECT_GE(p.Amount, w.Settings.CellFoodCapacity() / 4 - 1e-6);
    EXPECT_LE(p.Amount, w.Settings.CellFoodCapacity() + 1e-6);
    EXPECT_FALSE(p.X == 15 && p.Y == 15);
  }
  // Workers stand head on the nest centre, each facing its own way.
  EXPECT_NE(n.Ants[1].RearX, n.Ants[2].RearX);
  for (int i = 1; i < n.AntCount(); ++i) {
    const Ant& a = n.Ants[i];
    EXPECT_TRUE(a.HeadX == n.X && a.HeadY == n.Y && a.CellX == 15) << i;
    EXPECT_NEAR(std::hypot(a.RearX - n.X, a.RearY - n.Y), n.AntLength / 10, 1e-9);
    EXPECT_TRUE(a.Energy > 0 && a.Energy <= Pi * a.Length * a.Length) << i;
  }
  EXPECT_EQ(n.Signature.ToString().find_first_not_of("01"), std::string::npos);
}

TEST(WorldCreationTest, SameSeedSameWorldOtherSeedOtherWorld) {
  TestWorld a(42), b(42), c(43);
  EXPECT_EQ(a.world.FoodPiles, b.world.FoodPiles);
  EXPECT_EQ(a.world.Nests[0].Signature, b.world.Nests[0].Signature);
  EXPECT_EQ(a.world.Nests[0].Ants, b.world.Nests[0].Ants);
  EXPECT_NE(a.world.Nests[0].Ants, c.world.Nests[0].Ants);
  EXPECT_NE(MakeSignature(a.random, 16), MakeSignature(a.random, 16));  // the clock moved on
}

TEST(WorldCreationTest, GridTextRulesAndFoodRateExtremes) {
  EXPECT_EQ(TestWorld(1, {"0", "0", "3", 100}).world.Settings.GridY, 20);
  EXPECT_EQ(TestWorld(1, {"21", "21", "3", 100}).world.Nests[0].CellX, 10);
  EXPECT_EQ(TestWorld(1, {"100000", "100000", "3", 100}).world.Settings.GridX, MaxGridSize);
  EXPECT_EQ(TestWorld(1, {"-4", "-4", "3", 100}).world.Settings.GridX, MinGridSize);
  EXPECT_EQ(TestWorld(1, {"1", "1", "3", 100}).world.Cells(1, 1).AntCount, 30);  // a one-cell world holds its nest
  // A text that is not a number keeps the grid of the last New.
  TestWorld t(1, {"12", "12", "3", 100});
  NewWorld(t.world, t.window, t.random, {"abc", "abc", "3", 100});
  EXPECT_EQ(t.world.Cells.Columns(), 14);

  t.world.Settings.FoodRate = 0;
  NewWorld(t.world, t.window, t.random, {});
  EXPECT_EQ(t.world.FoodPileCount(), 0);
  t.world.Settings.FoodRate = 100;
  NewWorld(t.world, t.window, t.random, {});
  EXPECT_EQ(t.world.FoodPileCount(), 899);
}

TEST(WorldCreationTest, CreatedNestsKeepTheirNamesAndTheLastNewRadius) {
  TestWorld t;
  World& w = t.world;
  const double radius = w.Nests[0].Radius;
  w.Settings.AntSizeMm = 1.0;
  ASSERT_TRUE(CreateNest(w, t.random, 3, 3));
  ASSERT_TRUE(CreateNest(w, t.random, 5, 3));
  EXPECT_EQ(w.Nests[1].Ants[0].Length, radius);
  EXPECT_DOUBLE_EQ(w.Nests[1].AntLength, 56.7);
  EXPECT_EQ(w.Nests[2].Name, "NEST_2");
  EXPECT_EQ(w.Settings.Population, 90);
  // Remove nest 0 by the list discipline: the last nest moves into slot 0.
  w.Nests[0] = w.Nests[static_cast<size_t>(w.NestCount - 1)];
  --w.NestCount;
  EXPECT_EQ(w.Nests[0].Name, "NEST_2");
  EXPECT_EQ(w.Nests[0].CellX, 5);
  // A nest that would take the population past 32767 is refused.
  w.Settings.AntsPerNest = 32767;
  EXPECT_FALSE(CreateNest(w, t.random, 2, 3));
  EXPECT_EQ(w.NestCount, 2);
  EXPECT_EQ(w.Settings.Population, 90);
}

TEST(SlotListTest, RemoveMovesTheLastItemInAndKeepsOneSpare) {
  SlotList<FoodPile> piles;
  EXPECT_EQ(piles.SlotCount(), 1u);
  for (int16_t x = 0; x < 4; ++x) piles.Append().X = x;
  EXPECT_EQ(piles.SlotCount(), 5u);
  piles.Remove(1);
  ASSERT_EQ(piles.Count(), 3);
  EXPECT_EQ(piles[1].X, 3);
  EXPECT_EQ(piles[2].X, 2);
  EXPECT_EQ(piles.SlotCount(), 4u);
  // The new spare still holds the moved item, and Append reuses it unchanged.
  piles.Remove(0);
  EXPECT_EQ(piles[2].X, 2);
  EXPECT_EQ(piles.Append().X, 2);
  EXPECT_EQ(piles[piles.Count()].X, 0);  // a fresh spare is zeroed
  piles.Reset(32767);
  EXPECT_FALSE(piles.CanAppend());
}

TEST(CommandsTest, PlayPauseAndDisplayToggles) {
  World before;
  WindowState beforeWindow;
  StartUp(before, beforeWindow);
  ToggleOdor(beforeWindow);  // no world yet: nothing to show
  EXPECT_EQ(beforeWindow.View.ShowOdor, 0);

  TestWorld t;
  World& w = t.world;
  WindowState& window = t.window;
  window.Controls.PickActionCaption = "^";
  TogglePlayPause(w, window);
  EXPECT_TRUE(w.Running);
  EXPECT_EQ(window.Controls.StopImage, PlayPauseImage::Pause);
  EXPECT_EQ(window.Controls.PickActionCaption, "v");
  TogglePlayPause(w, window);
  EXPECT_EQ(window.Controls.StopToolTip, "Play");
  ToggleOdor(window);
  EXPECT_EQ(window.View.ShowOdor, 1);
  EXPECT_EQ(window.Controls.OdorToolTip, "Hide Odor Traces");
  ToggleAnts(window);
  EXPECT_EQ(window.View.ShowAnts, 0);
  // New shows the ants again but leaves the ants tool tip as it was.
  NewWorld(w, window, t.random, {});
  EXPECT_EQ(window.View.ShowAnts, 1);
  EXPECT_EQ(window.Controls.AntsToolTip, "Show ants");
}

}  // namespace
}  // namespace keldor
