// A small premultiplied-ARGB picture that the Qt canvas blends onto its image
// many times per frame: a cached disc or a cached printed number. Blending it
// by hand avoids a QPainter call per ant circle and per number.
#pragma once

#include <cstdint>
#include <vector>

class QImage;

namespace keldor {

struct Sprite {
  int Width = 0;
  int Height = 0;
  // Where the sprite's anchor lies inside it (the disc centre; 0,0 for text).
  int AnchorX = 0;
  int AnchorY = 0;
  std::vector<uint32_t> Pixels;  // premultiplied ARGB, row by row

  // Copies an image (any format) into a sprite.
  static Sprite FromImage(const QImage& image, int anchorX, int anchorY);

  // Blends the sprite over an opaque RGB32 image so that its anchor lands on
  // pixel (x, y); parts outside the image are clipped.
  void BlendOnto(QImage& target, int x, int y) const;
};

}  // namespace keldor
