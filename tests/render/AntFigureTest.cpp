#include <gtest/gtest.h>

#include <cmath>

#include "PainterFixture.h"
#include "model/Numeric.h"

namespace keldor::testing {
namespace {

const double Black = Rgb(0, 0, 0);
const double Green = Rgb(16, 152, 16);
const double Red = Rgb(200, 0, 0);

class AntFigureTest : public PainterTest {
 protected:
  void SetUp() override {
    world.ZoomX = world.ZoomY = 20;  // radii scale by ZoomX / ScaleX = 2
    world.View.Terrain = {0, 0, 40000, 40000};
    painter.ClearViews(world);
    ForgetCalls();
  }
  // Ant index of the default nest placed with rear R and head H (world units).
  Ant& Place(int index, double rx, double ry, double hx, double hy) {
    Ant& ant = world.Nests[0].Ants[index];
    ant.RearX = rx;
    ant.RearY = ry;
    ant.HeadX = hx;
    ant.HeadY = hy;
    ant.Colour = Red;
    return ant;
  }
  void ExpectCircle(const CanvasCall& c, double x, double y, double radius) {
    EXPECT_EQ(c.Op, CanvasOp::Circle);
    EXPECT_NEAR(c.X1, x * 20, 1e-9);
    EXPECT_NEAR(c.Y1, y * 20, 1e-9);
    EXPECT_NEAR(c.X2, radius * 2, 1e-9);
  }
};

TEST_F(AntFigureTest, WorkerIsHeadMiddleAndRearCirclesInOrder) {
  const Ant& ant = Place(1, 100, 200, 128, 200);  // body along x, 28 long
  painter.DrawAnt(world, world.Nests[0], 1);

  const double l = ant.Length;
  const auto circles = terrain.Of(CanvasOp::Circle);
  ASSERT_EQ(circles.size(), 3u);
  ExpectCircle(circles[0], 128, 200, l / 5);
  ExpectCircle(circles[1], 128 - 11, 200, l / 7);
  ExpectCircle(circles[2], 100 + 28.0 / 6, 200, l / 6);
  for (const CanvasCall& c : circles) {
    EXPECT_EQ(c.Colour, Black);
    EXPECT_EQ(c.Pen.FillColor, Red);
  }
}

TEST_F(AntFigureTest, QueenAbdomenGrowsWithTheStore) {
  Nest& nest = world.Nests[0];
  nest.FoodStore = 900;
  const Ant& queen = Place(0, 100, 200, 100, 236);
  painter.DrawAnt(world, nest, 0);

  const double l = queen.Length;
  const auto circles = terrain.Of(CanvasOp::Circle);
  ASSERT_EQ(circles.size(), 3u);
  ExpectCircle(circles[0], 100, 236, l / 8);
  ExpectCircle(circles[1], 100, 236 - 12, l / 5);
  ExpectCircle(circles[2], 100, 209, l / 4 + std::sqrt(900 / Pi));
}

TEST_F(AntFigureTest, LoadIsAGreenDiscAheadOfTheHeadAndOnTheMap) {
  Ant& ant = Place(2, 100, 200, 128, 200);
  ant.Load = 300;
  painter.DrawAnt(world, world.Nests[0], 2);

  const auto circles = terrain.Of(CanvasOp::Circle);
  ASSERT_EQ(circles.size(), 4u);
  ExpectCircle(circles[0], 135, 200, std::sqrt(300 / Pi));
  EXPECT_EQ(circles[0].Pen.FillColor, Green);
  EXPECT_EQ(circles[0].Colour, Black);
  EXPECT_EQ(circles[1].Pen.FillColor, Red);

  const auto mapCircles = map.Of(CanvasOp::Circle);
  ASSERT_EQ(mapCircles.size(), 2u);
  EXPECT_DOUBLE_EQ(mapCircles[1].X1, 128);
  EXPECT_DOUBLE_EQ(mapCircles[1].X2, std::sqrt(300 / Pi) / 10);
  EXPECT_EQ(mapCircles[1].Colour, Green);
  EXPECT_EQ(map.Pen.FillColor, Red);
}

TEST_F(AntFigureTest, MiniMapCrossAndCircleInTheAntsColour) {
  const Nest& nest = world.Nests[0];
  Place(3, 100, 200, 128, 200);
  painter.DrawAnt(world, nest, 3);

  const double a = nest.AntLength / 20;
  const auto calls = map.Calls;
  ASSERT_EQ(calls.size(), 3u);  // no load: no green disc
  EXPECT_EQ(calls[0].Op, CanvasOp::Line);
  EXPECT_DOUBLE_EQ(calls[0].X1, 114 - a);
  EXPECT_DOUBLE_EQ(calls[0].X2, 114 + a);
  EXPECT_EQ(calls[1].Op, CanvasOp::Line);
  EXPECT_DOUBLE_EQ(calls[1].Y1, 200 - a);
  EXPECT_EQ(calls[2].Op, CanvasOp::Circle);
  EXPECT_DOUBLE_EQ(calls[2].X2, a);
  for (const CanvasCall& c : calls) EXPECT_EQ(c.Colour, Red);
}

TEST_F(AntFigureTest, AntIsCulledOnlyWhenRearAndHeadAreBothHidden) {
  world.View.Terrain = {0, 0, 128 * 20, 40000};  // head exactly on the right edge
  Place(1, 100, 200, 128, 200);
  painter.DrawAnt(world, world.Nests[0], 1);
  EXPECT_EQ(terrain.Of(CanvasOp::Circle).size(), 3u);  // the rear is inside

  ForgetCalls();
  world.View.Terrain = {100 * 20, 0, 40000, 40000};  // rear on the left edge, head inside
  painter.DrawAnt(world, world.Nests[0], 1);
  EXPECT_EQ(terrain.Of(CanvasOp::Circle).size(), 3u);

  ForgetCalls();
  world.View.Terrain = {128 * 20, 0, 40000, 40000};  // both on or left of the edge
  painter.DrawAnt(world, world.Nests[0], 1);
  EXPECT_TRUE(terrain.Calls.empty());
  EXPECT_EQ(map.Of(CanvasOp::Circle).size(), 1u);

  ForgetCalls();
  world.Controls.InfoVisible = false;
  painter.DrawAnt(world, world.Nests[0], 1);
  EXPECT_TRUE(map.Calls.empty());
}

}  // namespace
}  // namespace keldor::testing
