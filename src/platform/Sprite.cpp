#include "platform/Sprite.h"

#include <QImage>
#include <algorithm>

namespace keldor {

namespace {

// Each of the four 8-bit channels of x multiplied by a / 255, rounded.
inline uint32_t ByteMul(uint32_t x, uint32_t a) {
  uint32_t t = (x & 0xff00ff) * a;
  t = (t + ((t >> 8) & 0xff00ff) + 0x800080) >> 8;
  t &= 0xff00ff;
  x = ((x >> 8) & 0xff00ff) * a;
  x = x + ((x >> 8) & 0xff00ff) + 0x800080;
  x &= 0xff00ff00;
  return x | t;
}

}  // namespace

Sprite::Sprite(const QImage& image, int anchorX, int anchorY)
    : width_(image.width()), height_(image.height()), anchorX_(anchorX), anchorY_(anchorY) {
  const QImage argb = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
  for (int y = 0; y < height_; ++y) {
    const auto* row = reinterpret_cast<const uint32_t*>(argb.constScanLine(y));
    int first = 0;
    while (first < width_ && (row[first] >> 24) == 0) ++first;
    int last = width_ - 1;
    while (last >= first && (row[last] >> 24) == 0) --last;
    if (first > last) continue;
    spans_.push_back({y, first, last - first + 1, static_cast<uint32_t>(pixels_.size())});
    pixels_.insert(pixels_.end(), row + first, row + last + 1);
  }
}

void Sprite::BlendOnto(const PixelBuffer& target, int x, int y) const {
  const int left = x - anchorX_;
  const int top = y - anchorY_;
  const int targetWidth = target.Width;
  const int targetHeight = target.Height;
  if (left >= targetWidth || top >= targetHeight || left + width_ <= 0 || top + height_ <= 0) return;
  for (const Span& span : spans_) {
    const int ty = top + span.Y;
    if (ty < 0 || ty >= targetHeight) continue;
    const int from = std::max(0, -(left + span.X));
    const int to = std::min(span.Length, targetWidth - (left + span.X));
    uint32_t* dst = target.Pixels + ty * target.PixelsPerRow + left + span.X;
    const uint32_t* src = &pixels_[span.First];
    for (int i = from; i < to; ++i) {
      const uint32_t s = src[i];
      const uint32_t alpha = s >> 24;
      if (alpha == 255) {
        dst[i] = s;
      } else if (alpha != 0) {
        dst[i] = (s + ByteMul(dst[i], 255 - alpha)) | 0xff000000u;
      }
    }
  }
}

}  // namespace keldor
