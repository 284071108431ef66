#include "platform/TextSprites.h"

#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <algorithm>

namespace keldor {

namespace {

Sprite DrawText(std::string_view text, QRgb colour, int pixelSize) {
  QFont font(QStringLiteral("Sans Serif"));
  font.setPixelSize(std::max(1, pixelSize));
  const QString string = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  const QFontMetrics metrics(font);
  QImage image(std::max(1, metrics.horizontalAdvance(string)), std::max(1, metrics.height()),
               QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setFont(font);
  painter.setPen(QColor(colour));
  painter.drawText(0, metrics.ascent(), string);
  painter.end();
  return Sprite::FromImage(image, 0, 0);
}

}  // namespace

const Sprite& TextSprites::Get(std::string_view text, QRgb colour, int pixelSize) {
  key_.assign(text);
  key_.push_back('\0');
  key_.append(std::to_string(colour));
  key_.push_back('/');
  key_.append(std::to_string(pixelSize));
  auto found = sprites_.find(key_);
  if (found != sprites_.end()) return found->second;
  if (sprites_.size() >= MaxEntries) sprites_.clear();
  return sprites_.emplace(key_, DrawText(text, colour, pixelSize)).first->second;
}

}  // namespace keldor
