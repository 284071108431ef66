#include "window/WindowState.h"

#include "model/World.h"

namespace keldor {

TickInput TickInputOf(const WindowState& window, const World& world) {
  TickInput input;
  input.CurrentTool = window.View.CurrentTool;
  input.PointerHeld = window.MouseHeld;
  input.PointerButton = window.MouseButton;
  if (world.HasWorld()) {
    const WorldPoint pointer = CellAtPoint(world, window.View, window.View.MouseX, window.View.MouseY);
    input.PointerCellX = pointer.X;
    input.PointerCellY = pointer.Y;
  }
  input.CursorCellX = window.CursorCellX;
  input.CursorCellY = window.CursorCellY;
  if (window.OptionsOpen) input.NestTraceSlider = window.OptionsNestTraceValue;
  input.AntsShown = window.View.ShowAnts == 1;
  return input;
}

}  // namespace keldor
