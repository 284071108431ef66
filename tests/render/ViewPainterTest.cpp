// The view painter on two recording canvases. The world is 20 x 20 cells, so
// a cell is 100 world units wide; at zoom 20 it is 2000 terrain units wide and
// radii in body units are drawn at ZoomX / ScaleX = 2 times their size.
// Cell (2, 4) spans world x 100..200, y 300..400: terrain 2000..4000, 6000..8000.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <tuple>

#include "window/WindowState.h"
#include "render/ViewPainter.h"
#include "sim/Tick.h"
#include "support/PaintFrame.h"
#include "support/RecordingCanvas.h"
#include "support/TestWorld.h"

namespace keldor::testing {
namespace {

constexpr Colour Black{0, 0, 0};
constexpr Colour Blue{0, 0, 255};
constexpr Colour Red{255, 0, 0};
constexpr Colour Grey{50, 50, 50};
constexpr Colour Green{16, 152, 16};
constexpr Colour Yellow{255, 255, 0};
constexpr Colour Ochre{139, 129, 103};
constexpr Colour Brick{120, 40, 40};
const double PileOf50 = 7853.9815;  // Pi * 50^2: a disc of radius 50 body units

std::string Name(Colour colour) {
  const std::pair<Colour, const char*> names[] = {{Black, "black"}, {Blue, "blue"},   {Red, "red"},
                                                  {Grey, "grey"},   {Green, "green"}, {Yellow, "yellow"},
                                                  {Ochre, "ochre"}, {Brick, "brick"}};
  for (const auto& [value, name] : names) {
    if (value == colour) return name;
  }
  return std::to_string(colour.Packed());
}

// What a view was asked to draw, one call after another: a box's corners, a
// line's ends or a circle's centre and radius, then outline/fill colour
// ("hollow" when transparent); a print's point, text and colour.
std::string Drawn(const RecordingCanvas& view) {
  const char* const ops[] = {"Cls", "Line", "Box", "Circle", "Print"};
  std::ostringstream out;
  for (const CanvasCall& c : view.Calls) {
    out << (out.tellp() > 0 ? "; " : "") << ops[static_cast<int>(c.Op)];
    if (c.Op == CanvasOp::Print) {
      out << ' ' << c.X1 << ' ' << c.Y1 << " \"" << c.Text << "\" " << Name(c.Pen.ForeColor);
    } else if (c.Op != CanvasOp::Cls) {
      out << ' ' << c.X1 << ' ' << c.Y1 << ' ' << c.X2;
      if (c.Op != CanvasOp::Circle) out << ' ' << c.Y2;
      out << ' ' << Name(c.Colour) << '/' << (c.Pen.Fill == FillStyle::Solid ? Name(c.Pen.FillColor) : "hollow");
      if (c.Pen.DrawWidth != 1) out << " width " << c.Pen.DrawWidth;
    }
  }
  return out.str();
}

class PainterTest : public ::testing::Test {
 protected:
  // Cell (2, 4) with scent and ants holds a wall, the only nest (radius 100
  // body units) and a pile of radius 50 body units.
  void SetUp() override {
    view.ZoomX = view.ZoomY = 20;
    view.ShowOdor = 1;
    view.Terrain = {0, 0, 40000, 40000};  // the whole world
    Cell& cell = world.Cells(2, 4);
    cell.AntCount = 3;
    cell.Scent = -40.7;
    cell.Colour = Ochre;
    cell.Food = 20000;  // a tick drops piles whose cell holds no food
    WallShape& wall = world.Walls.Append().Shapes.emplace_back();
    wall.Colour = Brick;
    wall.Points = {WorldPoint{100, 300}, {100, 400}, {200, 400}, {200, 300}, {}};
    world.Nests[0].X = 150;
    world.Nests[0].Y = 350;
    world.Nests[0].Radius = 100;
    world.FoodPiles.Clear();
    world.FoodPiles.Append() = FoodPile{2, 4, 0, PileOf50};
    painter.ClearViews(world);
    ForgetCalls();
  }
  void ForgetCalls() {
    terrain.Calls.clear();
    map.Calls.clear();
  }
  // The texts printed on the terrain view, separated by spaces.
  std::string Printed() const {
    std::string texts;
    for (const CanvasCall& c : terrain.Calls) {
      if (c.Op == CanvasOp::Print) texts += (texts.empty() ? "" : " ") + c.Text;
    }
    return texts;
  }

  TestWorld test{1, NewWorldInputs{"20", "20"}};
  World& world = test.world;
  ViewState& view = test.window.View;
  RecordingCanvas terrain;
  RecordingCanvas map;
  ViewPainter painter{terrain, map, view};
};

// The cell and the wall are tested at the square's corners, terrain (2000, 6000) to
// (4000, 8000). The nest and the pile are tested at (3000, 7000) +- 100: the
// nest's R = 100 unscaled, the pile's rT = 50 * 20 / 10.
TEST_F(PainterTest, ShapesAreDrawnWhenAnyTestPointLiesStrictlyInsideTheView) {
  const std::tuple<ViewScale, size_t, size_t> cases[] = {  // the view, boxes and discs drawn
      {{1500, 5500, 1000, 1000}, 2, 0},                      // round corner (2000, 6000) alone
      {{1500, 7500, 1000, 1000}, 2, 0},                      // (2000, 8000)
      {{3500, 5500, 1000, 1000}, 2, 0},                      // (4000, 6000)
      {{3500, 7500, 1000, 1000}, 2, 0},                      // (4000, 8000)
      {{2500, 6500, 1000, 1000}, 0, 2},                      // inside the square, round all disc points
      {{2000, 5500, 1000, 1000}, 0, 0},                      // corners x 2000 on the left edge
      {{1000, 5500, 1000, 1000}, 0, 0},                      // on the right edge: 1000 + 1000
      {{1500, 6000, 1000, 1000}, 0, 0},                      // corner y 6000 on the top edge
      {{1500, 5000, 1000, 1000}, 0, 0},                      // on the bottom edge
      {{2850, 6850, 100, 100}, 0, 2},                        // round disc point (2900, 6900) alone
      {{3050, 6850, 100, 100}, 0, 2},                        // (3100, 6900)
      {{2850, 7050, 100, 100}, 0, 2},                        // (2900, 7100)
      {{3050, 7050, 100, 100}, 0, 2},                        // (3100, 7100)
      {{2950, 6950, 100, 100}, 0, 0},                        // round the centre only
      {{3150, 7150, 100, 100}, 0, 0},                        // (3200, 7200): a half-side of 200
      {{3025, 7025, 50, 50}, 0, 0},                          // (3050, 7050): a half-side of 50
      {{2900, 6850, 100, 100}, 0, 0}};                       // (2900, 6900) on the left edge
  for (const auto& [visible, boxes, discs] : cases) {
    ForgetCalls();
    view.Terrain = visible;
    painter.DrawCell(world, world.Cells(2, 4));
    painter.DrawWalls(world);
    painter.DrawNests(world);
    painter.DrawFoodPiles(world);
    EXPECT_EQ(terrain.Count(CanvasOp::Box), boxes) << visible.Left << "," << visible.Top;
    EXPECT_EQ(terrain.Count(CanvasOp::Circle), discs) << visible.Left << "," << visible.Top;
    EXPECT_EQ(map.Count(CanvasOp::Box), 2u) << "the mini-map shows every cell and wall";
  }
}

// ---- Cells

// Scent values print at ((100 + 100 / 20) * 20, (300 + 5) * 20), ant counts at
// ((100 + 14 * 100 / 20) * 20, (300 + 15 * 100 / 20) * 20).
TEST_F(PainterTest, CellIsAColouredSquareOnBothViewsWithScentAndAntCount) {
  const std::string square = "Box 2000 6000 4000 8000 black/ochre";
  const std::tuple<double, int16_t, double, std::string> cases[] = {  // scent, ants, food, terrain
      {-40.7, 3, 0, square + "; Print 2100 6100 \"40\" black; Print 3400 7500 \"3\" black"},  // Int(40.7)
      {12.9, 0, 0, square + "; Print 2100 6100 \"12\" black; Print 3400 7500 \"0\" black"},   // the count also at 0
      {0, 2, 0, square + "; Print 3400 7500 \"2\" black"},                                   // no scent value at 0
      {30, 1, 5, square + "; Print 3400 7500 \"1\" black"}};                                 // none on a food cell
  map.Pen.Fill = FillStyle::Transparent;
  for (const auto& [scent, ants, food, drawn] : cases) {
    ForgetCalls();
    Cell& cell = world.Cells(2, 4);
    cell.Scent = scent;
    cell.AntCount = ants;
    cell.Food = food;
    painter.DrawCell(world, cell);
    EXPECT_EQ(Drawn(terrain), drawn);
    EXPECT_EQ(Drawn(map), "Box 100 300 200 400 ochre/ochre");  // no grid on the mini-map
  }
  ForgetCalls();
  view.ShowOdor = 0;  // hidden odor only sets the fill colour of both views
  painter.DrawCell(world, world.Cells(2, 4));
  EXPECT_EQ(Drawn(terrain) + Drawn(map), "");
  EXPECT_EQ(Name(terrain.Pen.FillColor) + Name(map.Pen.FillColor), "ochreochre");
}

// ---- Walls, nests and food piles

TEST_F(PainterTest, WallIsABoxFromItsFirstToItsThirdCorner) {
  view.InfoVisible = false;  // walls reach the mini-map all the same
  terrain.Pen.FillColor = Blue;
  painter.DrawWalls(world);
  EXPECT_EQ(Drawn(map), "Box 100 300 200 400 brick/brick");
  EXPECT_EQ(map.Calls[0].Pen.ForeColor, Blue);  // the terrain view's fill colour at that moment
  EXPECT_EQ(Drawn(terrain), "Box 2000 6000 4000 8000 brick/brick");
  EXPECT_EQ(terrain.Pen.ForeColor, Black);
}

TEST_F(PainterTest, NestIsAGreyDiscWithItsCellNumbersInYellowEvenOffTheView) {
  painter.DrawNests(world);
  EXPECT_EQ(Drawn(map), "Circle 150 350 10 black/grey");  // radius 100 / 10
  // Radius 100 * 20 / 10. Corner of the nest cell: Int(150 / 100) * 100, Int(350 / 100) * 100.
  EXPECT_EQ(Drawn(terrain),
            "Circle 3000 7000 200 grey/grey; "
            "Print 2100 6100 \"41\" yellow; "  // (100 + 5) * 20, (300 + 5) * 20; -Int(-40.7)
            "Print 3400 7500 \"3\" yellow");   // (100 + 70) * 20, (300 + 75) * 20
  EXPECT_EQ(terrain.Pen.ForeColor, Black);

  view.Terrain = {0, 0, 100, 100};  // the disc is off the view, the numbers are not culled
  const std::tuple<double, int16_t, const char*> cases[] = {{12.9, 1, "12 3"}, {0, 1, "3"}, {-40, 0, ""}};
  for (const auto& [scent, odor, texts] : cases) {  // the cell's scent, ShowOdor, the texts
    ForgetCalls();
    view.ShowOdor = odor;
    world.Cells(2, 4).Scent = scent;
    painter.DrawNests(world);
    EXPECT_EQ(Printed(), texts) << scent;
  }
}

TEST_F(PainterTest, FoodPileDiscAreaIsItsAmountAndItsNumbersAreCulled) {
  map.Pen.Fill = FillStyle::Transparent;
  painter.DrawFoodPiles(world);
  EXPECT_EQ(Drawn(map), "Circle 150 350 5 black/green");  // centre of cell (2, 4); r = 50, / 10
  EXPECT_EQ(Drawn(terrain),
            "Circle 3000 7000 100 black/green; "  // rT = 50 * 20 / 10
            "Print 2100 6100 \"41\" yellow; "     // as over nests: -Int(-40.7)
            "Print 3400 7500 \"3\" yellow");
  EXPECT_EQ(terrain.Pen.ForeColor, Yellow);  // left yellow for the later layers

  const std::pair<ViewScale, const char*> cases[] = {{{2050, 6050, 100, 100}, "41"},  // holds (2100, 6100) only
                                                     {{3350, 7450, 100, 100}, "3"},   // holds (3400, 7500) only
                                                     {{2100, 6050, 100, 100}, ""}};   // (2100, 6100) on the left edge
  for (const auto& [visible, texts] : cases) {
    ForgetCalls();
    view.Terrain = visible;
    painter.DrawFoodPiles(world);
    EXPECT_EQ(Printed(), texts) << visible.Left;
  }
  ForgetCalls();
  view.Terrain = {0, 0, 40000, 40000};
  world.FoodPiles[0].Amount = 0;  // an empty pile is not drawn
  painter.DrawFoodPiles(world);
  EXPECT_EQ(Drawn(terrain) + Drawn(map), "");
}

// ---- Overlays

TEST_F(PainterTest, VisibleAreaFrameOnTheMapAndWorldBorderOnTheTerrain) {
  view.Terrain = {2000, 6000, 4000, 3000};
  view.Map = {10, 20, 2000, 2000};
  painter.DrawViewFrames(world);
  EXPECT_EQ(Drawn(map), "Box 100 300 299 449 red/hollow");  // (2000 + 4000) / 20 - 1, (6000 + 3000) / 20 - 1
  EXPECT_EQ(Drawn(terrain), "Box 200 400 40200 40400 blue/hollow");  // 10 * 20, 20 * 20, 2010 * 20, 2020 * 20

  ForgetCalls();
  view.CurrentTool = WallTool;
  view.ToolColour = Red;
  view.MouseX = 5000;  // Int(5000 / 20 / 100) + 1 = column 3
  view.MouseY = 9000;  // row 5
  painter.DrawViewFrames(world);
  EXPECT_EQ(Drawn(terrain),
            "Box 200 400 40200 40400 blue/hollow; "
            "Box 4000 8000 6000 10000 red/hollow width 2");  // columns 200..300, rows 400..500, * 20
  for (const RecordingCanvas* view : {&terrain, &map}) {
    EXPECT_EQ(view->Pen.Fill, FillStyle::Solid);
    EXPECT_EQ(view->Pen.DrawWidth, 1);
  }
}

TEST_F(PainterTest, ZoomLabelAtTheTopLeftCornerInBlueAtSize8) {
  // The scroll bars at 5000 and 7000 put the view's corner at 5000 - 4000 / 2, 7000 - 3000 / 2.
  view.Terrain = {3000, 5500, 4000, 3000};
  terrain.Pen.FontSize = 3;
  for (const auto& [zoom, text] : {std::pair{10, ""}, {11, "ZOOM: 1.1X"}, {20, "ZOOM: 2.X"}}) {
    ForgetCalls();
    view.ZoomX = view.ZoomY = zoom;
    painter.DrawZoomLabel(world);
    // At the view's top-left corner.
    EXPECT_EQ(Drawn(terrain), "Print 3000 5500 \"" + std::string(text) + "\" blue");
    EXPECT_EQ(terrain.Calls[0].Pen.FontSize, 8);
    EXPECT_EQ(terrain.Pen.FontSize, 3);
  }
}

TEST_F(PainterTest, ClearingResetsTheTerrainPen) {
  view.TerrainFontSize = 4;
  terrain.Pen = {Yellow, Green, FillStyle::Solid, 1, 8, 500, 600};
  painter.ClearViews(world);
  EXPECT_EQ(Drawn(terrain) + " " + Drawn(map), "Cls Cls");  // a hidden map is not cleared: see the frame tests
  EXPECT_EQ(terrain.Pen.CurrentX + terrain.Pen.CurrentY, 0);
  EXPECT_EQ(terrain.Pen.ForeColor, Black);
  EXPECT_EQ(terrain.Pen.FontSize, 4);
  EXPECT_EQ(terrain.Scale.Width, 40000);
  EXPECT_EQ(map.Scale.Width, 2000);
}

// ---- Ant figures: rear R = (100, 200), head H = (184, 242), so H - R = (84, 42)

class AntFigureTest : public PainterTest {
 protected:
  void Place(int index, double load = 0) {
    Nest& nest = world.Nests[0];
    nest.AntLength = 60;
    nest.FoodStore = 1256.63704;  // Pi * 20^2
    nest.Ants[index] = Ant{.RearX = 100, .RearY = 200, .HeadX = 184, .HeadY = 242, .Length = 840, .Load = load, .Colour = Red};
    painter.DrawAnt(world, nest, index);
  }
};

TEST_F(AntFigureTest, WorkerQueenAndLoadFigures) {
  const std::tuple<int, double, const char*> cases[] = {
      // A worker: centres H, H - (84, 42) * 11/28, R + (84, 42) / 6, times 20; radii 840 / 5, / 7, / 6, times 2.
      {1, 0, "Circle 3680 4840 336 black/red; Circle 3020 4510 240 black/red; Circle 2280 4140 280 black/red"},
      // The queen: centres H, H - (84, 42) / 3, R + (84, 42) / 4; radii 840 / 8, 840 / 5, 840 / 4 + Sqr(store / Pi).
      {0, 0, "Circle 3680 4840 210 black/red; Circle 3120 4560 336 black/red; Circle 2420 4210 460 black/red"},
      // A load of Pi * 10^2 first, at H + (84, 42) / 4 with radius 10; then the worker.
      {2, 314.15926, "Circle 4100 5050 20 black/green; Circle 3680 4840 336 black/red; "
                     "Circle 3020 4510 240 black/red; Circle 2280 4140 280 black/red"}};
  for (const auto& [index, load, figure] : cases) {
    ForgetCalls();
    Place(index, load);
    EXPECT_EQ(Drawn(terrain), figure) << index;
    // Round the centre (142, 221), a = b = 60 / (2 * 10); the load at the head, radius 10 / 10.
    EXPECT_EQ(Drawn(map), "Line 139 221 145 221 red/red; Line 142 218 142 224 red/red; Circle 142 221 3 red/red" +
                              std::string(load > 0 ? "; Circle 184 242 1 green/green" : ""));
    EXPECT_EQ(map.Pen.FillColor, Red);
  }
}

TEST_F(AntFigureTest, AntIsCulledOnlyWhenRearAndHeadAreBothHidden) {
  // Rear at terrain (2000, 4000), head at (3680, 4840).
  const std::pair<ViewScale, size_t> cases[] = {{{1950, 3950, 100, 100}, 3},   // the rear only
                                                {{3630, 4790, 100, 100}, 3},   // the head only
                                                {{2500, 4200, 500, 500}, 0},   // between them
                                                {{3680, 4790, 100, 100}, 0}};  // the head on the left edge
  for (const auto& [visible, circles] : cases) {
    ForgetCalls();
    view.Terrain = visible;
    Place(1);
    EXPECT_EQ(terrain.Count(CanvasOp::Circle), circles) << visible.Left;
    EXPECT_EQ(map.Count(CanvasOp::Circle), 1u);
  }
}

// ---- Whole frames

class FrameTest : public PainterTest {
 protected:
  // The layer a terrain call belongs to, recognised by its colours: Clear,
  // Cell, Wall, Nest, Pile, Ant, Overlay, or Text for the numbers.
  static char LayerOf(const CanvasCall& c) {
    if (c.Op == CanvasOp::Cls) return 'C';
    if (c.Op == CanvasOp::Print) return c.Pen.ForeColor == Blue ? 'O' : 'T';
    if (c.Op == CanvasOp::Box) return c.Colour == Brick ? 'W' : c.Colour == Blue ? 'O' : 'c';
    if (c.Colour == Grey) return 'N';
    return c.Pen.FillColor == Green ? 'P' : 'A';
  }
  void Tick(TickPainter& withPainter) {
    IgnoredTickEvents events;
    TickContext context{world, test.random, events};
    RunTick(context, withPainter, TickInputOf(test.window, world));
  }
};

TEST_F(FrameTest, TickDrawsTheTerrainLayersInPhaseOrder) {
  for (int16_t ants : {1, 0}) {
    ForgetCalls();
    view.ShowAnts = ants;
    Tick(painter);
    std::string order;
    for (const CanvasCall& c : terrain.Calls) {
      const char layer = LayerOf(c);
      if (layer != 'T' && (order.empty() || order.back() != layer)) order += layer;
    }
    EXPECT_EQ(order, ants == 1 ? "CcWNPAO" : "CcWNPO") << ants;  // cells with ants are drawn either way
  }
}

TEST_F(FrameTest, HiddenInfoPanelLeavesOnlyWallsOnTheMiniMap) {
  view.InfoVisible = false;  // ants are shown after New
  PaintFrame(world, view, painter);
  EXPECT_EQ(Drawn(map), "Box 100 300 200 400 brick/brick");
}

TEST_F(FrameTest, RealTicksResetABittenAntsColourOnlyOnceDrawnAndShowEachFrame) {
  int frames = 0;
  ViewPainter shown(terrain, map, view, [&frames] { ++frames; });
  Nest& nest = world.Nests[0];
  nest.Ants[1].Colour = Red;
  view.ShowAnts = 0;
  Tick(shown);
  EXPECT_EQ(nest.Ants[1].Colour, Red) << "a hidden ant keeps its bite colour";
  view.ShowAnts = 1;
  ForgetCalls();
  Tick(shown);
  EXPECT_EQ(nest.Ants[1].Colour, nest.Colour);
  EXPECT_TRUE(std::any_of(terrain.Calls.begin(), terrain.Calls.end(), [](auto& c) { return c.Pen.FillColor == Red; }))
      << "drawn red once";
  EXPECT_EQ(frames, 2);
}

}  // namespace
}  // namespace keldor::testing
