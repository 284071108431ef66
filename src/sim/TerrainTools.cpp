#include "sim/TerrainTools.h"

#include <string>
#include <utility>

#include "model/Numeric.h"
#include "model/Queries.h"
#include "model/Random.h"
#include "model/World.h"
#include "model/WorldCreation.h"
#include "sim/Editing.h"

namespace keldor {
namespace {

// Height of the first tool button and the frame's margin, twips.
constexpr int ToolButtonHeight = 405;
constexpr int PaletteMargin = 90;

void EraseWallAtCursor(World& world) {
  for (int i = 0; i <= world.WallCount() - 1; ++i) {
    if (RemoveWallAtCursor(world, i)) return;
  }
}

bool CursorHasBrick(const World& world) {
  return CellHasObjectType(world, PlasterBrickType, world.CursorCellX, world.CursorCellY);
}

}  // namespace

void SelectTool(World& world, int index) {
  std::array<int, 5>& tops = world.Controls.ActionTops;
  std::swap(tops[static_cast<size_t>(index)], tops[static_cast<size_t>(world.Settings.CurrentTool)]);
  world.Settings.CurrentTool = static_cast<int16_t>(index);
  world.Controls.CrossHairPointer = index != 0;
  switch (index) {
    case 1: world.Settings.ToolColour = Rgb(0, 150, 0); break;
    case 2: world.Settings.ToolColour = Rgb(100, 100, 150); break;
    case 3: world.Settings.ToolColour = Rgb(150, 100, 70); break;
    case 4: world.Settings.ToolColour = world.Settings.AntColour; break;
    default: break;
  }
  TogglePalette(world);
}

void TogglePalette(World& world) {
  ControlState& controls = world.Controls;
  const bool opening = controls.PickActionCaption == "v";
  controls.PickActionCaption = std::string(opening ? "^" : "v");
  const int sign = opening ? 1 : -1;
  controls.ActionsHeight += sign * (4 * ToolButtonHeight + PaletteMargin);
}

void TerrainPointerMoved(World& world, int button, float x, float y) {
  world.MouseX = x;
  world.MouseY = y;
  const WorldPoint p = CellAtPoint(world, x, y);
  world.CursorCellX = static_cast<int16_t>(CInt(Min(Max(p.X, 1), world.Settings.GridX)));
  world.CursorCellY = static_cast<int16_t>(CInt(Min(Max(p.Y, 1), world.Settings.GridY)));
  if (world.Settings.CurrentTool != 2) return;
  if (button == 1 && !CursorHasBrick(world)) {
    AddWallAt(world, world.CursorCellX, world.CursorCellY);
  } else if (button == 2) {
    EraseWallAtCursor(world);
  }
}

void TerrainPointerPressed(World& world, RandomSource& random, int button) {
  world.MouseHeld = true;
  world.MouseButton = static_cast<int16_t>(button);
  switch (world.Settings.CurrentTool) {
    case 1:
      if (world.Cells(world.CursorCellX, world.CursorCellY).Food == 0) {
        AppendFoodPile(world, random, world.CursorCellX, world.CursorCellY, world.Settings.SpreadFoodAmount);
      }
      break;
    case 2:
      if (CursorHasBrick(world)) {
        EraseWallAtCursor(world);
      } else {
        AddWallAt(world, world.CursorCellX, world.CursorCellY);
      }
      break;
    case 4:
      if (IsNestCell(world, world.CursorCellX, world.CursorCellY)) {
        RemoveNestAtCursor(world, random);
      } else {
        CreateNest(world, random);
      }
      break;
    default: break;
  }
}

void TerrainPointerReleased(World& world, int button) {
  world.MouseButton = static_cast<int16_t>(button);
  world.MouseHeld = false;
}

}  // namespace keldor
