#include "platform/TextSprites.h"

#include <QFont>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <algorithm>

namespace keldor {

namespace {

Sprite DrawText(std::string_view text, QRgb colour, int pixelSize) {
  QFont font(QStringLiteral("Sans Serif"));
  font.setPixelSize(std::max(1, pixelSize));
  font.setStyleStrategy(QFont::NoAntialias);
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
  return Sprite(image, 0, 0);
}

}  // namespace

void TextSprites::ForgetAllIfFull() {
  if (entries_ < MaxEntries) return;
  for (auto& [key, style] : styles_) {
    style.ShortTexts.clear();
    style.LongTexts.clear();
  }
  entries_ = 0;
}

const Sprite& TextSprites::Get(std::string_view text, QRgb colour, int pixelSize) {
  const uint64_t styleKey = static_cast<uint64_t>(colour & 0xffffff) << 32 | static_cast<uint32_t>(pixelSize);
  if (style_ == nullptr || styleKey != styleKey_) {
    style_ = &styles_[styleKey];
    styleKey_ = styleKey;
  }
  if (text.size() <= 7) {
    uint64_t key = text.size();
    for (char c : text) key = key << 8 | static_cast<unsigned char>(c);
    auto found = style_->ShortTexts.find(key);
    if (found != style_->ShortTexts.end()) return found->second;
    ForgetAllIfFull();
    ++entries_;
    return style_->ShortTexts.emplace(key, DrawText(text, colour, pixelSize)).first->second;
  }
  const std::string key(text);
  auto found = style_->LongTexts.find(key);
  if (found != style_->LongTexts.end()) return found->second;
  ForgetAllIfFull();
  ++entries_;
  return style_->LongTexts.emplace(key, DrawText(text, colour, pixelSize)).first->second;
}

}  // namespace keldor
