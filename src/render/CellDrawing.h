// The cell squares of the odor field and their numbers (scent, ant count).
#pragma once

#include "render/Canvas.h"

namespace keldor {

struct World;
struct ViewState;
struct Cell;

// One cell that holds scent or ants: sets both views' FillColor to its colour;
// while odor traces are shown, also its square on the mini-map and, when a
// corner is visible, its outlined square and numbers on the terrain view.
void DrawCell(const World& world, const ViewState& view, const Cell& cell, Canvas& terrain, Canvas& map);

// Prints a scent value at the canvas's current point: Int(s) above 0,
// Int(-s) below 0 (cells), nothing at 0.
void PrintCellScent(Canvas& canvas, double scent);

}  // namespace keldor
