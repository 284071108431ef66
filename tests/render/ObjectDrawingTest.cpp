#include <gtest/gtest.h>

#include <cmath>

#include "PainterFixture.h"
#include "model/Numeric.h"

namespace keldor::testing {
namespace {

const double Black = Rgb(0, 0, 0);
const double Grey = Rgb(50, 50, 50);
const double Green = Rgb(16, 152, 16);
const double Yellow = Rgb(255, 255, 0);
const double BrickRed = Rgb(160, 60, 40);

class ObjectDrawingTest : public PainterTest {
 protected:
  void SetUp() override {
    painter.ClearViews(world);
    ForgetCalls();
  }
  double Size() const { return world.Settings.CellSize; }
  void AddWall(int x, int y) {
    WallObject& wall = world.Walls.Append();
    wall.TypeName = PlasterBrickType;
    wall.X = static_cast<int16_t>(x);
    wall.Y = static_cast<int16_t>(y);
    wall.ShapeCount = 1;
    wall.Shapes.resize(2);
    WallShape& shape = wall.Shapes[0];
    shape.Colour = BrickRed;
    const double x0 = (x - 1) * Size(), y0 = (y - 1) * Size(), x1 = x * Size(), y1 = y * Size();
    shape.Points[0] = {x0, y0};
    shape.Points[1] = {x0, y1};
    shape.Points[2] = {x1, y1};
    shape.Points[3] = {x1, y0};
  }
  FoodPile& OnlyPile(int x, int y, double amount) {
    world.FoodPiles.Clear();
    FoodPile& pile = world.FoodPiles.Append();
    pile.X = static_cast<int16_t>(x);
    pile.Y = static_cast<int16_t>(y);
    pile.Amount = amount;
    return pile;
  }
};

TEST_F(ObjectDrawingTest, WallsReachTheMiniMapEvenWithTheInfoPanelHidden) {
  world.Controls.InfoVisible = false;
  terrain.Pen.FillColor = Rgb(1, 2, 3);
  AddWall(15, 15);  // visible
  AddWall(1, 1);    // outside the terrain view
  painter.DrawWalls(world);

  const auto mapBoxes = map.Of(CanvasOp::Box);
  ASSERT_EQ(mapBoxes.size(), 2u);
  EXPECT_DOUBLE_EQ(mapBoxes[0].X1, 14 * Size());
  EXPECT_DOUBLE_EQ(mapBoxes[0].Y2, 15 * Size());
  EXPECT_EQ(mapBoxes[0].Colour, BrickRed);
  EXPECT_EQ(mapBoxes[0].Pen.FillColor, BrickRed);
  EXPECT_EQ(mapBoxes[0].Pen.ForeColor, Rgb(1, 2, 3));  // the terrain view's fill colour at that moment

  const auto terrainBoxes = terrain.Of(CanvasOp::Box);
  ASSERT_EQ(terrainBoxes.size(), 1u);
  EXPECT_DOUBLE_EQ(terrainBoxes[0].X1, 14 * Size() * 10);
  EXPECT_DOUBLE_EQ(terrainBoxes[0].Y2, 15 * Size() * 10);
  EXPECT_EQ(terrainBoxes[0].Colour, BrickRed);
  EXPECT_EQ(terrainBoxes[0].Pen.FillColor, BrickRed);
  EXPECT_EQ(terrain.Pen.ForeColor, Black);
}

TEST_F(ObjectDrawingTest, NestIsAGreyDiscWithItsCellNumbersInYellow) {
  world.ShowOdor = 1;
  const Nest& nest = world.Nests[0];
  Cell& cell = world.Cells(nest.CellX, nest.CellY);
  cell.Scent = -249.5;
  painter.DrawNests(world);

  const auto mapCircles = map.Of(CanvasOp::Circle);
  ASSERT_EQ(mapCircles.size(), 1u);
  EXPECT_DOUBLE_EQ(mapCircles[0].X2, nest.Radius / 10);
  EXPECT_EQ(mapCircles[0].Colour, Black);
  EXPECT_EQ(mapCircles[0].Pen.FillColor, Grey);

  const auto calls = terrain.Calls;
  ASSERT_EQ(calls.size(), 3u);
  EXPECT_EQ(calls[0].Op, CanvasOp::Circle);
  EXPECT_DOUBLE_EQ(calls[0].X1, nest.X * 10);
  EXPECT_DOUBLE_EQ(calls[0].X2, nest.Radius * world.ZoomX / 10);
  EXPECT_EQ(calls[0].Colour, Grey);
  EXPECT_EQ(calls[1].Text, "250");  // -Int(s) rounds the nest scent away from zero
  EXPECT_EQ(calls[1].Pen.ForeColor, Yellow);
  EXPECT_EQ(calls[2].Text, CStr(cell.AntCount));
  EXPECT_EQ(terrain.Pen.ForeColor, Black);
}

TEST_F(ObjectDrawingTest, NestNumbersArePrintedEvenWhenTheDiscIsOffTheView) {
  world.ShowOdor = 1;
  world.View.Terrain.Left = 0;
  world.View.Terrain.Top = 0;
  painter.DrawNests(world);
  EXPECT_TRUE(terrain.Of(CanvasOp::Circle).empty());
  EXPECT_EQ(terrain.Of(CanvasOp::Print).size(), 1u);  // scent 0: only the ant count

  ForgetCalls();
  world.ShowOdor = 0;
  painter.DrawNests(world);
  EXPECT_TRUE(terrain.Of(CanvasOp::Print).empty());
}

TEST_F(ObjectDrawingTest, FoodPileDiscAreaIsItsAmount) {
  world.ShowOdor = 1;
  const double amount = 40000;
  OnlyPile(15, 16, amount);
  world.Cells(15, 16).Scent = 77.2;
  world.Cells(15, 16).AntCount = 4;
  painter.DrawFoodPiles(world);

  const double cx = 14 * Size() + Size() / 2, cy = 15 * Size() + Size() / 2;
  const double r = std::sqrt(amount / Pi);
  const auto mapCircles = map.Of(CanvasOp::Circle);
  ASSERT_EQ(mapCircles.size(), 1u);
  EXPECT_DOUBLE_EQ(mapCircles[0].X1, cx);
  EXPECT_DOUBLE_EQ(mapCircles[0].X2, r / 10);
  EXPECT_EQ(mapCircles[0].Pen.FillColor, Green);

  const auto calls = terrain.Calls;
  ASSERT_EQ(calls.size(), 3u);
  EXPECT_DOUBLE_EQ(calls[0].X1, cx * 10);
  EXPECT_DOUBLE_EQ(calls[0].Y1, cy * 10);
  EXPECT_DOUBLE_EQ(calls[0].X2, r * world.ZoomX / 10);
  EXPECT_EQ(calls[0].Colour, Black);
  EXPECT_EQ(calls[0].Pen.FillColor, Green);
  EXPECT_EQ(calls[1].Text, "77");
  EXPECT_EQ(calls[2].Text, "4");
  EXPECT_EQ(terrain.Pen.ForeColor, Yellow);  // left yellow for the later layers
}

TEST_F(ObjectDrawingTest, EmptyPilesAndHiddenPileNumbersAreSkipped) {
  world.ShowOdor = 1;
  OnlyPile(15, 15, 0);
  painter.DrawFoodPiles(world);
  EXPECT_TRUE(terrain.Calls.empty());
  EXPECT_TRUE(map.Calls.empty());

  // A pile whose text anchors lie left of the view: the disc is partly
  // visible, the numbers are not printed.
  OnlyPile(10, 15, 100000);
  world.View.Terrain.Left = 9 * Size() * 10 + 14 * Size() / 20 * 10 + 1;
  painter.DrawFoodPiles(world);
  EXPECT_EQ(terrain.Of(CanvasOp::Circle).size(), 1u);
  EXPECT_TRUE(terrain.Of(CanvasOp::Print).empty());
}

}  // namespace
}  // namespace keldor::testing
