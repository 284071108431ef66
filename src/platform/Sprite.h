// A small premultiplied-ARGB picture that the Qt canvas blends onto its image
// many times per frame: a cached disc or a cached printed number. Only the
// inked part of each row is kept (digits are mostly empty space), and the
// blending is done by hand, which is far cheaper than a QPainter call per ant
// circle and per number.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

class QImage;

namespace keldor {

// The pixels of an opaque RGB32 image, written directly.
struct PixelBuffer {
  uint32_t* Pixels = nullptr;
  std::ptrdiff_t PixelsPerRow = 0;
  int Width = 0;
  int Height = 0;
};

class Sprite {
 public:
  Sprite() = default;
  // The inked pixels of an image (any format); (anchorX, anchorY) is the
  // pixel that BlendOnto places on its target point.
  Sprite(const QImage& image, int anchorX, int anchorY);

  // Blends the sprite over the pixels so that its anchor lands on pixel
  // (x, y); parts outside the buffer are clipped.
  void BlendOnto(const PixelBuffer& target, int x, int y) const;

  int Width() const { return width_; }
  int Height() const { return height_; }

 private:
  // The inked pixels of one row: columns x .. x + Length - 1, stored from First.
  struct Span {
    int Y;
    int X;
    int Length;
    uint32_t First;
  };

  int width_ = 0;
  int height_ = 0;
  int anchorX_ = 0;
  int anchorY_ = 0;
  std::vector<Span> spans_;
  std::vector<uint32_t> pixels_;  // premultiplied ARGB
};

}  // namespace keldor
