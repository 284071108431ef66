#include "render/ViewPainter.h"

#include <utility>

#include "model/World.h"
#include "render/AntFigure.h"
#include "render/CellDrawing.h"
#include "render/ObjectDrawing.h"
#include "render/ViewColours.h"
#include "render/ViewOverlays.h"

namespace keldor {

ViewPainter::ViewPainter(Canvas& terrain, Canvas& map, const ViewState& view, std::function<void()> onFrameFinished)
    : terrain_(terrain), map_(map), view_(view), onFrameFinished_(std::move(onFrameFinished)) {}

void ViewPainter::ClearViews(const World&) {
  terrain_.SetScale(view_.Terrain);
  map_.SetScale(view_.Map);
  terrain_.Pen.FontSize = view_.TerrainFontSize;
  if (view_.InfoVisible) map_.Cls();
  terrain_.Cls();
  terrain_.Pen.CurrentX = 0;
  terrain_.Pen.CurrentY = 0;
  terrain_.Pen.ForeColor = Black;
}

void ViewPainter::DrawCell(const World& world, const Cell& cell) { keldor::DrawCell(world, view_, cell, terrain_, map_); }

void ViewPainter::DrawWalls(const World& world) { keldor::DrawWalls(world, view_, terrain_, map_); }

void ViewPainter::DrawNests(const World& world) { keldor::DrawNests(world, view_, terrain_, map_); }

void ViewPainter::DrawFoodPiles(const World& world) { keldor::DrawFoodPiles(world, view_, terrain_, map_); }

void ViewPainter::DrawAnt(const World& world, const Nest& nest, int antIndex) {
  keldor::DrawAnt(world, view_, nest, antIndex, terrain_, map_);
}

void ViewPainter::DrawViewFrames(const World& world) { keldor::DrawViewFrames(world, view_, terrain_, map_); }

void ViewPainter::DrawZoomLabel(const World& world) { keldor::DrawZoomLabel(world, view_, terrain_); }

void ViewPainter::FinishFrame(const World&) {
  if (onFrameFinished_) onFrameFinished_();
}

}  // namespace keldor
