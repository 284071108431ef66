#include "window/Viewport.h"

#include <algorithm>

#include "model/Numeric.h"
#include "model/Queries.h"
#include "window/Commands.h"
#include "window/WindowState.h"

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

Axis Horizontal(WindowState& w) {
  return {w.HScroll1, w.View.Map.Left, w.View.Map.Width, w.View.Terrain.Width, w.View.ZoomX};
}
Axis Vertical(WindowState& w) {
  return {w.VScroll1, w.View.Map.Top, w.View.Map.Height, w.View.Terrain.Height, w.View.ZoomY};
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

void SetTerrainFontForZoom(WindowState& w) {
  w.View.TerrainFontSize = static_cast<int>(Max(1, Min(8, w.View.ZoomX - 2)));
}

}  // namespace

void SetScrollRanges(WindowState& window) {
  SetRange(Horizontal(window));
  SetRange(Vertical(window));
}

void HorizontalScrollChanged(WindowState& window) {
  const int16_t value = window.HScroll1.Value;
  window.View.Terrain.Left = value - window.View.Terrain.Width / 2;
  window.ViewCentreX = static_cast<float>(value / window.View.ZoomX);
}

void VerticalScrollChanged(WindowState& window) {
  const int16_t value = window.VScroll1.Value;
  window.View.Terrain.Top = value - window.View.Terrain.Height / 2;
  window.ViewCentreY = static_cast<float>(value / window.View.ZoomY);
}

void SetHorizontalScroll(WindowState& window, int value) {
  window.HScroll1.Value = ClampToBar(window.HScroll1, value);
  HorizontalScrollChanged(window);
}

void SetVerticalScroll(WindowState& window, int value) {
  window.VScroll1.Value = ClampToBar(window.VScroll1, value);
  VerticalScrollChanged(window);
}

void CentreScrollBars(WindowState& window) {
  // The sum is taken in 32 bits: it cannot overflow here.
  const ScrollBar& h = window.HScroll1;
  const ScrollBar& v = window.VScroll1;
  SetHorizontalScroll(window, CInt((static_cast<int>(h.Min) + h.Max) / 2.0));
  SetVerticalScroll(window, CInt((static_cast<int>(v.Min) + v.Max) / 2.0));
}

void RecentreView(WindowState& window) {
  SetHorizontalScroll(window, CentredValue(Horizontal(window), window.ViewCentreX));
  SetVerticalScroll(window, CentredValue(Vertical(window), window.ViewCentreY));
}

void ZoomIn(WindowState& window) {
  CollapsePalette(window);
  window.View.ZoomX += 1;
  window.View.ZoomY += 1;
  SetScrollRanges(window);
  RecentreView(window);
  SetTerrainFontForZoom(window);
}

void ZoomOut(WindowState& window) {
  CollapsePalette(window);
  window.View.ZoomX = Max(2, window.View.ZoomX - 1);
  window.View.ZoomY = Max(2, window.View.ZoomY - 1);
  SetScrollRanges(window);
  RecentreView(window);
  SetTerrainFontForZoom(window);
}

void ZoomTo(WindowState& window, int zoom) {
  const double target = Max(2, zoom);
  // A press that no longer changes a huge zoom ends the walk.
  for (double before = 0; window.View.ZoomX < target && window.View.ZoomX != before;) {
    before = window.View.ZoomX;
    ZoomIn(window);
  }
  for (double before = 0; window.View.ZoomX > target && window.View.ZoomX != before;) {
    before = window.View.ZoomX;
    ZoomOut(window);
  }
}

void ResizeTerrainView(WindowState& window, double newWidth, double newHeight) {
  ViewScale& t = window.View.Terrain;
  const double oldWidth = t.Width;
  const double oldHeight = t.Height;
  t.Width = newWidth;
  t.Height = newHeight;
  SetScrollRanges(window);
  t.Left -= (newWidth - oldWidth) / 2;
  t.Top -= (newHeight - oldHeight) / 2;
  SetHorizontalScroll(window, ResizedValue(window.HScroll1, t.Left + t.Width / 2));
  SetVerticalScroll(window, ResizedValue(window.VScroll1, t.Top + t.Height / 2));
}

void NavigateFromMap(WindowState& window, double x, double y) {
  SetHorizontalScroll(window, CentredValue(Horizontal(window), x));
  SetVerticalScroll(window, CentredValue(Vertical(window), y));
}

void ScrollBySteps(WindowState& window, int columns, int rows) {
  SetHorizontalScroll(window, window.HScroll1.Value + columns * window.HScroll1.SmallChange);
  SetVerticalScroll(window, window.VScroll1.Value + rows * window.VScroll1.SmallChange);
}

void KeepInView(WindowState& window, double x, double y) {
  const ViewScale& t = window.View.Terrain;
  const double tx = x * window.View.ZoomX;
  const double ty = y * window.View.ZoomY;
  const bool inside = tx >= t.Left + t.Width / 10 && tx <= t.Left + t.Width * 9 / 10 &&
                      ty >= t.Top + t.Height / 10 && ty <= t.Top + t.Height * 9 / 10;
  if (!inside) NavigateFromMap(window, x, y);
}

}  // namespace keldor
