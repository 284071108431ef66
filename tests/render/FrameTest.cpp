#include <gtest/gtest.h>

#include <algorithm>

#include "PainterFixture.h"
#include "model/Numeric.h"
#include "model/Viewport.h"
#include "support/PaintFrame.h"

namespace keldor::testing {
namespace {

const double Blue = Rgb(0, 0, 255);
const double Red = Rgb(255, 0, 0);
const double Grey = Rgb(50, 50, 50);
const double Green = Rgb(16, 152, 16);
const double Black = Rgb(0, 0, 0);

// What a terrain call belongs to, recognised by its colours.
enum class Layer { Clear, Cell, Wall, Nest, Pile, Ant, Overlay, Text };

class FrameTest : public PainterTest {
 protected:
  void SetUp() override {
    world.ShowOdor = 1;
    SetCell(15, 14, 20, 2, Rgb(150, 190, 130));
    SetCell(14, 15, -60, 0, Rgb(170, 150, 120));
    WallObject& wall = world.Walls.Append();
    wall.Shapes.resize(2);
    wall.ShapeCount = 1;
    wall.Shapes[0].Colour = WallColour;
    const double s = world.Settings.CellSize;
    wall.Shapes[0].Points = {WorldPoint{16 * s, 14 * s}, {16 * s, 15 * s}, {17 * s, 15 * s}, {17 * s, 14 * s}, {}};
    world.FoodPiles.Clear();
    FoodPile& pile = world.FoodPiles.Append();
    pile.X = 16;
    pile.Y = 16;
    pile.Amount = 20000;
  }
  Layer LayerOf(const CanvasCall& c) const {
    if (c.Op == CanvasOp::Cls) return Layer::Clear;
    if (c.Op == CanvasOp::Print) return c.Pen.ForeColor == Blue ? Layer::Overlay : Layer::Text;
    if (c.Op == CanvasOp::Box) {
      if (c.Colour == WallColour) return Layer::Wall;
      if (c.Colour == Blue) return Layer::Overlay;
      return Layer::Cell;
    }
    if (c.Colour == Grey) return Layer::Nest;
    if (c.Pen.FillColor == Green) return Layer::Pile;
    return Layer::Ant;
  }

  const double WallColour = Rgb(120, 40, 40);
};

TEST_F(FrameTest, TerrainLayersAreDrawnInPhaseOrder) {
  PaintFrame(world, painter);
  std::vector<Layer> order;
  for (const CanvasCall& c : terrain.Drawing()) {
    const Layer layer = LayerOf(c);
    if (layer == Layer::Text) continue;  // numbers belong to cells, nests and piles
    if (order.empty() || order.back() != layer) order.push_back(layer);
  }
  EXPECT_EQ(order, (std::vector<Layer>{Layer::Clear, Layer::Cell, Layer::Wall, Layer::Nest, Layer::Pile, Layer::Ant,
                                       Layer::Overlay}));
}

TEST_F(FrameTest, ClearingSetsScalesFontAndPen) {
  world.View.TerrainFontSize = 5;
  terrain.Pen.ForeColor = Blue;
  terrain.Pen.CurrentX = 77;
  painter.ClearViews(world);
  EXPECT_EQ(terrain.Scale.Left, world.View.Terrain.Left);
  EXPECT_EQ(terrain.Scale.Width, world.View.Terrain.Width);
  EXPECT_EQ(map.Scale.Width, world.View.Map.Width);
  EXPECT_EQ(terrain.Pen.FontSize, 5);
  EXPECT_EQ(terrain.Pen.ForeColor, Black);
  EXPECT_EQ(terrain.Pen.CurrentX, 0);
  EXPECT_EQ(terrain.Of(CanvasOp::Cls).size(), 1u);
  EXPECT_EQ(map.Of(CanvasOp::Cls).size(), 1u);
}

TEST_F(FrameTest, HiddenInfoPanelLeavesOnlyWallsOnTheMap) {
  world.Controls.InfoVisible = false;
  PaintFrame(world, painter);
  const auto drawn = map.Drawing();
  ASSERT_EQ(drawn.size(), 1u);
  EXPECT_EQ(drawn[0].Op, CanvasOp::Box);
  EXPECT_EQ(drawn[0].Colour, WallColour);
}

TEST_F(FrameTest, MiniMapFrameMarksTheVisibleArea) {
  PaintFrame(world, painter);
  const auto& last = map.Calls.back();
  const ViewScale& t = world.View.Terrain;
  EXPECT_EQ(last.Op, CanvasOp::Box);
  EXPECT_EQ(last.Colour, Red);
  EXPECT_EQ(last.Pen.Fill, FillStyle::Transparent);
  EXPECT_DOUBLE_EQ(last.X1, t.Left / world.ZoomX);
  EXPECT_DOUBLE_EQ(last.Y1, t.Top / world.ZoomY);
  EXPECT_DOUBLE_EQ(last.X2, (t.Left + t.Width) / world.ZoomX - 1);
  EXPECT_DOUBLE_EQ(last.Y2, (t.Top + t.Height) / world.ZoomY - 1);
  EXPECT_EQ(map.Pen.Fill, FillStyle::Solid);
}

TEST_F(FrameTest, CursorCellIsOutlinedTwiceAsThickAndThePenIsRestored) {
  world.Settings.CurrentTool = WallTool;
  world.Settings.ToolColour = Rgb(0, 200, 0);
  world.MouseX = 15.5f * static_cast<float>(world.Settings.CellSize * world.ZoomX);
  world.MouseY = 14.5f * static_cast<float>(world.Settings.CellSize * world.ZoomY);
  PaintFrame(world, painter);

  const auto boxes = terrain.Of(CanvasOp::Box);
  const CanvasCall& border = boxes[boxes.size() - 2];
  EXPECT_EQ(border.Colour, Blue);
  EXPECT_EQ(border.Pen.Fill, FillStyle::Transparent);
  EXPECT_DOUBLE_EQ(border.X2, world.View.Map.Width * world.ZoomX);
  const CanvasCall& cursor = boxes.back();
  EXPECT_EQ(cursor.Colour, Rgb(0, 200, 0));
  EXPECT_EQ(cursor.Pen.DrawWidth, 2);
  EXPECT_EQ(cursor.Pen.Fill, FillStyle::Transparent);
  const double side = world.Settings.CellSize * world.ZoomX;
  EXPECT_DOUBLE_EQ(cursor.X1, 15 * side);
  EXPECT_DOUBLE_EQ(cursor.Y1, 14 * side);
  EXPECT_DOUBLE_EQ(cursor.X2, 16 * side);

  for (Canvas* view : {static_cast<Canvas*>(&terrain), static_cast<Canvas*>(&map)}) {
    EXPECT_EQ(view->Pen.Fill, FillStyle::Solid);
    EXPECT_EQ(view->Pen.DrawWidth, 1);
  }
}

TEST_F(FrameTest, ZoomLabelAtTheTopLeftCornerInBlueAtSize8) {
  world.View.TerrainFontSize = 3;
  PaintFrame(world, painter);
  CanvasCall label = terrain.Calls.back();
  EXPECT_EQ(label.Op, CanvasOp::Print);
  EXPECT_EQ(label.Text, "");  // zoom factor 1
  EXPECT_EQ(label.Pen.FontSize, 8);
  EXPECT_EQ(label.Pen.ForeColor, Blue);
  EXPECT_DOUBLE_EQ(label.X1, world.View.HScroll1.Value - world.View.Terrain.Width / 2);
  EXPECT_DOUBLE_EQ(label.Y1, world.View.VScroll1.Value - world.View.Terrain.Height / 2);
  EXPECT_EQ(terrain.Pen.FontSize, 3);

  world.ZoomX = world.ZoomY = 11;
  painter.DrawZoomLabel(world);
  EXPECT_EQ(terrain.Calls.back().Text, "ZOOM: 1.1X");
  world.ZoomX = world.ZoomY = 20;
  painter.DrawZoomLabel(world);
  EXPECT_EQ(terrain.Calls.back().Text, "ZOOM: 2.X");
}

TEST_F(FrameTest, NumbersOfAFrame) {
  PaintFrame(world, painter);
  std::vector<std::string> texts;
  for (const CanvasCall& c : terrain.Of(CanvasOp::Print)) texts.push_back(c.Text);
  const std::string nestAnts = CStr(world.Cells(15, 15).AntCount);
  // Cell (14,15): scent 60, no ants; cell (15,14): 20 and 2; the nest cell:
  // its ants in black, then again in yellow; the pile cell in yellow; the label.
  EXPECT_EQ(texts, (std::vector<std::string>{"60", "0", "20", "2", nestAnts, nestAnts, "0", ""}));
}

TEST_F(FrameTest, FinishFrameCallsTheWindowBack) {
  int frames = 0;
  ViewPainter shown(terrain, map, [&frames] { ++frames; });
  PaintFrame(world, shown);
  PaintFrame(world, shown);
  EXPECT_EQ(frames, 2);
}

}  // namespace
}  // namespace keldor::testing
