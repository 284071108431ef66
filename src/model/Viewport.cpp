#include "model/Viewport.h"

#include <algorithm>

#include "model/Commands.h"
#include "model/Numeric.h"
#include "model/Queries.h"
#include "model/World.h"

namespace keldor {

namespace {

// One axis of the terrain view: its scroll bar, the map's extent on that axis,
// the view's size and the zoom. The rules are the same for both axes.
struct Axis {
  ScrollBar& bar;
  double mapStart;  // map ScaleLeft or ScaleTop
  double mapSize;   // map ScaleWidth or ScaleHeight
  double viewSize;  // terrain ScaleWidth or ScaleHeight
  double zoom;
};

Axis Horizontal(World& w) {
  return {w.View.HScroll1, w.View.Map.Left, w.View.Map.Width, w.View.Terrain.Width, w.ZoomX};
}
Axis Vertical(World& w) {
  return {w.View.VScroll1, w.View.Map.Top, w.View.Map.Height, w.View.Terrain.Height, w.ZoomY};
}

void SetRange(const Axis& a) {
  a.bar.Min = ClampToInt16(CInt(a.viewSize / 2 + a.mapStart * a.zoom));
  a.bar.Max = ClampToInt16(CInt(Min(32767, (a.mapStart + a.mapSize) * a.zoom - a.viewSize / 2)));
}

int16_t ClampToBar(const ScrollBar& bar, int value) {
  const int lo = std::min(bar.Min, bar.Max);
  const int hi = std::max(bar.Min, bar.Max);
  return static_cast<int16_t>(std::clamp(value, lo, hi));
}

// The re-centring rule: the scroll value that puts world coordinate centre at
// the middle of the view, clamped to the world's edges.
int CentredValue(const Axis& a, double centre) {
  const double c = centre * a.zoom;
  if (c <= a.viewSize / 2) return CInt(a.viewSize / 2 + a.mapStart * a.zoom);
  if (c < a.mapSize * a.zoom - a.viewSize / 2) return CInt(Min(32767, (a.mapStart + centre) * a.zoom));
  return CInt(Min(32767, (a.mapStart + a.mapSize) * a.zoom - a.viewSize / 2));
}

int ResizedValue(const ScrollBar& bar, double h) {
  if (h < bar.Min) {
    h = bar.Min;
  } else if (h > bar.Max) {
    h = bar.Max;
  }
  return CInt(h);
}

void SetTerrainFontForZoom(World& w) {
  w.View.TerrainFontSize = static_cast<int>(Max(1, Min(8, w.ZoomX - 2)));
}

}  // namespace

bool IsPointVisible(double x, double y, const ViewScale& view) {
  const float fx = static_cast<float>(x);
  const float fy = static_cast<float>(y);
  const float left = static_cast<float>(view.Left);
  const float top = static_cast<float>(view.Top);
  const float right = static_cast<float>(view.Left) + static_cast<float>(view.Width);
  const float bottom = static_cast<float>(view.Top) + static_cast<float>(view.Height);
  return fx > left && right > fx && fy > top && bottom > fy;
}

void SetScrollRanges(World& world) {
  SetRange(Horizontal(world));
  SetRange(Vertical(world));
}

void HorizontalScrollChanged(World& world) {
  const int16_t value = world.View.HScroll1.Value;
  world.View.Terrain.Left = value - world.View.Terrain.Width / 2;
  world.ViewCentreX = static_cast<float>(value / world.ZoomX);
}

void VerticalScrollChanged(World& world) {
  const int16_t value = world.View.VScroll1.Value;
  world.View.Terrain.Top = value - world.View.Terrain.Height / 2;
  world.ViewCentreY = static_cast<float>(value / world.ZoomY);
}

void SetHorizontalScroll(World& world, int value) {
  world.View.HScroll1.Value = ClampToBar(world.View.HScroll1, value);
  HorizontalScrollChanged(world);
}

void SetVerticalScroll(World& world, int value) {
  world.View.VScroll1.Value = ClampToBar(world.View.VScroll1, value);
  VerticalScrollChanged(world);
}

void CentreScrollBars(World& world) {
  // The sum is taken in 32 bits: it cannot overflow here.
  const ScrollBar& h = world.View.HScroll1;
  const ScrollBar& v = world.View.VScroll1;
  SetHorizontalScroll(world, CInt((static_cast<int>(h.Min) + h.Max) / 2.0));
  SetVerticalScroll(world, CInt((static_cast<int>(v.Min) + v.Max) / 2.0));
}

void RecentreView(World& world) {
  SetHorizontalScroll(world, CentredValue(Horizontal(world), world.ViewCentreX));
  SetVerticalScroll(world, CentredValue(Vertical(world), world.ViewCentreY));
}

void ZoomIn(World& world) {
  CollapsePalette(world);
  world.ZoomX += 1;
  world.ZoomY += 1;
  SetScrollRanges(world);
  RecentreView(world);
  SetTerrainFontForZoom(world);
}

void ZoomOut(World& world) {
  CollapsePalette(world);
  world.ZoomX = Max(2, world.ZoomX - 1);
  world.ZoomY = Max(2, world.ZoomY - 1);
  SetScrollRanges(world);
  RecentreView(world);
  SetTerrainFontForZoom(world);
}

void ResizeTerrainView(World& world, double newWidth, double newHeight) {
  ViewScale& t = world.View.Terrain;
  const double oldWidth = t.Width;
  const double oldHeight = t.Height;
  t.Width = newWidth;
  t.Height = newHeight;
  SetScrollRanges(world);
  t.Left -= (newWidth - oldWidth) / 2;
  t.Top -= (newHeight - oldHeight) / 2;
  SetHorizontalScroll(world, ResizedValue(world.View.HScroll1, t.Left + t.Width / 2));
  SetVerticalScroll(world, ResizedValue(world.View.VScroll1, t.Top + t.Height / 2));
}

void NavigateFromMap(World& world, double x, double y) {
  SetHorizontalScroll(world, CentredValue(Horizontal(world), x));
  SetVerticalScroll(world, CentredValue(Vertical(world), y));
}

}  // namespace keldor
