// What the tick asks the views to draw, phase by phase. The tick decides when
// each layer is drawn; the painter decides how (the rendering layer draws on
// the terrain view and the mini-map). Every call happens inside the tick, in
// this order: ClearViews; DrawCell for each cell that holds scent or ants
// (after its clamp and colour, before its decay); DrawWalls; DrawNests;
// DrawFoodPiles; DrawAnt for each ant while ants are shown (before its step);
// DrawViewFrames; DrawZoomLabel; FinishFrame.
#pragma once

namespace keldor {

struct World;
struct Cell;
struct Nest;

class TickPainter {
 public:
  virtual ~TickPainter() = default;
  virtual void ClearViews(const World& world) = 0;
  virtual void DrawCell(const World& world, const Cell& cell) = 0;
  virtual void DrawWalls(const World& world) = 0;
  virtual void DrawNests(const World& world) = 0;
  virtual void DrawFoodPiles(const World& world) = 0;
  virtual void DrawAnt(const World& world, const Nest& nest, int antIndex) = 0;
  virtual void DrawViewFrames(const World& world) = 0;
  virtual void DrawZoomLabel(const World& world) = 0;
  // The frame is complete: show it (the desktop program shows each tick as one frame).
  virtual void FinishFrame(const World& world) = 0;
};

// Draws nothing: for the batch runner and for measuring the simulation alone.
class NullPainter : public TickPainter {
 public:
  void ClearViews(const World&) override {}
  void DrawCell(const World&, const Cell&) override {}
  void DrawWalls(const World&) override {}
  void DrawNests(const World&) override {}
  void DrawFoodPiles(const World&) override {}
  void DrawAnt(const World&, const Nest&, int) override {}
  void DrawViewFrames(const World&) override {}
  void DrawZoomLabel(const World&) override {}
  void FinishFrame(const World&) override {}
};

}  // namespace keldor
