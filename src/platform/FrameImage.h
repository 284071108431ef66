// One picture of a whole frame: the terrain view with the mini-map to its
// right, top-aligned on the window's face colour. Used for PNG frames and
// screenshots.
#pragma once

#include <QImage>

namespace keldor {

inline constexpr int FrameImageGap = 8;  // pixels between the two views

QImage ComposeFrameImage(const QImage& terrain, const QImage& map);

}  // namespace keldor
