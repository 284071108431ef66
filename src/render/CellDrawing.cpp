#include "render/CellDrawing.h"

#include "model/Numeric.h"
#include "model/World.h"
#include "render/NumberText.h"
#include "render/ViewState.h"
#include "render/ViewColours.h"

namespace keldor {

void PrintCellScent(Canvas& canvas, double scent) {
  if (scent > 0) {
    canvas.Print(NumberText(Int(scent)).View());
  } else if (scent < 0) {
    canvas.Print(NumberText(Int(-scent)).View());
  }
}

void DrawCell(const World& world, const ViewState& view, const Cell& cell, Canvas& terrain, Canvas& map) {
  terrain.Pen.FillColor = cell.Colour;
  map.Pen.FillColor = cell.Colour;
  if (view.ShowOdor != 1) return;

  const double size = world.Settings.CellSize;
  const double x0 = (cell.X - 1) * size;
  const double y0 = (cell.Y - 1) * size;
  const double x1 = cell.X * size;
  const double y1 = cell.Y * size;
  if (view.InfoVisible) {
    map.Pen.Fill = FillStyle::Solid;
    map.Box(x0, y0, x1, y1, cell.Colour);
  }

  const double zx = view.ZoomX;
  const double zy = view.ZoomY;
  if (!AnyPointVisible(view.Terrain, {{x0 * zx, y0 * zy}, {x0 * zx, y1 * zy}, {x1 * zx, y0 * zy}, {x1 * zx, y1 * zy}})) {
    return;
  }

  terrain.Box(x0 * zx, y0 * zy, x1 * zx, y1 * zy, Black);
  terrain.Pen.CurrentX = (x0 + size / 20) * zx;
  terrain.Pen.CurrentY = (y0 + size / 20) * zy;
  if (cell.Food == 0) PrintCellScent(terrain, cell.Scent);
  terrain.Pen.CurrentX = (x0 + 14 * size / 20) * zx;
  terrain.Pen.CurrentY = (y0 + 15 * size / 20) * zy;
  terrain.Print(NumberText(cell.AntCount).View());
}

}  // namespace keldor
