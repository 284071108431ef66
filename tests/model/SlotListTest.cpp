#include "model/SlotList.h"

#include <gtest/gtest.h>

#include "model/Records.h"

namespace keldor {
namespace {

TEST(SlotListTest, KeepsOneSpareSlot) {
  SlotList<FoodPile> piles;
  EXPECT_EQ(piles.Count(), 0);
  EXPECT_EQ(piles.SlotCount(), 1u);
  piles.Append().X = 1;
  piles.Append().X = 2;
  EXPECT_EQ(piles.Count(), 2);
  EXPECT_EQ(piles.SlotCount(), 3u);
  piles.Remove(0);
  piles.Remove(0);
  EXPECT_EQ(piles.Count(), 0);
  EXPECT_EQ(piles.SlotCount(), 1u);
}

TEST(SlotListTest, RemoveMovesTheLastItemIn) {
  SlotList<FoodPile> piles;
  for (int16_t x = 0; x < 4; ++x) piles.Append().X = x;
  piles.Remove(1);
  ASSERT_EQ(piles.Count(), 3);
  EXPECT_EQ(piles[0].X, 0);
  EXPECT_EQ(piles[1].X, 3);
  EXPECT_EQ(piles[2].X, 2);
  piles.Remove(2);  // the last item: nothing moves
  ASSERT_EQ(piles.Count(), 2);
  EXPECT_EQ(piles[1].X, 3);
}

TEST(SlotListTest, SpareSlotKeepsTheMovedItemAndAppendReusesIt) {
  SlotList<Ant> ants;
  ants.Append().LifeFactor = 1.0;
  ants.Append().LifeFactor = 0.5;
  ants.Remove(0);  // ant 1 moves to slot 0; the new spare still holds it
  EXPECT_EQ(ants[1].LifeFactor, 0.5);
  Ant& born = ants.Append();  // a birth writes some fields, not LifeFactor
  EXPECT_EQ(born.LifeFactor, 0.5);
  EXPECT_EQ(ants[ants.Count()].LifeFactor, 0.0);  // a fresh spare is zeroed
}

TEST(SlotListTest, CopiesOwnTheirNestedArrays) {
  SlotList<WallObject> walls;
  WallObject& w = walls.Append();
  w.TypeName = PlasterBrickType;
  w.Shapes.resize(2);
  w.Shapes[0].Material = "CaSO4";
  SlotList<WallObject> copy = walls;
  copy[0].Shapes[0].Material = "changed";
  copy[0].TypeName = "other";
  EXPECT_EQ(walls[0].Shapes[0].Material, "CaSO4");
  EXPECT_EQ(walls[0].TypeName, PlasterBrickType);
}

TEST(SlotListTest, RefusesToGrowPast32767) {
  SlotList<FoodPile> piles;
  piles.Reset(32767);
  EXPECT_FALSE(piles.CanAppend());
  piles.Remove(0);
  EXPECT_TRUE(piles.CanAppend());
}

}  // namespace
}  // namespace keldor
