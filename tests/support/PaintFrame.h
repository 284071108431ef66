// Calls a painter for one whole frame the way the tick does, without
// changing the world: clear, every cell that holds scent or ants, walls,
// nests, food piles, every ant while ants are shown, frames, zoom label.
#pragma once

#include "model/World.h"
#include "render/ViewState.h"
#include "sim/TickPainter.h"

namespace keldor::testing {

inline void PaintFrame(const World& world, const ViewState& view, TickPainter& painter) {
  painter.ClearViews(world);
  for (int x = 1; x <= world.Settings.GridX; ++x) {
    for (int y = 1; y <= world.Settings.GridY; ++y) {
      const Cell& cell = world.Cells(x, y);
      if (cell.Scent != 0 || cell.AntCount != 0) painter.DrawCell(world, cell);
    }
  }
  painter.DrawWalls(world);
  painter.DrawNests(world);
  painter.DrawFoodPiles(world);
  if (view.ShowAnts == 1) {
    for (int16_t n = 0; n < world.NestCount; ++n) {
      const Nest& nest = world.Nests[static_cast<size_t>(n)];
      for (int16_t a = 0; a < nest.AntCount(); ++a) painter.DrawAnt(world, nest, a);
    }
  }
  painter.DrawViewFrames(world);
  painter.DrawZoomLabel(world);
  painter.FinishFrame(world);
}

}  // namespace keldor::testing
