// The view painter on two recording canvases: what each layer asks the
// terrain view and the mini-map to draw, in which order and with which pen.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "window/WindowState.h"
#include "model/Numeric.h"
#include "render/ViewPainter.h"
#include "sim/Tick.h"
#include "support/PaintFrame.h"
#include "support/RecordingCanvas.h"
#include "support/TestWorld.h"

namespace keldor::testing {
namespace {

const double Black = Rgb(0, 0, 0);
const double Blue = Rgb(0, 0, 255);
const double Red = Rgb(255, 0, 0);
const double Grey = Rgb(50, 50, 50);
const double Green = Rgb(16, 152, 16);
const double Yellow = Rgb(255, 255, 0);
const double Ochre = Rgb(139, 129, 103);
const double WallColour = Rgb(120, 40, 40);

class PainterTest : public ::testing::Test {
 protected:
  void SetUp() override {
    painter.ClearViews(world);
    ForgetCalls();
  }
  double Size() const { return world.Settings.CellSize; }
  // Cell (x, y) with the given scent, ants and colour, as the tick leaves it.
  Cell& SetCell(int x, int y, double scent, int16_t ants, double colour = Ochre) {
    Cell& c = world.Cells(x, y);
    c.Scent = scent;
    c.AntCount = ants;
    c.Colour = colour;
    return c;
  }
  void AddWall(int x, int y) {
    WallObject& wall = world.Walls.Append();
    wall.ShapeCount = 1;
    wall.Shapes.resize(2);
    wall.Shapes[0].Colour = WallColour;
    const double x0 = (x - 1) * Size(), y0 = (y - 1) * Size(), x1 = x * Size(), y1 = y * Size();
    wall.Shapes[0].Points = {WorldPoint{x0, y0}, {x0, y1}, {x1, y1}, {x1, y0}, {}};
  }
  void OnlyPile(int x, int y, double amount) {
    world.FoodPiles.Clear();
    FoodPile& pile = world.FoodPiles.Append();
    pile.X = static_cast<int16_t>(x);
    pile.Y = static_cast<int16_t>(y);
    pile.Amount = amount;
  }
  void ForgetCalls() {
    terrain.Forget();
    map.Forget();
  }
  std::vector<std::string> Printed() const {
    std::vector<std::string> texts;
    for (const CanvasCall& c : terrain.Of(CanvasOp::Print)) texts.push_back(c.Text);
    return texts;
  }

  TestWorld test;
  World& world = test.world;
  ViewState& view = test.window.View;
  RecordingCanvas terrain;
  RecordingCanvas map;
  ViewPainter painter{terrain, map, view};
};

void ExpectCall(const CanvasCall& c, CanvasOp op, double x1, double y1, double x2) {
  EXPECT_EQ(c.Op, op);
  EXPECT_NEAR(c.X1, x1, 1e-9);
  EXPECT_NEAR(c.Y1, y1, 1e-9);
  EXPECT_NEAR(c.X2, x2, 1e-9);
}

// ---- Whole frames

class FrameTest : public PainterTest {
 protected:
  void SetUp() override {
    view.ShowOdor = 1;
    SetCell(15, 14, 20, 2, Rgb(150, 190, 130));
    SetCell(14, 15, -60, 0, Rgb(170, 150, 120));
    AddWall(17, 15);
    OnlyPile(16, 16, 20000);
  }
  // What a terrain call belongs to, recognised by its colours.
  enum class Layer { Clear, Cell, Wall, Nest, Pile, Ant, Overlay, Text };
  static Layer LayerOf(const CanvasCall& c) {
    if (c.Op == CanvasOp::Cls) return Layer::Clear;
    if (c.Op == CanvasOp::Print) return c.Pen.ForeColor == Blue ? Layer::Overlay : Layer::Text;
    if (c.Op == CanvasOp::Box) return c.Colour == WallColour ? Layer::Wall : c.Colour == Blue ? Layer::Overlay : Layer::Cell;
    if (c.Colour == Grey) return Layer::Nest;
    return c.Pen.FillColor == Green ? Layer::Pile : Layer::Ant;
  }
};

TEST_F(FrameTest, TickDrawsTheTerrainLayersInPhaseOrder) {
  IgnoredTickEvents events;
  TickContext context{world, test.random, painter, events};
  world.Cells(16, 16).Food = 20000;  // the tick drops piles whose cell holds no food
  for (int16_t ants : {1, 0}) {
    ForgetCalls();
    view.ShowAnts = ants;
    RunTick(context, TickInputOf(test.window, world));
    std::vector<Layer> order;
    for (const CanvasCall& c : terrain.Drawing()) {
      const Layer layer = LayerOf(c);
      if (layer != Layer::Text && (order.empty() || order.back() != layer)) order.push_back(layer);
    }
    std::vector<Layer> expected{Layer::Clear, Layer::Cell, Layer::Wall, Layer::Nest, Layer::Pile, Layer::Ant, Layer::Overlay};
    if (ants == 0) expected.erase(expected.begin() + 5);  // cells with ants are still drawn
    EXPECT_EQ(order, expected) << ants;
  }
}

TEST_F(FrameTest, NumbersOfAFrame) {
  PaintFrame(world, view, painter);
  const std::string nestAnts = CStr(world.Cells(15, 15).AntCount);
  // Cell (14,15): scent 60, no ants; cell (15,14): 20 and 2; the nest cell:
  // its ants in black, then again in yellow; the pile cell in yellow; the label.
  EXPECT_EQ(Printed(), (std::vector<std::string>{"60", "0", "20", "2", nestAnts, nestAnts, "0", ""}));
}

TEST_F(FrameTest, HiddenInfoPanelLeavesOnlyWallsOnTheMiniMap) {
  view.InfoVisible = false;
  PaintFrame(world, view, painter);
  const auto drawn = map.Drawing();
  ASSERT_EQ(drawn.size(), 1u);
  EXPECT_EQ(drawn[0].Op, CanvasOp::Box);
  EXPECT_EQ(drawn[0].Colour, WallColour);
}

TEST_F(FrameTest, CursorCellIsOutlinedTwiceAsThickAndThePenIsRestored) {
  view.CurrentTool = WallTool;
  view.ToolColour = Rgb(0, 200, 0);
  view.MouseX = 15.5f * static_cast<float>(Size() * view.ZoomX);
  view.MouseY = 14.5f * static_cast<float>(Size() * view.ZoomY);
  PaintFrame(world, view, painter);
  const auto boxes = terrain.Of(CanvasOp::Box);
  const CanvasCall& border = boxes[boxes.size() - 2];
  EXPECT_EQ(border.Colour, Blue);
  EXPECT_EQ(border.Pen.Fill, FillStyle::Transparent);
  EXPECT_DOUBLE_EQ(border.X2, view.Map.Width * view.ZoomX);
  const CanvasCall& cursor = boxes.back();
  const double side = Size() * view.ZoomX;
  ExpectCall(cursor, CanvasOp::Box, 15 * side, 14 * side, 16 * side);
  EXPECT_EQ(cursor.Colour, Rgb(0, 200, 0));
  EXPECT_EQ(cursor.Pen.DrawWidth, 2);
  EXPECT_EQ(cursor.Pen.Fill, FillStyle::Transparent);
  for (const RecordingCanvas* view : {&terrain, &map}) {
    EXPECT_EQ(view->Pen.Fill, FillStyle::Solid);
    EXPECT_EQ(view->Pen.DrawWidth, 1);
  }
}

TEST_F(FrameTest, ZoomLabelAtTheTopLeftCornerInBlueAtSize8) {
  view.TerrainFontSize = 3;
  PaintFrame(world, view, painter);
  const CanvasCall& label = terrain.Calls.back();
  EXPECT_EQ(label.Pen.FontSize, 8);
  EXPECT_EQ(label.Pen.ForeColor, Blue);
  EXPECT_EQ(terrain.Pen.FontSize, 3);
  for (const auto& [zoom, text] : {std::pair{11, "ZOOM: 1.1X"}, {20, "ZOOM: 2.X"}}) {
    view.ZoomX = view.ZoomY = zoom;
    painter.DrawZoomLabel(world);
    EXPECT_EQ(terrain.Calls.back().Text, text);
  }
}

TEST_F(FrameTest, RealTicksResetABittenAntsColourOnlyOnceDrawnAndLeaveThePenAtRest) {
  int frames = 0;
  ViewPainter shown(terrain, map, view, [&frames] { ++frames; });
  IgnoredTickEvents events;
  TickContext context{world, test.random, shown, events};
  view.CurrentTool = WallTool;
  view.TerrainFontSize = 4;
  Nest& nest = world.Nests[0];
  nest.Ants[1].Colour = Red;
  view.ShowAnts = 0;
  RunTick(context, TickInputOf(test.window, world));
  EXPECT_EQ(nest.Ants[1].Colour, Red) << "a hidden ant keeps its bite colour";
  view.ShowAnts = 1;
  ForgetCalls();
  RunTick(context, TickInputOf(test.window, world));
  EXPECT_EQ(nest.Ants[1].Colour, nest.Colour);
  const auto circles = terrain.Of(CanvasOp::Circle);
  EXPECT_TRUE(std::any_of(circles.begin(), circles.end(), [](const CanvasCall& c) { return c.Pen.FillColor == Red; }))
      << "drawn red once";
  EXPECT_EQ(frames, 2);
  EXPECT_EQ(terrain.Scale.Left, view.Terrain.Left);
  EXPECT_EQ(map.Scale.Width, view.Map.Width);
  for (const RecordingCanvas* view : {&terrain, &map}) {
    EXPECT_EQ(view->Pen.Fill, FillStyle::Solid);
    EXPECT_EQ(view->Pen.DrawWidth, 1);
  }
  EXPECT_EQ(terrain.Pen.FontSize, 4);
}

// ---- Cells

TEST_F(PainterTest, VisibleCellIsAColouredSquareOnBothViewsWithScentAndAntCount) {
  view.ShowOdor = 1;
  map.Pen.Fill = FillStyle::Transparent;
  painter.DrawCell(world, SetCell(15, 14, -40.7, 3));
  const double x0 = 14 * Size(), y0 = 13 * Size(), x1 = 15 * Size();
  ASSERT_EQ(map.Calls.size(), 1u);
  ExpectCall(map.Calls[0], CanvasOp::Box, x0, y0, x1);
  EXPECT_EQ(map.Calls[0].Colour, Ochre);  // no grid on the mini-map
  EXPECT_EQ(map.Calls[0].Pen.Fill, FillStyle::Solid);
  const auto calls = terrain.Calls;
  ASSERT_EQ(calls.size(), 3u);
  ExpectCall(calls[0], CanvasOp::Box, x0 * 10, y0 * 10, x1 * 10);
  EXPECT_EQ(calls[0].Colour, Black);
  EXPECT_EQ(calls[0].Pen.FillColor, Ochre);
  ExpectCall(calls[1], CanvasOp::Print, (x0 + Size() / 20) * 10, (y0 + Size() / 20) * 10, 0);
  EXPECT_EQ(calls[1].Text, "40");
  ExpectCall(calls[2], CanvasOp::Print, (x0 + 14 * Size() / 20) * 10, (y0 + 15 * Size() / 20) * 10, 0);
  EXPECT_EQ(calls[2].Text, "3");
  EXPECT_EQ(calls[2].Pen.ForeColor, Black);
}

TEST_F(PainterTest, CellNumbersFollowScentFoodAndTheOdorButton) {
  view.ShowOdor = 1;
  const struct {
    double scent;
    int16_t ants;
    double food;
    std::vector<std::string> texts;
  } cases[] = {{12.9, 0, 0, {"12", "0"}}, {0, 2, 0, {"2"}}, {30, 1, 5, {"1"}}};
  for (const auto& c : cases) {
    ForgetCalls();
    SetCell(15, 15, c.scent, c.ants).Food = c.food;
    painter.DrawCell(world, world.Cells(15, 15));
    EXPECT_EQ(Printed(), c.texts) << c.scent;
  }
  ForgetCalls();
  view.ShowOdor = 0;  // hidden odor only sets the fill colour of both views
  painter.DrawCell(world, SetCell(15, 15, -40, 3));
  EXPECT_TRUE(terrain.Calls.empty() && map.Calls.empty());
  EXPECT_EQ(terrain.Pen.FillColor, Ochre);
  EXPECT_EQ(map.Pen.FillColor, Ochre);
}

TEST_F(PainterTest, CulledSquaresAreNotDrawnOnTheTerrain) {
  view.ShowOdor = 1;
  const double rightEdge = 10 * Size() * view.ZoomX;  // where cell column 10 ends
  const struct {
    ViewScale view;
    bool drawn;
  } cases[] = {{{rightEdge, 0, 40000, 40000}, false},
               {{rightEdge - 1, 0, 40000, 40000}, true},
               {{9 * Size() * 10 + 10, 14 * Size() * 10 + 10, 100, 100}, false}};  // the cell holds the whole view
  for (const auto& c : cases) {
    ForgetCalls();
    view.Terrain = c.view;
    painter.DrawCell(world, SetCell(10, 15, 5, 1));
    EXPECT_EQ(terrain.Of(CanvasOp::Box).size(), c.drawn ? 1u : 0u) << c.view.Left;
    EXPECT_EQ(map.Of(CanvasOp::Box).size(), 1u) << "the mini-map shows every cell";
  }
}

// ---- Walls, nests and food piles

TEST_F(PainterTest, WallsReachTheMiniMapEvenWithTheInfoPanelHidden) {
  view.InfoVisible = false;
  terrain.Pen.FillColor = Rgb(1, 2, 3);
  AddWall(15, 15);  // visible
  AddWall(1, 1);    // outside the terrain view
  painter.DrawWalls(world);
  const auto mapBoxes = map.Of(CanvasOp::Box);
  ASSERT_EQ(mapBoxes.size(), 2u);
  ExpectCall(mapBoxes[0], CanvasOp::Box, 14 * Size(), 14 * Size(), 15 * Size());
  EXPECT_EQ(mapBoxes[0].Pen.FillColor, WallColour);
  EXPECT_EQ(mapBoxes[0].Pen.ForeColor, Rgb(1, 2, 3));  // the terrain view's fill colour at that moment
  const auto terrainBoxes = terrain.Of(CanvasOp::Box);
  ASSERT_EQ(terrainBoxes.size(), 1u);
  ExpectCall(terrainBoxes[0], CanvasOp::Box, 14 * Size() * 10, 14 * Size() * 10, 15 * Size() * 10);
  EXPECT_EQ(terrainBoxes[0].Colour, WallColour);
  EXPECT_EQ(terrain.Pen.ForeColor, Black);
}

TEST_F(PainterTest, NestIsAGreyDiscWithItsCellNumbersInYellowEvenOffTheView) {
  view.ShowOdor = 1;
  const Nest& nest = world.Nests[0];
  world.Cells(nest.CellX, nest.CellY).Scent = -249.5;
  painter.DrawNests(world);
  const auto mapCircles = map.Of(CanvasOp::Circle);
  ASSERT_EQ(mapCircles.size(), 1u);
  EXPECT_DOUBLE_EQ(mapCircles[0].X2, nest.Radius / 10);
  EXPECT_EQ(mapCircles[0].Pen.FillColor, Grey);
  const auto calls = terrain.Calls;
  ASSERT_EQ(calls.size(), 3u);
  ExpectCall(calls[0], CanvasOp::Circle, nest.X * 10, nest.Y * 10, nest.Radius * view.ZoomX / 10);
  EXPECT_EQ(calls[0].Colour, Grey);
  EXPECT_EQ(calls[1].Text, "250");  // the nest scent rounds away from zero
  EXPECT_EQ(calls[1].Pen.ForeColor, Yellow);
  EXPECT_EQ(calls[2].Text, CStr(world.Cells(nest.CellX, nest.CellY).AntCount));
  EXPECT_EQ(terrain.Pen.ForeColor, Black);

  world.Cells(nest.CellX, nest.CellY).Scent = 0;
  view.Terrain.Left = view.Terrain.Top = 0;
  for (int odor : {1, 0}) {
    ForgetCalls();
    view.ShowOdor = static_cast<int16_t>(odor);
    painter.DrawNests(world);
    EXPECT_TRUE(terrain.Of(CanvasOp::Circle).empty());
    EXPECT_EQ(terrain.Of(CanvasOp::Print).size(), odor == 1 ? 1u : 0u) << "scent 0: only the ant count";
  }
}

TEST_F(PainterTest, FoodPileDiscAreaIsItsAmount) {
  view.ShowOdor = 1;
  OnlyPile(15, 16, 40000);
  SetCell(15, 16, 77.2, 4);
  painter.DrawFoodPiles(world);
  const double cx = 14.5 * Size(), cy = 15.5 * Size(), r = std::sqrt(40000 / Pi);
  const auto mapCircles = map.Of(CanvasOp::Circle);
  ASSERT_EQ(mapCircles.size(), 1u);
  ExpectCall(mapCircles[0], CanvasOp::Circle, cx, cy, r / 10);
  EXPECT_EQ(mapCircles[0].Pen.FillColor, Green);
  const auto calls = terrain.Calls;
  ASSERT_EQ(calls.size(), 3u);
  ExpectCall(calls[0], CanvasOp::Circle, cx * 10, cy * 10, r * view.ZoomX / 10);
  EXPECT_EQ(calls[0].Colour, Black);
  EXPECT_EQ(calls[0].Pen.FillColor, Green);
  EXPECT_EQ(calls[1].Text, "77");
  EXPECT_EQ(calls[2].Text, "4");
  EXPECT_EQ(terrain.Pen.ForeColor, Yellow);  // left yellow for the later layers
}

TEST_F(PainterTest, EmptyPilesAndHiddenPileNumbersAreSkipped) {
  view.ShowOdor = 1;
  OnlyPile(15, 15, 0);
  painter.DrawFoodPiles(world);
  EXPECT_TRUE(terrain.Calls.empty());
  EXPECT_TRUE(map.Calls.empty());
  // Text anchors left of the view: the disc is partly visible, no numbers.
  OnlyPile(10, 15, 100000);
  view.Terrain.Left = 9 * Size() * 10 + 14 * Size() / 20 * 10 + 1;
  painter.DrawFoodPiles(world);
  EXPECT_EQ(terrain.Of(CanvasOp::Circle).size(), 1u);
  EXPECT_TRUE(terrain.Of(CanvasOp::Print).empty());
}

// ---- Ant figures

class AntFigureTest : public PainterTest {
 protected:
  void SetUp() override {
    view.ZoomX = view.ZoomY = 20;  // radii scale by ZoomX / ScaleX = 2
    view.Terrain = {0, 0, 40000, 40000};
    PainterTest::SetUp();
  }
  // Places ant index of the default nest with rear R and head H (world units).
  Ant& Place(int index, double rx, double ry, double hx, double hy) {
    Ant& ant = world.Nests[0].Ants[index];
    ant.RearX = rx;
    ant.RearY = ry;
    ant.HeadX = hx;
    ant.HeadY = hy;
    ant.Colour = Red;
    return ant;
  }
  void ExpectCircles(const std::vector<std::array<double, 3>>& expected) {
    const auto circles = terrain.Of(CanvasOp::Circle);
    ASSERT_EQ(circles.size(), expected.size());
    for (size_t i = 0; i < expected.size(); ++i) {
      ExpectCall(circles[i], CanvasOp::Circle, expected[i][0] * 20, expected[i][1] * 20, expected[i][2] * 2);
    }
  }
};

TEST_F(AntFigureTest, WorkerIsHeadMiddleAndRearCirclesInOrder) {
  const double l = Place(1, 100, 200, 128, 200).Length;  // body along x, 28 long
  painter.DrawAnt(world, world.Nests[0], 1);
  ExpectCircles({{128, 200, l / 5}, {128 - 11, 200, l / 7}, {100 + 28.0 / 6, 200, l / 6}});
  for (const CanvasCall& c : terrain.Of(CanvasOp::Circle)) {
    EXPECT_EQ(c.Colour, Black);
    EXPECT_EQ(c.Pen.FillColor, Red);
  }
  const double a = world.Nests[0].AntLength / 20;  // the mini-map: a cross and a circle
  const auto calls = map.Calls;
  ASSERT_EQ(calls.size(), 3u);
  ExpectCall(calls[0], CanvasOp::Line, 114 - a, 200, 114 + a);
  ExpectCall(calls[1], CanvasOp::Line, 114, 200 - a, 114);
  ExpectCall(calls[2], CanvasOp::Circle, 114, 200, a);
  for (const CanvasCall& c : calls) EXPECT_EQ(c.Colour, Red);
}

TEST_F(AntFigureTest, QueenAbdomenGrowsWithTheStore) {
  world.Nests[0].FoodStore = 900;
  const double l = Place(0, 100, 200, 100, 236).Length;
  painter.DrawAnt(world, world.Nests[0], 0);
  ExpectCircles({{100, 236, l / 8}, {100, 236 - 12, l / 5}, {100, 209, l / 4 + std::sqrt(900 / Pi)}});
}

TEST_F(AntFigureTest, LoadIsAGreenDiscAheadOfTheHeadAndOnTheMap) {
  const double l = Place(2, 100, 200, 128, 200).Length;
  world.Nests[0].Ants[2].Load = 300;
  painter.DrawAnt(world, world.Nests[0], 2);
  ExpectCircles({{135, 200, std::sqrt(300 / Pi)}, {128, 200, l / 5}, {117, 200, l / 7}, {100 + 28.0 / 6, 200, l / 6}});
  EXPECT_EQ(terrain.Of(CanvasOp::Circle)[0].Pen.FillColor, Green);
  const auto mapCircles = map.Of(CanvasOp::Circle);
  ASSERT_EQ(mapCircles.size(), 2u);
  ExpectCall(mapCircles[1], CanvasOp::Circle, 128, 200, std::sqrt(300 / Pi) / 10);
  EXPECT_EQ(mapCircles[1].Colour, Green);
}

TEST_F(AntFigureTest, AntIsCulledOnlyWhenRearAndHeadAreBothHidden) {
  Place(1, 100, 200, 128, 200);
  const struct {
    double left, width;
    size_t circles;
  } cases[] = {{0, 128 * 20, 3}, {100 * 20, 40000, 3}, {128 * 20, 40000, 0}};  // head on the edge; rear; both
  for (const auto& c : cases) {
    ForgetCalls();
    view.Terrain = {c.left, 0, c.width, 40000};
    painter.DrawAnt(world, world.Nests[0], 1);
    EXPECT_EQ(terrain.Of(CanvasOp::Circle).size(), c.circles) << c.left;
    EXPECT_EQ(map.Of(CanvasOp::Circle).size(), 1u);
  }
}

}  // namespace
}  // namespace keldor::testing
