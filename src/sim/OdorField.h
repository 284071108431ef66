// The odor field's cell pass: wall reset, clamp, colour, drawing and decay.
#pragma once

#include "model/Colour.h"

namespace keldor {

struct World;
class TickPainter;

// The display colour of a cell with the given (clamped) scent.
Colour ScentColour(double scent, double foodScentMax, double nestScentMax);

// One pass over every cell, column by column.
void CellUpdate(World& world, TickPainter& painter);

}  // namespace keldor
