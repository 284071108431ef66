#include "platform/ViewCanvases.h"

#include <cmath>

#include "render/ViewState.h"
#include "platform/FrameImage.h"

namespace keldor {

namespace {

void ResizeTo(QtCanvas& canvas, QSize size) {
  if (canvas.Image().size() != size * canvas.DevicePixelRatio()) canvas.Resize(size.width(), size.height());
}

}  // namespace

QSize MapBoxPixels() {
  const int side = static_cast<int>(std::lround(MapBoxSize / TwipsPerPixel));
  return {side, side};
}

ViewCanvases::ViewCanvases(QSize terrain, QSize map, const ViewState& view, double devicePixelRatio)
    : terrain_(terrain.width(), terrain.height(), devicePixelRatio),
      map_(map.width(), map.height(), devicePixelRatio),
      painter_(terrain_, map_, view) {}

void ViewCanvases::Resize(QSize terrain, QSize map) {
  ResizeTo(terrain_, terrain);
  ResizeTo(map_, map);
}

QImage ViewCanvases::Frame() const { return ComposeFrameImage(terrain_.Image(), map_.Image()); }

}  // namespace keldor
