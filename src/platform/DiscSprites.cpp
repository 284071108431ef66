#include "platform/DiscSprites.h"

#include <QImage>
#include <QPainter>
#include <cmath>

namespace keldor {

namespace {

Sprite DrawDisc(const DiscKey& key) {
  const double radius = key.QuarterPixels / 4.0;
  const int half = static_cast<int>(std::ceil(radius + key.LineWidth / 2.0)) + 1;
  QImage image(2 * half + 1, 2 * half + 1, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setPen(QPen(QColor(key.Outline), key.LineWidth));
  painter.setBrush(key.Filled ? QBrush(QColor(key.Fill)) : Qt::NoBrush);
  // The anchor pixel's centre is the disc's centre.
  painter.drawEllipse(QPointF(half + 0.5, half + 0.5), radius, radius);
  painter.end();
  return Sprite(image, half, half);
}

}  // namespace

const Sprite& DiscSprites::Get(const DiscKey& key) {
  auto found = sprites_.find(key);
  if (found != sprites_.end()) return found->second;
  if (sprites_.size() >= MaxEntries) {
    sprites_.clear();
    ++generation_;
  }
  return sprites_.emplace(key, DrawDisc(key)).first->second;
}

}  // namespace keldor
