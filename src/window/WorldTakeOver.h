// Handing a loaded world over to a running session.
#pragma once

#include "worldfile/WindowRecord.h"

namespace keldor {

struct World;
struct WindowState;

// Replaces the session's world by a loaded one. The window keeps its panels
// and the grid size waiting for New; its buttons show the loaded world's
// Play/Pause, odor, ants and tool state and its population.
void TakeOverWorld(World& world, WindowState& window, World&& loaded, WindowRecord&& loadedWindow);

}  // namespace keldor
