// What lies on top of every frame: the red frame of the visible area on the
// mini-map, the blue border of the world and the cursor cell on the terrain
// view, and the zoom label in the terrain view's top-left corner.
#pragma once

#include <string>

#include "render/Canvas.h"

namespace keldor {

struct World;
struct ViewState;

// Leaves both views at FillStyle solid and DrawWidth 1.
void DrawViewFrames(const World& world, const ViewState& view, Canvas& terrain, Canvas& map);

// "ZOOM: 1.1X" at zoom 11; empty at zoom factor 1.
std::string ZoomLabelText(const World& world, const ViewState& view);
void DrawZoomLabel(const World& world, const ViewState& view, Canvas& terrain);

}  // namespace keldor
