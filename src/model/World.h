// The whole state of one Keldor session: the settings, the main window's
// state, the viewport and the world containers. One object owns it all; the
// tick, the renderer, the editing tools and the windows work on it in place.
#pragma once

#include <cstdint>
#include <vector>

#include "model/CellGrid.h"
#include "model/ControlState.h"
#include "model/Records.h"
#include "model/Viewport.h"
#include "model/WorldSettings.h"

namespace keldor {

struct World {
  WorldSettings Settings;

  // Main-window state.
  bool TimerEnabled = false;  // Timer1: off until the first New
  bool Running = false;       // the world advances (Play) or is paused
  bool TickInProgress = false;  // a tick is running (a modal message may re-enter)
  int16_t MouseButton = 0;    // button of the last press or release on the terrain
  bool MouseHeld = false;
  int16_t AntSizeTwips = 0;
  int16_t NestRadius = 0;  // radius of every nest created after New, body units
  double ZoomX = 0;
  double ZoomY = 0;
  double AntBodyArea = 0;
  int16_t ShowOdor = 0;
  int16_t ShowAnts = 0;
  double FoodChance = 0;
  float ViewCentreX = 0;  // centre of the terrain view, world units
  float ViewCentreY = 0;
  float MouseX = 0;  // last pointer position over the terrain view, terrain units
  float MouseY = 0;
  int16_t CursorCellX = 0;  // cell under the pointer, clamped into the world
  int16_t CursorCellY = 0;
  // While the options dialog is open, the position of its "Nest Scent" slider.
  bool OptionsOpen = false;
  int16_t OptionsNestTraceValue = 0;
  // Grid size confirmed in the options dialog, waiting for the next New (0: none).
  int16_t PendingGridSize = 0;

  Viewport View;
  ControlState Controls;

  // Containers.
  CellGrid Cells;
  std::vector<Nest> Nests;  // slots 0..NestCount-1 are meaningful
  int16_t NestCount = 0;
  SlotList<FoodPile> FoodPiles;
  SlotList<WallObject> Walls;

  // Identities of ants and nests (they are renumbered as others are removed).
  uint32_t LastSerial = 0;
  uint32_t NextSerial() { return ++LastSerial; }

  int16_t FoodPileCount() const { return FoodPiles.Count(); }
  int16_t WallCount() const { return Walls.Count(); }
  bool HasWorld() const { return Cells.Exists(); }
  // The value V the ants read from the "Nest Scent" slider: its position while
  // the options dialog is open, else NestScentMax (what a fresh dialog shows).
  int16_t NestTraceValue() const { return OptionsOpen ? OptionsNestTraceValue : Settings.NestScentMax; }
};

}  // namespace keldor
