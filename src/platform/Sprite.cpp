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

void Sprite::StampOnto(const PixelBuffer& target, int x, int y) const {
  const int left = x - anchorX_;
  const int top = y - anchorY_;
  if (left >= target.Width || top >= target.Height || left + width_ <= 0 || top + height_ <= 0) return;
  const bool inside = left >= 0 && top >= 0 && left + width_ <= target.Width && top + height_ <= target.Height;
  for (const Run& run : runs_) {
    const int ty = top + run.Y;
    int from = 0;
    int to = run.Length;
    if (!inside) {
      if (ty < 0 || ty >= target.Height) continue;
      from = std::max(0, -(left + run.X));
      to = std::min(run.Length, target.Width - (left + run.X));
      if (from >= to) continue;
    }
    uint32_t* dst = target.Pixels + ty * target.PixelsPerRow + left + run.X;
    const uint32_t* src = pixels_.data() + run.First;
    for (int i = from; i < to; ++i) dst[i] = src[i];  // runs are a few pixels long
  }
}

}  // namespace keldor
