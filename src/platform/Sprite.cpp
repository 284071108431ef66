#include "platform/Sprite.h"

#include <QImage>
#include <algorithm>
#include <cstring>

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

Sprite Sprite::FromImage(const QImage& image, int anchorX, int anchorY) {
  const QImage argb = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
  Sprite sprite;
  sprite.Width = argb.width();
  sprite.Height = argb.height();
  sprite.AnchorX = anchorX;
  sprite.AnchorY = anchorY;
  sprite.Pixels.resize(static_cast<size_t>(sprite.Width) * static_cast<size_t>(sprite.Height));
  for (int y = 0; y < sprite.Height; ++y) {
    std::memcpy(&sprite.Pixels[static_cast<size_t>(y) * static_cast<size_t>(sprite.Width)], argb.constScanLine(y),
                static_cast<size_t>(sprite.Width) * sizeof(uint32_t));
  }
  return sprite;
}

void Sprite::BlendOnto(QImage& target, int x, int y) const {
  const int left = x - AnchorX;
  const int top = y - AnchorY;
  const int x0 = std::max(0, -left);
  const int y0 = std::max(0, -top);
  const int x1 = std::min(Width, target.width() - left);
  const int y1 = std::min(Height, target.height() - top);
  if (x0 >= x1 || y0 >= y1) return;
  uchar* bits = target.bits();
  const qsizetype stride = target.bytesPerLine();
  for (int sy = y0; sy < y1; ++sy) {
    auto* dst = reinterpret_cast<uint32_t*>(bits + (top + sy) * stride) + left;
    const uint32_t* src = &Pixels[static_cast<size_t>(sy) * static_cast<size_t>(Width)];
    for (int sx = x0; sx < x1; ++sx) {
      const uint32_t s = src[sx];
      const uint32_t alpha = s >> 24;
      if (alpha == 255) {
        dst[sx] = s;
      } else if (alpha != 0) {
        dst[sx] = (s + ByteMul(dst[sx], 255 - alpha)) | 0xff000000u;
      }
    }
  }
}

}  // namespace keldor
