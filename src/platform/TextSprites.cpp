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
  recent_.fill({});
  entries_ = 0;
}

const Sprite& TextSprites::Find(std::string_view text, QRgb colour, int pixelSize) {
  const uint64_t styleKey = StyleKey(colour, pixelSize);
  if (style_ == nullptr || styleKey != styleKey_) {
    style_ = &styles_[styleKey];
    styleKey_ = styleKey;
  }
  if (text.size() <= MaxShortText) {
    const uint64_t key = ShortTextKey(text);
    auto found = style_->ShortTexts.find(key);
    if (found == style_->ShortTexts.end()) {
      ForgetAllIfFull();
      ++entries_;
      found = style_->ShortTexts.emplace(key, DrawText(text, colour, pixelSize)).first;
    }
    recent_[RecentSlot(key)] = {styleKey, key, &found->second};
    return found->second;
  }
  const std::string key(text);
  auto found = style_->LongTexts.find(key);
  if (found != style_->LongTexts.end()) return found->second;
  ForgetAllIfFull();
  ++entries_;
  return style_->LongTexts.emplace(key, DrawText(text, colour, pixelSize)).first->second;
}

}  // namespace keldor
