// The viewport: the user scales of the terrain view and of the mini-map, the
// two scroll bars that pan the terrain view, the zoom, and the rules that keep
// the view inside the world. Toolkit-free: the desktop window mirrors these
// values onto its widgets.
//
// World units are the mini-map's scale (one cell is CellSize wide); terrain
// units are world units times the zoom. One terrain unit is one twip.
#pragma once

#include <cstdint>

namespace keldor {

struct World;

// A user coordinate scale: the visible rectangle of a view in its own units.
struct ViewScale {
  double Left = 0;
  double Top = 0;
  double Width = 0;
  double Height = 0;
};

// A scroll bar as values. Min may exceed Max when the zoomed world is smaller
// than the view; Value then sits at Min.
struct ScrollBar {
  int16_t Min = 0;
  int16_t Max = 32767;
  int16_t Value = 0;
  int16_t SmallChange = 10;
  int16_t LargeChange = 100;
};

// Twips per logical pixel on a 96 dpi screen.
inline constexpr double TwipsPerPixel = 15;

// Design sizes in twips.
inline constexpr double MapBoxSize = 2000;  // the mini-map box, outer and inner
inline constexpr double TerrainDesignWidth = 6720;
inline constexpr double TerrainDesignHeight = 6045;

struct Viewport {
  ViewScale Terrain{0, 0, TerrainDesignWidth, TerrainDesignHeight};
  ViewScale Map{0, 0, MapBoxSize, MapBoxSize};
  // Outer size of the mini-map box in its container's units; bounds the ants' turns.
  double MapBoxWidth = MapBoxSize;
  double MapBoxHeight = MapBoxSize;
  ScrollBar HScroll1;
  ScrollBar VScroll1;
  int TerrainFontSize = 8;
};

// True when (x, y) lies strictly inside the scale rectangle, every value
// compared in single precision.
bool IsPointVisible(double x, double y, const ViewScale& view);

// Scroll ranges from the map scale, the view size and the zoom.
void SetScrollRanges(World& world);

// Set a scroll value (clamped into the bar's range) and run its change
// handler, which moves the terrain origin and the view centre.
void SetHorizontalScroll(World& world, int value);
void SetVerticalScroll(World& world, int value);
void HorizontalScrollChanged(World& world);
void VerticalScrollChanged(World& world);

// Put both scroll values at the middle of their ranges (start-up and New).
void CentreScrollBars(World& world);

// Put the view centre back at (ViewCentreX, ViewCentreY), clamped to the ranges.
void RecentreView(World& world);

// The zoom buttons: collapse the tool palette, change the zoom (never below 2),
// keep the view centre and fit the terrain font size into 1..8.
void ZoomIn(World& world);
void ZoomOut(World& world);

// The viewport part of a window resize: the terrain view's inner size became
// newWidth x newHeight terrain units. Keeps the world point at the centre
// unless that would push the view past the world's edge.
void ResizeTerrainView(World& world, double newWidth, double newHeight);

// Mini-map pointing: centre the terrain view on world point (x, y), clamped.
void NavigateFromMap(World& world, double x, double y);

}  // namespace keldor
