#include "render/ViewState.h"

#include "model/Numeric.h"
#include "model/World.h"

namespace keldor {

bool IsPointVisible(double x, double y, const ViewScale& view) {
  const float fx = static_cast<float>(x);
  const float fy = static_cast<float>(y);
  const float left = static_cast<float>(view.Left);
  const float top = static_cast<float>(view.Top);
  const float right = static_cast<float>(view.Left) + static_cast<float>(view.Width);
  const float bottom = static_cast<float>(view.Top) + static_cast<float>(view.Height);
  return fx > left && right > fx && fy > top && bottom > fy;
}

bool AnyPointVisible(const ViewScale& view, std::initializer_list<WorldPoint> points) {
  for (const WorldPoint& p : points) {
    if (IsPointVisible(p.X, p.Y, view)) return true;
  }
  return false;
}

WorldPoint CellAtPoint(const World& world, const ViewState& view, double x, double y) {
  const double cellSize = world.Settings.CellSize;
  return {Int(x / view.ZoomX / cellSize) + 1, Int(y / view.ZoomY / cellSize) + 1};
}

}  // namespace keldor
