// The simulated world: the settings, whether it runs, and the containers.
// The tick, the editing routines and the renderer work on it in place; the
// window's own state (pointer, view, controls) lives beside it in the window
// logic.
#pragma once

#include <cstdint>
#include <vector>

#include "model/CellGrid.h"
#include "model/Records.h"
#include "model/WorldSettings.h"

namespace keldor {

struct World {
  WorldSettings Settings;

  bool Running = false;  // the world advances (Play) or is paused
  // Set by New for the nests it and the nest tool create.
  int16_t AntSizeTwips = 0;
  int16_t NestRadius = 0;  // radius of every nest created after New, body units
  double AntBodyArea = 0;
  double FoodChance = 0;

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
};

}  // namespace keldor
