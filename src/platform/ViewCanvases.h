// The two off-screen views a frame is drawn on, the terrain view and the
// mini-map, with the painter that draws each tick on them. The desktop window
// shows the canvases in its picture boxes; the batch runner saves them as one
// picture.
#pragma once

#include <QImage>
#include <QSize>

#include "platform/QtCanvas.h"
#include "render/ViewPainter.h"

namespace keldor {

// The mini-map box in logical pixels at 15 twips per pixel (a 96 dpi screen).
QSize MapBoxPixels();

class ViewCanvases {
 public:
  // Sizes are in logical pixels; the painter draws what view says.
  ViewCanvases(QSize terrain, QSize map, const ViewState& view, double devicePixelRatio = 1);
  ViewCanvases(const ViewCanvases&) = delete;
  ViewCanvases& operator=(const ViewCanvases&) = delete;

  const QtCanvas& Terrain() const { return terrain_; }
  // For drawing over a finished frame.
  QtCanvas& TerrainCanvas() { return terrain_; }
  const QtCanvas& Map() const { return map_; }
  ViewPainter& Painter() { return painter_; }

  // Resizes (and so clears) each canvas whose size differs from the given one.
  void Resize(QSize terrain, QSize map);
  // The terrain view and the mini-map side by side.
  QImage Frame() const;

 private:
  QtCanvas terrain_;
  QtCanvas map_;
  ViewPainter painter_;
};

}  // namespace keldor
