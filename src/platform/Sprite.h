// A small picture that the Qt canvas stamps onto its image many times per
// frame: a cached disc or a cached printed number. Sprites are drawn without
// anti-aliasing, so a pixel is either inked or empty; only the runs of inked
// pixels are kept (digits are mostly empty space) and stamping is a handful
// of short copies, far cheaper than a QPainter call per circle and per number.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

class QImage;

namespace keldor {

// A rectangle of pixels, its edges included; empty while Right < Left.
struct PixelArea {
  int Left = std::numeric_limits<int>::max();
  int Top = std::numeric_limits<int>::max();
  int Right = -1;
  int Bottom = -1;
};

// The pixels of an opaque RGB32 image, written directly.
struct PixelBuffer {
  uint32_t* Pixels = nullptr;
  std::ptrdiff_t PixelsPerRow = 0;
  int Width = 0;
  int Height = 0;
  // Holds every pixel written since the image was last all background, so
  // that clearing repaints only that part: zoomed out, the world fills a
  // corner of the view. It may reach outside the image.
  PixelArea Written;

  void MarkWritten(int left, int top, int right, int bottom) {
    Written.Left = std::min(Written.Left, left);
    Written.Top = std::min(Written.Top, top);
    Written.Right = std::max(Written.Right, right);
    Written.Bottom = std::max(Written.Bottom, bottom);
  }
};

class Sprite {
 public:
  Sprite() = default;
  // The inked pixels (alpha at least one half) of an image in any format;
  // (anchorX, anchorY) is the pixel that StampOnto places on its target point.
  Sprite(const QImage& image, int anchorX, int anchorY);

  // Copies the inked pixels so that the anchor lands on pixel (x, y); parts
  // outside the buffer are clipped. Inline: a frame stamps a few hundred
  // thousand sprites, most of them a handful of pixels wholly inside.
  void StampOnto(PixelBuffer& target, int x, int y) const {
    const int left = x - anchorX_;
    const int top = y - anchorY_;
    target.MarkWritten(left, top, left + width_ - 1, top + height_ - 1);
    if (left < 0 || top < 0 || left + width_ > target.Width || top + height_ > target.Height) {
      StampClipped(target, left, top);
      return;
    }
    if (offsetsPixelsPerRow_ != target.PixelsPerRow) MeasureOffsets(target.PixelsPerRow);
    uint32_t* corner = target.Pixels + top * target.PixelsPerRow + left;
    for (size_t i = 0; i < pixels_.size(); ++i) corner[offsets_[i]] = pixels_[i];
  }

  int Width() const { return width_; }
  int Height() const { return height_; }

 private:
  // Inked pixels Length long from column X of row Y, stored from First.
  struct Run {
    int Y;
    int X;
    int Length;
    uint32_t First;
  };

  // Fills offsets_ for a buffer with pixelsPerRow pixels per row.
  void MeasureOffsets(std::ptrdiff_t pixelsPerRow) const;
  // Stamps run by run, each cut to the buffer, with the top-left corner at (left, top).
  void StampClipped(const PixelBuffer& target, int left, int top) const;

  int width_ = 0;
  int height_ = 0;
  int anchorX_ = 0;
  int anchorY_ = 0;
  std::vector<Run> runs_;
  std::vector<uint32_t> pixels_;  // opaque RGB32
  // Where each of pixels_ goes, counted from the top-left corner in a buffer
  // of offsetsPixelsPerRow_ pixels per row: a sprite wholly inside the buffer,
  // the usual case, is a few single stores without any row arithmetic. A
  // sprite belongs to one canvas, so this is measured again only on a resize.
  mutable std::vector<std::ptrdiff_t> offsets_;
  mutable std::ptrdiff_t offsetsPixelsPerRow_ = 0;
};

}  // namespace keldor
