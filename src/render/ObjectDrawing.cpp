#include "render/ObjectDrawing.h"

#include <cmath>

#include "model/Numeric.h"
#include "model/Queries.h"
#include "model/World.h"
#include "render/CellDrawing.h"
#include "render/ViewColours.h"

namespace keldor {

namespace {

// True when any corner of the square of half-side r round terrain point (x, y) is visible.
bool AnyCornerVisible(double x, double y, double r, const ViewScale& view) {
  return IsPointVisible(x - r, y - r, view) || IsPointVisible(x + r, y - r, view) ||
         IsPointVisible(x - r, y + r, view) || IsPointVisible(x + r, y + r, view);
}

// Terrain point of a world point.
double TerrainX(const World& world, double x) { return x * world.ZoomX; }
double TerrainY(const World& world, double y) { return y * world.ZoomY; }

void DrawWall(const World& world, const WallShape& shape, Canvas& terrain, Canvas& map) {
  const auto& p = shape.Points;
  map.Pen.FillColor = shape.Colour;
  map.Pen.ForeColor = terrain.Pen.FillColor;
  map.Box(p[0].X, p[0].Y, p[2].X, p[2].Y, shape.Colour);

  const ViewScale& view = world.View.Terrain;
  bool visible = false;
  for (int i = 0; i < 4 && !visible; ++i) {
    visible = IsPointVisible(TerrainX(world, p[i].X), TerrainY(world, p[i].Y), view);
  }
  if (!visible) return;
  terrain.Pen.FillColor = shape.Colour;
  terrain.Pen.ForeColor = Black;
  terrain.Box(TerrainX(world, p[0].X), TerrainY(world, p[0].Y), TerrainX(world, p[2].X), TerrainY(world, p[2].Y),
              shape.Colour);
}

// The scent of a nest's cell: Int(s) above 0, -Int(s) below 0.
void PrintNestScent(Canvas& canvas, double scent) {
  if (scent > 0) {
    canvas.Print(CStr(Int(scent)));
  } else if (scent < 0) {
    canvas.Print(CStr(-Int(scent)));
  }
}

void DrawNest(const World& world, const Nest& nest, Canvas& terrain, Canvas& map) {
  const double scaleX = world.Settings.ScaleX;
  if (world.Controls.InfoVisible) {
    map.Pen.FillColor = NestGrey;
    map.Circle(nest.X, nest.Y, nest.Radius / scaleX, Black);
  }
  terrain.Pen.FillColor = NestGrey;
  const double x = TerrainX(world, nest.X);
  const double y = TerrainY(world, nest.Y);
  if (AnyCornerVisible(x, y, nest.Radius, world.View.Terrain)) {
    terrain.Circle(x, y, nest.Radius * world.ZoomX / scaleX, NestGrey);
  }
  if (world.ShowOdor != 1) return;

  const double size = world.Settings.CellSize;
  const double gx = Int(nest.X / size) * size;
  const double gy = Int(nest.Y / size) * size;
  const Cell& cell = world.Cells(CellOfCoordinate(nest.X, size), CellOfCoordinate(nest.Y, size));
  terrain.Pen.ForeColor = TextYellow;
  terrain.Pen.CurrentX = TerrainX(world, gx + size / 20);
  terrain.Pen.CurrentY = TerrainY(world, gy + size / 20);
  PrintNestScent(terrain, cell.Scent);
  terrain.Pen.CurrentX = TerrainX(world, gx + 14 * size / 20);
  terrain.Pen.CurrentY = TerrainY(world, gy + 15 * size / 20);
  terrain.Print(CStr(cell.AntCount));
  terrain.Pen.ForeColor = Black;
}

void DrawFoodPile(const World& world, const FoodPile& pile, Canvas& terrain, Canvas& map) {
  const double size = world.Settings.CellSize;
  const double scaleX = world.Settings.ScaleX;
  const double cx = (pile.X - 1) * size + size / 2;
  const double cy = (pile.Y - 1) * size + size / 2;
  const double r = std::sqrt(pile.Amount / Pi);
  const double rT = r * world.ZoomX / scaleX;
  if (world.Controls.InfoVisible) {
    map.Pen.FillColor = FoodGreen;
    map.Pen.Fill = FillStyle::Solid;
    map.Circle(cx, cy, r / scaleX, Black);
  }
  const ViewScale& view = world.View.Terrain;
  if (AnyCornerVisible(TerrainX(world, cx), TerrainY(world, cy), rT, view)) {
    terrain.Pen.FillColor = FoodGreen;
    terrain.Circle(TerrainX(world, cx), TerrainY(world, cy), rT, Black);
  }
  if (world.ShowOdor != 1) return;

  const Cell& cell = world.Cells(pile.X, pile.Y);
  terrain.Pen.ForeColor = TextYellow;
  terrain.Pen.CurrentX = TerrainX(world, (pile.X - 1) * size + size / 20);
  terrain.Pen.CurrentY = TerrainY(world, (pile.Y - 1) * size + size / 20);
  if (IsPointVisible(terrain.Pen.CurrentX, terrain.Pen.CurrentY, view)) PrintNestScent(terrain, cell.Scent);
  terrain.Pen.CurrentX = TerrainX(world, (pile.X - 1) * size + 14 * size / 20);
  terrain.Pen.CurrentY = TerrainY(world, (pile.Y - 1) * size + 15 * size / 20);
  if (IsPointVisible(terrain.Pen.CurrentX, terrain.Pen.CurrentY, view)) terrain.Print(CStr(cell.AntCount));
}

}  // namespace

void DrawWalls(const World& world, Canvas& terrain, Canvas& map) {
  for (int16_t i = 0; i < world.WallCount(); ++i) {
    const WallObject& wall = world.Walls[i];
    if (!wall.Shapes.empty()) DrawWall(world, wall.Shapes[0], terrain, map);
  }
}

void DrawNests(const World& world, Canvas& terrain, Canvas& map) {
  for (int16_t i = 0; i < world.NestCount; ++i) DrawNest(world, world.Nests[static_cast<size_t>(i)], terrain, map);
}

void DrawFoodPiles(const World& world, Canvas& terrain, Canvas& map) {
  for (int16_t i = 0; i < world.FoodPileCount(); ++i) {
    const FoodPile& pile = world.FoodPiles[i];
    if (pile.Amount > 0) DrawFoodPile(world, pile, terrain, map);
  }
}

}  // namespace keldor
