// Cached pictures of printed texts, one per text, colour and pixel size. The
// views print the same few numbers over and over (scent values, ant counts),
// so each is laid out and rasterised once.
#pragma once

#include <QRgb>
#include <cstdint>
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
  // The sprites of one colour and size. Texts of up to seven bytes (every
  // number the views print) are keyed by their bytes packed into an integer.
  struct Style {
    std::unordered_map<uint64_t, Sprite> ShortTexts;
    std::unordered_map<std::string, Sprite> LongTexts;
  };
  static constexpr size_t MaxEntries = 8192;

  void ForgetAllIfFull();

  std::unordered_map<uint64_t, Style> styles_;
  Style* style_ = nullptr;  // the last style used
  uint64_t styleKey_ = 0;
  size_t entries_ = 0;
};

}  // namespace keldor
