#include "window/TerrainTools.h"

#include <string>
#include <utility>

#include "model/Numeric.h"
#include "model/Queries.h"
#include "model/Random.h"
#include "model/World.h"
#include "model/WorldCreation.h"
#include "sim/Editing.h"
#include "window/WindowState.h"

namespace keldor {
namespace {

// Height of the first tool button and the frame's margin, twips.
constexpr int ToolButtonHeight = 405;
constexpr int PaletteMargin = 90;

// Removes the first wall on the (unclamped) cell under the pointer.
void EraseWallUnderPointer(World& world, const WindowState& window) {
  const WorldPoint p = CellAtPoint(world, window.View, window.View.MouseX, window.View.MouseY);
  for (int i = 0; i <= world.WallCount() - 1; ++i) {
    if (RemoveWallAt(world, i, p.X, p.Y)) return;
  }
}

bool CursorHasBrick(const World& world, const WindowState& window) {
  return world.Cells(window.CursorCellX, window.CursorCellY).Objects.HasBrick();
}

}  // namespace

void SelectTool(const World& world, WindowState& window, int index) {
  ViewState& view = window.View;
  std::array<int, 5>& tops = window.Controls.ActionTops;
  std::swap(tops[static_cast<size_t>(index)], tops[static_cast<size_t>(view.CurrentTool)]);
  view.CurrentTool = static_cast<Tool>(index);
  window.Controls.CrossHairPointer = view.CurrentTool != NoTool;
  switch (view.CurrentTool) {
    case FoodTool: view.ToolColour = Colour(0, 150, 0); break;
    case WallTool: view.ToolColour = Colour(100, 100, 150); break;
    case RemoveAntsTool: view.ToolColour = Colour(150, 100, 70); break;
    case NestTool: view.ToolColour = world.Settings.AntColour; break;
    case NoTool: break;
  }
  TogglePalette(window);
}

void TogglePalette(WindowState& window) {
  ControlState& controls = window.Controls;
  const bool opening = controls.PickActionCaption == "v";
  controls.PickActionCaption = std::string(opening ? "^" : "v");
  const int sign = opening ? 1 : -1;
  controls.ActionsHeight += sign * (4 * ToolButtonHeight + PaletteMargin);
}

void TerrainPointerMoved(World& world, WindowState& window, int button, float x, float y) {
  window.View.MouseX = x;
  window.View.MouseY = y;
  const WorldPoint p = CellAtPoint(world, window.View, x, y);
  window.CursorCellX = static_cast<int16_t>(CInt(Min(Max(p.X, 1), world.Settings.GridX)));
  window.CursorCellY = static_cast<int16_t>(CInt(Min(Max(p.Y, 1), world.Settings.GridY)));
  if (window.View.CurrentTool != WallTool) return;
  if (button == 1 && !CursorHasBrick(world, window)) {
    AddWallAt(world, window.CursorCellX, window.CursorCellY);
  } else if (button == 2) {
    EraseWallUnderPointer(world, window);
  }
}

void TerrainPointerPressed(World& world, WindowState& window, RandomSource& random, int button) {
  window.MouseHeld = true;
  window.MouseButton = static_cast<int16_t>(button);
  const int16_t x = window.CursorCellX;
  const int16_t y = window.CursorCellY;
  switch (window.View.CurrentTool) {
    case FoodTool:
      if (world.Cells(x, y).Food == 0) AppendFoodPile(world, random, x, y, world.Settings.SpreadFoodAmount);
      break;
    case WallTool:
      if (CursorHasBrick(world, window)) {
        EraseWallUnderPointer(world, window);
      } else {
        AddWallAt(world, x, y);
      }
      break;
    case NestTool:
      if (IsNestCell(world, x, y)) {
        RemoveNestAt(world, random, x, y);
      } else {
        CreateNest(world, random, x, y);
      }
      break;
    case NoTool:
    case RemoveAntsTool: break;
  }
}

void TerrainPointerReleased(WindowState& window, int button) {
  window.MouseButton = static_cast<int16_t>(button);
  window.MouseHeld = false;
}

}  // namespace keldor
