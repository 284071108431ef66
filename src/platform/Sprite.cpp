#include "platform/Sprite.h"

#include <QImage>
#include <algorithm>

namespace keldor {

namespace {

constexpr uint32_t InkedAlpha = 128;

bool IsInked(QRgb pixel) { return static_cast<uint32_t>(qAlpha(pixel)) >= InkedAlpha; }

}  // namespace

Sprite::Sprite(const QImage& image, int anchorX, int anchorY)
    : width_(image.width()), height_(image.height()), anchorX_(anchorX), anchorY_(anchorY) {
  const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
  for (int y = 0; y < height_; ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(argb.constScanLine(y));
    int x = 0;
    while (x < width_) {
      if (!IsInked(row[x])) {
        ++x;
        continue;
      }
      const int start = x;
      while (x < width_ && IsInked(row[x])) ++x;
      runs_.push_back({y, start, x - start, static_cast<uint32_t>(pixels_.size())});
      for (int i = start; i < x; ++i) pixels_.push_back(row[i] | 0xff000000u);
    }
  }
}

void Sprite::MeasureOffsets(std::ptrdiff_t pixelsPerRow) const {
  offsets_.clear();
  for (const Run& run : runs_) {
    for (int i = 0; i < run.Length; ++i) offsets_.push_back(run.Y * pixelsPerRow + run.X + i);
  }
  offsetsPixelsPerRow_ = pixelsPerRow;
}

void Sprite::StampClipped(const PixelBuffer& target, int left, int top) const {
  if (left >= target.Width || top >= target.Height || left + width_ <= 0 || top + height_ <= 0) return;
  for (const Run& run : runs_) {
    const int ty = top + run.Y;
    if (ty < 0 || ty >= target.Height) continue;
    const int from = std::max(0, -(left + run.X));
    const int to = std::min(run.Length, target.Width - (left + run.X));
    uint32_t* dst = target.Pixels + ty * target.PixelsPerRow + left + run.X;
    const uint32_t* src = pixels_.data() + run.First;
    for (int i = from; i < to; ++i) dst[i] = src[i];
  }
}

}  // namespace keldor
