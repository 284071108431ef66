#include <gtest/gtest.h>

#include "PainterFixture.h"
#include "model/Numeric.h"

namespace keldor::testing {
namespace {

const double Ochre = Rgb(139, 129, 103);

class CellDrawingTest : public PainterTest {
 protected:
  void SetUp() override {
    world.ShowOdor = 1;
    painter.ClearViews(world);
    ForgetCalls();
  }
  double Size() const { return world.Settings.CellSize; }
  std::vector<std::string> PrintedTexts() const {
    std::vector<std::string> texts;
    for (const CanvasCall& c : terrain.Of(CanvasOp::Print)) texts.push_back(c.Text);
    return texts;
  }
};

TEST_F(CellDrawingTest, HiddenOdorOnlySetsTheFillColourOfBothViews) {
  world.ShowOdor = 0;
  painter.DrawCell(world, SetCell(15, 15, -40, 3, Ochre));
  EXPECT_TRUE(terrain.Calls.empty());
  EXPECT_TRUE(map.Calls.empty());
  EXPECT_EQ(terrain.Pen.FillColor, Ochre);
  EXPECT_EQ(map.Pen.FillColor, Ochre);
}

TEST_F(CellDrawingTest, VisibleCellIsAColouredSquareOnBothViewsWithScentAndAntCount) {
  map.Pen.Fill = FillStyle::Transparent;
  painter.DrawCell(world, SetCell(15, 14, -40.7, 3, Ochre));

  const double x0 = 14 * Size(), y0 = 13 * Size(), x1 = 15 * Size(), y1 = 14 * Size();
  ASSERT_EQ(map.Calls.size(), 1u);
  const CanvasCall& square = map.Calls[0];
  EXPECT_EQ(square.Op, CanvasOp::Box);
  EXPECT_DOUBLE_EQ(square.X1, x0);
  EXPECT_DOUBLE_EQ(square.Y1, y0);
  EXPECT_DOUBLE_EQ(square.X2, x1);
  EXPECT_DOUBLE_EQ(square.Y2, y1);
  EXPECT_EQ(square.Colour, Ochre);  // no grid on the mini-map
  EXPECT_EQ(square.Pen.FillColor, Ochre);
  EXPECT_EQ(square.Pen.Fill, FillStyle::Solid);

  const auto calls = terrain.Calls;
  ASSERT_EQ(calls.size(), 3u);
  EXPECT_EQ(calls[0].Op, CanvasOp::Box);
  EXPECT_DOUBLE_EQ(calls[0].X1, x0 * 10);
  EXPECT_DOUBLE_EQ(calls[0].Y2, y1 * 10);
  EXPECT_EQ(calls[0].Colour, Rgb(0, 0, 0));
  EXPECT_EQ(calls[0].Pen.FillColor, Ochre);
  EXPECT_EQ(calls[1].Text, "40");  // Int(-s)
  EXPECT_DOUBLE_EQ(calls[1].X1, (x0 + Size() / 20) * 10);
  EXPECT_DOUBLE_EQ(calls[1].Y1, (y0 + Size() / 20) * 10);
  EXPECT_EQ(calls[2].Text, "3");
  EXPECT_DOUBLE_EQ(calls[2].X1, (x0 + 14 * Size() / 20) * 10);
  EXPECT_DOUBLE_EQ(calls[2].Y1, (y0 + 15 * Size() / 20) * 10);
  EXPECT_EQ(calls[2].Pen.ForeColor, Rgb(0, 0, 0));
}

TEST_F(CellDrawingTest, NumbersFollowScentAndFood) {
  painter.DrawCell(world, SetCell(15, 15, 12.9, 0, Ochre));
  EXPECT_EQ(PrintedTexts(), (std::vector<std::string>{"12", "0"}));  // the ant count also at 0

  ForgetCalls();
  painter.DrawCell(world, SetCell(15, 15, 0, 2, Ochre));
  EXPECT_EQ(PrintedTexts(), (std::vector<std::string>{"2"}));

  ForgetCalls();
  Cell& withFood = SetCell(15, 15, 30, 1, Ochre);
  withFood.Food = 5;
  painter.DrawCell(world, withFood);
  EXPECT_EQ(PrintedTexts(), (std::vector<std::string>{"1"}));
}

TEST_F(CellDrawingTest, CornersOnTheViewEdgeAreNotVisible) {
  // Cell column 10 ends at x = 10 * CellSize world units.
  const double rightEdge = 10 * Size() * world.ZoomX;
  world.View.Terrain.Left = rightEdge;
  painter.DrawCell(world, SetCell(10, 15, 5, 1, Ochre));
  EXPECT_TRUE(terrain.Calls.empty());
  EXPECT_EQ(map.Of(CanvasOp::Box).size(), 1u);  // the mini-map shows every cell

  world.View.Terrain.Left = rightEdge - 1;
  painter.DrawCell(world, SetCell(10, 15, 5, 1, Ochre));
  EXPECT_EQ(terrain.Of(CanvasOp::Box).size(), 1u);
}

TEST_F(CellDrawingTest, CellLargerThanTheViewIsNotDrawn) {
  const double x0 = 14 * Size() * 10, y0 = 14 * Size() * 10;
  world.View.Terrain = {x0 + 10, y0 + 10, 100, 100};
  painter.DrawCell(world, SetCell(15, 15, 5, 1, Ochre));
  EXPECT_TRUE(terrain.Calls.empty());
}

TEST_F(CellDrawingTest, HiddenInfoPanelLeavesTheMiniMapAlone) {
  world.Controls.InfoVisible = false;
  painter.DrawCell(world, SetCell(15, 15, 5, 1, Ochre));
  EXPECT_TRUE(map.Calls.empty());
  EXPECT_EQ(map.Pen.FillColor, Ochre);
  EXPECT_EQ(terrain.Of(CanvasOp::Box).size(), 1u);
}

}  // namespace
}  // namespace keldor::testing
