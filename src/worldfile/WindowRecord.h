// The main window's state that a world file keeps beside the world: the tick
// timer, the pointer on the terrain view and the cell under it, the view
// centre, the views (zoom, toggles, scales) and the scroll bars. The window
// logic's WindowState extends it with what is not saved.
#pragma once

#include <cstdint>

#include "render/ViewState.h"

namespace keldor {

// A scroll bar as values. Min may exceed Max when the zoomed world is smaller
// than the view; Value then sits at Min.
struct ScrollBar {
  int16_t Min = 0;
  int16_t Max = 32767;
  int16_t Value = 0;
  int16_t SmallChange = 10;
  int16_t LargeChange = 100;
};

struct WindowRecord {
  bool TimerEnabled = false;  // the tick timer: off until the first New
  int16_t MouseButton = 0;    // button of the last press or release on the terrain
  bool MouseHeld = false;
  int16_t CursorCellX = 0;  // cell under the pointer, clamped into the world
  int16_t CursorCellY = 0;
  float ViewCentreX = 0;  // centre of the terrain view, world units
  float ViewCentreY = 0;

  ViewState View;
  ScrollBar HScroll1;
  ScrollBar VScroll1;
};

}  // namespace keldor
