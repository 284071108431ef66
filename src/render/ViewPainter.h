// Draws each tick's frame on the terrain view (picTerreno) and the mini-map
// (picMapa) when the tick asks for it, layer by layer. Each layer lives in its
// own file: CellDrawing, ObjectDrawing, AntFigure, ViewOverlays.
#pragma once

#include <functional>

#include "render/Canvas.h"
#include "render/ViewState.h"
#include "sim/TickPainter.h"

namespace keldor {

class ViewPainter : public TickPainter {
 public:
  // onFrameFinished, if given, is called when a frame is complete (the window shows it).
  // view: what the window shows, read at every call.
  ViewPainter(Canvas& terrain, Canvas& map, const ViewState& view, std::function<void()> onFrameFinished = {});

  void ClearViews(const World& world) override;
  void DrawCell(const World& world, const Cell& cell) override;
  void DrawWalls(const World& world) override;
  void DrawNests(const World& world) override;
  void DrawFoodPiles(const World& world) override;
  void DrawAnt(const World& world, const Nest& nest, int antIndex) override;
  void DrawViewFrames(const World& world) override;
  void DrawZoomLabel(const World& world) override;
  void FinishFrame(const World& world) override;

 private:
  Canvas& terrain_;
  Canvas& map_;
  const ViewState& view_;
  std::function<void()> onFrameFinished_;
};

}  // namespace keldor
