#include "render/PickMarker.h"

#include <cmath>

#include "model/World.h"
#include "render/ViewState.h"

namespace keldor {

void DrawPickMarker(const World& world, const ViewState& view, const Ant& ant, Canvas& terrain) {
  const PenState saved = terrain.Pen;
  // Centred on the body, reaching a little past both ends of it.
  const double x = (ant.RearX + ant.HeadX) / 2 * view.ZoomX;
  const double y = (ant.RearY + ant.HeadY) / 2 * view.ZoomY;
  const double radius = ant.Length / world.Settings.ScaleX * view.ZoomX;
  terrain.Pen.Fill = FillStyle::Transparent;
  terrain.Pen.DrawWidth = 2;
  terrain.Circle(x, y, radius, PickMarkerColour);
  terrain.Pen = saved;
}

}  // namespace keldor
