// What the two views show besides the world itself: their scales (the
// visible rectangle of each, in its own units), the zoom, the odor and ant
// toggles, whether the mini-map's panel is shown, the terrain view's font
// size, and the pointer with the selected tool (the cursor cell). The window
// logic keeps it up to date; the painter draws from it.
//
// World units are the mini-map's scale (one cell is CellSize wide); terrain
// units are world units times the zoom. One terrain unit is one twip.
#pragma once

#include <cstdint>
#include <initializer_list>

#include "model/Records.h"
#include "model/WorldSettings.h"
#include "sim/TickInput.h"

namespace keldor {

struct World;

// A user coordinate scale: the visible rectangle of a view in its own units.
struct ViewScale {
  double Left = 0;
  double Top = 0;
  double Width = 0;
  double Height = 0;
};

// Twips per logical pixel on a 96 dpi screen.
inline constexpr double TwipsPerPixel = 15;
// The terrain view's design size in twips.
inline constexpr double TerrainDesignWidth = 6720;
inline constexpr double TerrainDesignHeight = 6045;

struct ViewState {
  ViewScale Terrain{0, 0, TerrainDesignWidth, TerrainDesignHeight};
  ViewScale Map{0, 0, MapBoxSize, MapBoxSize};
  double ZoomX = 0;
  double ZoomY = 0;
  int16_t ShowOdor = 0;
  int16_t ShowAnts = 0;
  int TerrainFontSize = 8;
  bool InfoVisible = true;  // the mini-map's panel
  float MouseX = 0;  // last pointer position over the terrain view, terrain units
  float MouseY = 0;
  Tool CurrentTool = NoTool;
  Colour ToolColour{};
};

// True when (x, y) lies strictly inside the scale rectangle, every value
// compared in single precision.
inline bool IsPointVisible(double x, double y, const ViewScale& view) {
  const float fx = static_cast<float>(x);
  const float fy = static_cast<float>(y);
  const float left = static_cast<float>(view.Left);
  const float top = static_cast<float>(view.Top);
  const float right = static_cast<float>(view.Left) + static_cast<float>(view.Width);
  const float bottom = static_cast<float>(view.Top) + static_cast<float>(view.Height);
  return fx > left && right > fx && fy > top && bottom > fy;
}

// True when any of the points is visible: the culling test of every shape.
// Inline, as it runs for every cell and every ant.
inline bool AnyPointVisible(const ViewScale& view, std::initializer_list<WorldPoint> points) {
  for (const WorldPoint& p : points) {
    if (IsPointVisible(p.X, p.Y, view)) return true;
  }
  return false;
}

// The cell column and row under a terrain-view point, not clamped: a point
// left of or above the world gives 0 or less, one beyond it GridX+1 or more.
WorldPoint CellAtPoint(const World& world, const ViewState& view, double x, double y);

}  // namespace keldor
