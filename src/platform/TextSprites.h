// Cached pictures of printed texts, one per text, colour and pixel size. The
// views print the same few numbers over and over (scent values, ant counts),
// so each is laid out and rasterised once.
#pragma once

#include <QFont>
#include <QRgb>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/Sprite.h"

namespace keldor {

class TextSprites {
 public:
  // The text's top-left corner is the sprite's anchor.
  const Sprite& Get(std::string_view text, QRgb colour, int pixelSize);

 private:
  static constexpr size_t MaxEntries = 8192;
  std::unordered_map<std::string, Sprite> sprites_;
  std::string key_;  // reused to look up without allocating
};

}  // namespace keldor
