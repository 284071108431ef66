// The main window's state beside the world: the tick timer, the pointer on
// the terrain view and the cell under it, the views (zoom, toggles, scales),
// the scroll bars, the options dialog's hold on the tick, and what the
// controls show. Toolkit-free: the commands change it, the desktop window
// mirrors it onto its widgets, and the batch runner keeps one too.
#pragma once

#include <cstdint>

#include "render/ViewState.h"
#include "sim/TickInput.h"
#include "window/ControlState.h"

namespace keldor {

struct World;

// A scroll bar as values. Min may exceed Max when the zoomed world is smaller
// than the view; Value then sits at Min.
struct ScrollBar {
  int16_t Min = 0;
  int16_t Max = 32767;
  int16_t Value = 0;
  int16_t SmallChange = 10;
  int16_t LargeChange = 100;
};

struct WindowState {
  bool TimerEnabled = false;  // the tick timer: off until the first New
  int16_t MouseButton = 0;    // button of the last press or release on the terrain
  bool MouseHeld = false;
  int16_t CursorCellX = 0;  // cell under the pointer, clamped into the world
  int16_t CursorCellY = 0;
  float ViewCentreX = 0;  // centre of the terrain view, world units
  float ViewCentreY = 0;
  // While the options dialog is open, the position of its "Nest Scent" slider.
  bool OptionsOpen = false;
  int16_t OptionsNestTraceValue = 0;
  // Grid size confirmed in the options dialog, waiting for the next New (0: none).
  int16_t PendingGridSize = 0;

  ViewState View;
  ScrollBar HScroll1;
  ScrollBar VScroll1;
  ControlState Controls;
};

// What the next tick takes from the window.
TickInput TickInputOf(const WindowState& window, const World& world);

}  // namespace keldor
