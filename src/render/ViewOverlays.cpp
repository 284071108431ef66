#include "render/ViewOverlays.h"

#include "model/Numeric.h"
#include "model/Queries.h"
#include "model/World.h"
#include "render/ViewColours.h"

namespace keldor {

namespace {

constexpr int LabelFontSize = 8;

void DrawVisibleAreaFrame(const World& world, Canvas& map) {
  const ViewScale& t = world.View.Terrain;
  map.Pen.Fill = FillStyle::Transparent;
  map.Box(t.Left / world.ZoomX, t.Top / world.ZoomY, (t.Left + t.Width) / world.ZoomX - 1,
          (t.Top + t.Height) / world.ZoomY - 1, FrameRed);
  map.Pen.Fill = FillStyle::Solid;
}

void DrawWorldBorder(const World& world, Canvas& terrain) {
  const ViewScale& m = world.View.Map;
  terrain.Pen.Fill = FillStyle::Transparent;
  terrain.Box(m.Left * world.ZoomX, m.Top * world.ZoomY, (m.Left + m.Width) * world.ZoomX,
              (m.Top + m.Height) * world.ZoomY, BorderBlue);
  terrain.Pen.Fill = FillStyle::Solid;
}

void DrawCursorCell(const World& world, Canvas& terrain) {
  const WorldPoint p = CellAtPoint(world, world.MouseX, world.MouseY);
  const double size = world.Settings.CellSize;
  terrain.Pen.Fill = FillStyle::Transparent;
  terrain.Pen.DrawWidth = 2;
  terrain.Box((p.X - 1) * size * world.ZoomX, (p.Y - 1) * size * world.ZoomY, p.X * size * world.ZoomX,
              p.Y * size * world.ZoomY, world.Settings.ToolColour);
  terrain.Pen.Fill = FillStyle::Solid;
  terrain.Pen.DrawWidth = 1;
}

}  // namespace

void DrawViewFrames(const World& world, Canvas& terrain, Canvas& map) {
  if (world.Controls.InfoVisible) DrawVisibleAreaFrame(world, map);
  DrawWorldBorder(world, terrain);
  if (world.Settings.CurrentTool != NoTool) DrawCursorCell(world, terrain);
}

std::string ZoomLabelText(const World& world) {
  const double factor = world.ZoomX / world.Settings.ScaleX;
  if (factor == 1) return "";
  return "ZOOM: " + Format(factor, "#.##") + "X";
}

void DrawZoomLabel(const World& world, Canvas& terrain) {
  const ViewScale& t = world.View.Terrain;
  terrain.Pen.CurrentX = world.View.HScroll1.Value - t.Width / 2;
  terrain.Pen.CurrentY = world.View.VScroll1.Value - t.Height / 2;
  terrain.Pen.ForeColor = BorderBlue;
  const int savedFontSize = terrain.Pen.FontSize;
  terrain.Pen.FontSize = LabelFontSize;
  terrain.Print(ZoomLabelText(world));
  terrain.Pen.FontSize = savedFontSize;
}

}  // namespace keldor
