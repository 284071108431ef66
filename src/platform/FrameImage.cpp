#include "platform/FrameImage.h"

#include <QPainter>
#include <algorithm>

namespace keldor {

QImage ComposeFrameImage(const QImage& terrain, const QImage& map) {
  QImage frame(terrain.width() + FrameImageGap + map.width(), std::max(terrain.height(), map.height()),
               QImage::Format_RGB32);
  frame.fill(QColor(212, 208, 200));
  QPainter painter(&frame);
  painter.drawImage(0, 0, terrain);
  painter.drawImage(terrain.width() + FrameImageGap, 0, map);
  return frame;
}

}  // namespace keldor
