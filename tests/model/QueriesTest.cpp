#include "model/Queries.h"

#include <gtest/gtest.h>

#include <cmath>

#include "model/World.h"

namespace keldor {
namespace {

TEST(QueriesTest, CellAtPointAtColumnBorders) {
  World w;
  w.ZoomX = w.ZoomY = 10;
  w.Settings.CellSize = 60;
  EXPECT_EQ(CellAtPoint(w, 0, 0).X, 1);
  EXPECT_EQ(CellAtPoint(w, 599.9, 0).X, 1);
  EXPECT_EQ(CellAtPoint(w, 600, 0).X, 2);
  EXPECT_EQ(CellAtPoint(w, -0.1, 0).X, 0);
  EXPECT_EQ(CellAtPoint(w, 0, 1200).Y, 3);
}

TEST(QueriesTest, ObjectTypeAndNestLookups) {
  World w;
  w.Cells.Reset(5, 5);
  WallObject& brick = w.Cells(2, 3).Objects.Append();
  brick.TypeName = PlasterBrickType;
  EXPECT_TRUE(CellHasObjectType(w, "PLASTER_BRICK", 2, 3));
  EXPECT_FALSE(CellHasObjectType(w, "plaster_brick", 2, 3));
  EXPECT_FALSE(CellHasObjectType(w, "PLASTER_BRICK", 3, 2));
  w.Cells(2, 3).Objects.Remove(0);
  EXPECT_FALSE(CellHasObjectType(w, "PLASTER_BRICK", 2, 3));

  EXPECT_FALSE(IsNestCell(w, 0, 0));  // no nests: nothing is a nest cell
  w.Nests.resize(3);
  w.NestCount = 3;
  w.Nests[2].CellX = 4;
  w.Nests[2].CellY = 1;
  EXPECT_TRUE(IsNestCell(w, 4, 1));
  EXPECT_FALSE(IsNestCell(w, 1, 4));
  w.NestCount = 2;  // slots beyond the count mean nothing
  EXPECT_FALSE(IsNestCell(w, 4, 1));
}

TEST(QueriesTest, MinAndMax) {
  EXPECT_EQ(Min(3, 3), 3);
  EXPECT_EQ(Max(3, 3), 3);
  EXPECT_EQ(Min(-1, 2), -1);
  EXPECT_EQ(Max(-1, 2), 2);
  EXPECT_EQ(Min(std::nan(""), 2), 2);
  EXPECT_EQ(Max(std::nan(""), 2), 2);
}

TEST(QueriesTest, PointToSegmentDistance) {
  Ant b;
  b.HeadX = 10;
  Ant a;
  a.HeadX = 5;
  a.HeadY = 3;
  EXPECT_DOUBLE_EQ(PointToSegmentDistance(a, b), 3);  // over the segment
  a.HeadX = -4;
  EXPECT_DOUBLE_EQ(PointToSegmentDistance(a, b), 5);  // nearest point: b's rear
  a.HeadX = 13;
  a.HeadY = 4;
  EXPECT_DOUBLE_EQ(PointToSegmentDistance(a, b), 5);  // nearest point: b's head
  Ant point;  // a segment of length zero measures to its rear
  point.RearX = point.HeadX = 1;
  a.HeadX = 4;
  a.HeadY = 4;
  EXPECT_DOUBLE_EQ(PointToSegmentDistance(a, point), 5);
}

}  // namespace
}  // namespace keldor
