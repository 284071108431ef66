// One ant's figure: a cross and circle on the mini-map, three outlined circles
// (head, middle, rear) on the terrain view, and a green disc for its load.
#pragma once

#include "render/Canvas.h"

namespace keldor {

struct World;
struct ViewState;
struct Nest;

// Draws ant antIndex of nest (0 is the queen). The ant's colour is not reset here.
void DrawAnt(const World& world, const ViewState& view, const Nest& nest, int antIndex, Canvas& terrain, Canvas& map);

}  // namespace keldor
