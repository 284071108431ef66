// The ring that marks the ant picked in the inspector on the terrain view,
// drawn over a finished frame. The view's pen is left as it was, so the next
// tick draws exactly as it would without the marker.
#pragma once

#include "render/Canvas.h"

namespace keldor {

struct World;
struct ViewState;
struct Ant;

inline constexpr Colour PickMarkerColour{255, 0, 255};  // magenta

void DrawPickMarker(const World& world, const ViewState& view, const Ant& ant, Canvas& terrain);

}  // namespace keldor
