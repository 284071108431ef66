// The tool palette and the terrain view's pointer handlers, without a
// toolkit. Buttons are bit sets (1 left, 2 right); positions are terrain units.
#pragma once

namespace keldor {

struct World;
struct WindowState;
class RandomSource;

// Selects tool index (0 none, 1 food, 2 wall, 3 remove ants, 4 nest): the
// tool's button swaps places with the current one, the pointer shape and the
// tool colour follow, and the palette toggles.
void SelectTool(const World& world, WindowState& window, int index);

// Opens ("^") or closes ("v") the tool palette.
void TogglePalette(WindowState& window);

// Pointer tracking on every move; with the wall tool a left drag paints
// bricks and a right drag erases them.
void TerrainPointerMoved(World& world, WindowState& window, int button, float x, float y);

// A press acts once on the cursor cell with the current tool.
void TerrainPointerPressed(World& world, WindowState& window, RandomSource& random, int button);

void TerrainPointerReleased(WindowState& window, int button);

}  // namespace keldor
