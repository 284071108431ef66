// The main window's state beside the world: the tick timer, the pointer on
// the terrain view and the cell under it, the views (zoom, toggles, scales),
// the scroll bars, the options dialog's hold on the tick, and what the
// controls show. Toolkit-free: the commands change it, the desktop window
// mirrors it onto its widgets, and the batch runner keeps one too.
#pragma once

#include <cstdint>

#include "sim/TickInput.h"
#include "window/ControlState.h"
#include "worldfile/WindowRecord.h"

namespace keldor {

struct World;

// The saved fields (timer, pointer, view centre, views, scroll bars) and,
// beside them, what only the running window holds.
struct WindowState : WindowRecord {
  // While the options dialog is open, the position of its "Nest Scent" slider.
  bool OptionsOpen = false;
  int16_t OptionsNestTraceValue = 0;
  // Grid size confirmed in the options dialog, waiting for the next New (0: none).
  int16_t PendingGridSize = 0;

  ControlState Controls;
};

// What the next tick takes from the window.
TickInput TickInputOf(const WindowState& window, const World& world);

}  // namespace keldor
