#include "render/ViewOverlays.h"

#include "model/Numeric.h"
#include "model/Queries.h"
#include "model/World.h"
#include "render/ViewState.h"
#include "render/ViewColours.h"

namespace keldor {

namespace {

constexpr int LabelFontSize = 8;

void DrawVisibleAreaFrame(const ViewState& view, Canvas& map) {
  const ViewScale& t = view.Terrain;
  map.Pen.Fill = FillStyle::Transparent;
  map.Box(t.Left / view.ZoomX, t.Top / view.ZoomY, (t.Left + t.Width) / view.ZoomX - 1,
          (t.Top + t.Height) / view.ZoomY - 1, FrameRed);
  map.Pen.Fill = FillStyle::Solid;
}

void DrawWorldBorder(const ViewState& view, Canvas& terrain) {
  const ViewScale& m = view.Map;
  terrain.Pen.Fill = FillStyle::Transparent;
  terrain.Box(m.Left * view.ZoomX, m.Top * view.ZoomY, (m.Left + m.Width) * view.ZoomX,
              (m.Top + m.Height) * view.ZoomY, BorderBlue);
  terrain.Pen.Fill = FillStyle::Solid;
}

void DrawCursorCell(const World& world, const ViewState& view, Canvas& terrain) {
  const WorldPoint p = CellAtPoint(world, view, view.MouseX, view.MouseY);
  const double size = world.Settings.CellSize;
  terrain.Pen.Fill = FillStyle::Transparent;
  terrain.Pen.DrawWidth = 2;
  terrain.Box((p.X - 1) * size * view.ZoomX, (p.Y - 1) * size * view.ZoomY, p.X * size * view.ZoomX,
              p.Y * size * view.ZoomY, view.ToolColour);
  terrain.Pen.Fill = FillStyle::Solid;
  terrain.Pen.DrawWidth = 1;
}

}  // namespace

void DrawViewFrames(const World& world, const ViewState& view, Canvas& terrain, Canvas& map) {
  if (view.InfoVisible) DrawVisibleAreaFrame(view, map);
  DrawWorldBorder(view, terrain);
  if (view.CurrentTool != NoTool) DrawCursorCell(world, view, terrain);
}

std::string ZoomLabelText(const World& world, const ViewState& view) {
  const double factor = view.ZoomX / world.Settings.ScaleX;
  if (factor == 1) return "";
  return "ZOOM: " + Format(factor, "#.##") + "X";
}

void DrawZoomLabel(const World& world, const ViewState& view, Canvas& terrain) {
  const ViewScale& t = view.Terrain;
  // The view's top-left corner: the scroll values less half the view.
  terrain.Pen.CurrentX = t.Left;
  terrain.Pen.CurrentY = t.Top;
  terrain.Pen.ForeColor = BorderBlue;
  const int savedFontSize = terrain.Pen.FontSize;
  terrain.Pen.FontSize = LabelFontSize;
  terrain.Print(ZoomLabelText(world, view));
  terrain.Pen.FontSize = savedFontSize;
}

}  // namespace keldor
