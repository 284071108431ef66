// The window's side of opening a world file: the window shows the loaded
// world's saved view, tool and Play/Pause state, and keeps its own panels and
// the grid size waiting for New.
#pragma once

#include "worldfile/WindowRecord.h"

namespace keldor {

struct World;
struct WindowState;

// `loaded` is the world the run has just taken over from the file.
void TakeOverWindow(WindowState& window, const World& loaded, WindowRecord&& loadedWindow);

}  // namespace keldor
