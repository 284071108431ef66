// The objects standing on the terrain: walls, nests and food piles, on both
// views, with the yellow scent and ant-count numbers over nests and piles.
#pragma once

#include "render/Canvas.h"

namespace keldor {

struct World;
struct ViewState;

// Each wall's first shape; on the mini-map even while the info panel is hidden.
void DrawWalls(const World& world, const ViewState& view, Canvas& terrain, Canvas& map);
// Each nest as a grey disc; with odor traces shown, its cell's numbers in yellow.
void DrawNests(const World& world, const ViewState& view, Canvas& terrain, Canvas& map);
// Each pile with an amount above 0 as a green disc whose area is the amount.
void DrawFoodPiles(const World& world, const ViewState& view, Canvas& terrain, Canvas& map);

}  // namespace keldor
