#include "render/ObjectDrawing.h"

#include <cmath>

#include "model/Numeric.h"
#include "model/Queries.h"
#include "model/World.h"
#include "render/NumberText.h"
#include "render/ViewState.h"
#include "render/CellDrawing.h"
#include "render/ViewColours.h"

namespace keldor {

namespace {

// The terrain square of half-side r round terrain point (x, y): any corner visible.
bool SquareVisible(double x, double y, double r, const ViewScale& terrain) {
  return AnyPointVisible(terrain, {{x - r, y - r}, {x + r, y - r}, {x - r, y + r}, {x + r, y + r}});
}

void DrawWall(const ViewState& view, const WallShape& shape, Canvas& terrain, Canvas& map) {
  const auto& p = shape.Points;
  map.Pen.FillColor = shape.Colour;
  map.Pen.ForeColor = terrain.Pen.FillColor;
  map.Box(p[0].X, p[0].Y, p[2].X, p[2].Y, shape.Colour);

  const double zx = view.ZoomX;
  const double zy = view.ZoomY;
  if (!AnyPointVisible(view.Terrain, {{p[0].X * zx, p[0].Y * zy},
                                      {p[1].X * zx, p[1].Y * zy},
                                      {p[2].X * zx, p[2].Y * zy},
                                      {p[3].X * zx, p[3].Y * zy}})) {
    return;
  }
  terrain.Pen.FillColor = shape.Colour;
  terrain.Pen.ForeColor = Black;
  terrain.Box(p[0].X * zx, p[0].Y * zy, p[2].X * zx, p[2].Y * zy, shape.Colour);
}

// The scent of a nest's cell: Int(s) above 0, -Int(s) below 0.
void PrintNestScent(Canvas& canvas, double scent) {
  if (scent > 0) {
    canvas.Print(NumberText(Int(scent)).View());
  } else if (scent < 0) {
    canvas.Print(NumberText(-Int(scent)).View());
  }
}

void DrawNest(const World& world, const ViewState& view, const Nest& nest, Canvas& terrain, Canvas& map) {
  const double scaleX = world.Settings.ScaleX;
  const double zx = view.ZoomX;
  const double zy = view.ZoomY;
  if (view.InfoVisible) {
    map.Pen.FillColor = NestGrey;
    map.Circle(nest.X, nest.Y, nest.Radius / scaleX, Black);
  }
  terrain.Pen.FillColor = NestGrey;
  const double x = nest.X * zx;
  const double y = nest.Y * zy;
  if (SquareVisible(x, y, nest.Radius, view.Terrain)) terrain.Circle(x, y, nest.Radius * zx / scaleX, NestGrey);
  if (view.ShowOdor != 1) return;

  const double size = world.Settings.CellSize;
  const double gx = Int(nest.X / size) * size;
  const double gy = Int(nest.Y / size) * size;
  const Cell& cell = world.Cells(CellOfCoordinate(nest.X, size), CellOfCoordinate(nest.Y, size));
  terrain.Pen.ForeColor = TextYellow;
  terrain.Pen.CurrentX = (gx + size / 20) * zx;
  terrain.Pen.CurrentY = (gy + size / 20) * zy;
  PrintNestScent(terrain, cell.Scent);
  terrain.Pen.CurrentX = (gx + 14 * size / 20) * zx;
  terrain.Pen.CurrentY = (gy + 15 * size / 20) * zy;
  terrain.Print(NumberText(cell.AntCount).View());
  terrain.Pen.ForeColor = Black;
}

void DrawFoodPile(const World& world, const ViewState& view, const FoodPile& pile, Canvas& terrain, Canvas& map) {
  const double size = world.Settings.CellSize;
  const double scaleX = world.Settings.ScaleX;
  const double zx = view.ZoomX;
  const double zy = view.ZoomY;
  const double cx = CellCentre(pile.X, size);
  const double cy = CellCentre(pile.Y, size);
  const double r = std::sqrt(pile.Amount / Pi);
  const double rT = r * zx / scaleX;
  if (view.InfoVisible) {
    map.Pen.FillColor = FoodGreen;
    map.Pen.Fill = FillStyle::Solid;
    map.Circle(cx, cy, r / scaleX, Black);
  }
  if (SquareVisible(cx * zx, cy * zy, rT, view.Terrain)) {
    terrain.Pen.FillColor = FoodGreen;
    terrain.Circle(cx * zx, cy * zy, rT, Black);
  }
  if (view.ShowOdor != 1) return;

  const Cell& cell = world.Cells(pile.X, pile.Y);
  terrain.Pen.ForeColor = TextYellow;
  terrain.Pen.CurrentX = ((pile.X - 1) * size + size / 20) * zx;
  terrain.Pen.CurrentY = ((pile.Y - 1) * size + size / 20) * zy;
  if (IsPointVisible(terrain.Pen.CurrentX, terrain.Pen.CurrentY, view.Terrain)) PrintNestScent(terrain, cell.Scent);
  terrain.Pen.CurrentX = ((pile.X - 1) * size + 14 * size / 20) * zx;
  terrain.Pen.CurrentY = ((pile.Y - 1) * size + 15 * size / 20) * zy;
  if (IsPointVisible(terrain.Pen.CurrentX, terrain.Pen.CurrentY, view.Terrain)) {
    terrain.Print(NumberText(cell.AntCount).View());
  }
}

}  // namespace

void DrawWalls(const World& world, const ViewState& view, Canvas& terrain, Canvas& map) {
  for (int16_t i = 0; i < world.WallCount(); ++i) {
    const WallObject& wall = world.Walls[i];
    if (!wall.Shapes.empty()) DrawWall(view, wall.Shapes[0], terrain, map);
  }
}

void DrawNests(const World& world, const ViewState& view, Canvas& terrain, Canvas& map) {
  for (int16_t i = 0; i < world.NestCount; ++i) DrawNest(world, view, world.Nests[static_cast<size_t>(i)], terrain, map);
}

void DrawFoodPiles(const World& world, const ViewState& view, Canvas& terrain, Canvas& map) {
  for (int16_t i = 0; i < world.FoodPileCount(); ++i) {
    const FoodPile& pile = world.FoodPiles[i];
    if (pile.Amount > 0) DrawFoodPile(world, view, pile, terrain, map);
  }
}

}  // namespace keldor
