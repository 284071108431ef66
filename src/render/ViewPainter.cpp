#include "render/ViewPainter.h"

#include <utility>

#include "model/World.h"
#include "render/AntFigure.h"
#include "render/CellDrawing.h"
#include "render/ObjectDrawing.h"
#include "render/ViewColours.h"
#include "render/ViewOverlays.h"

namespace keldor {

ViewPainter::ViewPainter(Canvas& terrain, Canvas& map, std::function<void()> onFrameFinished)
    : terrain_(terrain), map_(map), onFrameFinished_(std::move(onFrameFinished)) {}

void ViewPainter::ClearViews(const World& world) {
  terrain_.SetScale(world.View.Terrain);
  map_.SetScale(world.View.Map);
  terrain_.Pen.FontSize = world.View.TerrainFontSize;
  if (world.Controls.InfoVisible) map_.Cls();
  terrain_.Cls();
  terrain_.Pen.CurrentX = 0;
  terrain_.Pen.CurrentY = 0;
  terrain_.Pen.ForeColor = Black;
}

void ViewPainter::DrawCell(const World& world, const Cell& cell) { keldor::DrawCell(world, cell, terrain_, map_); }

void ViewPainter::DrawWalls(const World& world) { keldor::DrawWalls(world, terrain_, map_); }

void ViewPainter::DrawNests(const World& world) { keldor::DrawNests(world, terrain_, map_); }

void ViewPainter::DrawFoodPiles(const World& world) { keldor::DrawFoodPiles(world, terrain_, map_); }

void ViewPainter::DrawAnt(const World& world, const Nest& nest, int antIndex) {
  keldor::DrawAnt(world, nest, antIndex, terrain_, map_);
}

void ViewPainter::DrawViewFrames(const World& world) { keldor::DrawViewFrames(world, terrain_, map_); }

void ViewPainter::DrawZoomLabel(const World& world) { keldor::DrawZoomLabel(world, terrain_); }

void ViewPainter::FinishFrame(const World&) {
  if (onFrameFinished_) onFrameFinished_();
}

}  // namespace keldor
