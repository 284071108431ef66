#include "render/ViewState.h"

#include "model/Numeric.h"
#include "model/World.h"

namespace keldor {

WorldPoint CellAtPoint(const World& world, const ViewState& view, double x, double y) {
  const double cellSize = world.Settings.CellSize;
  return {Int(x / view.ZoomX / cellSize) + 1, Int(y / view.ZoomY / cellSize) + 1};
}

}  // namespace keldor
