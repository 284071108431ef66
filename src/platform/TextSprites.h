// Cached pictures of printed texts, one per text, colour and pixel size. The
// views print the same few numbers over and over (scent values, ant counts),
// so each is laid out and rasterised once.
#pragma once

#include <QRgb>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/Sprite.h"

namespace keldor {

class TextSprites {
 public:
  // The text's top-left corner is the sprite's anchor.
  const Sprite& Get(std::string_view text, QRgb colour, int pixelSize) {
    if (text.size() <= MaxShortText) {
      const uint64_t style = StyleKey(colour, pixelSize);
      const uint64_t key = ShortTextKey(text);
      const RecentText& recent = recent_[RecentSlot(key)];
      if (recent.Found != nullptr && recent.Text == key && recent.Style == style) return *recent.Found;
    }
    return Find(text, colour, pixelSize);
  }

 private:
  // The sprites of one colour and size. Texts of up to seven bytes (every
  // number the views print) are keyed by their bytes packed into an integer.
  struct Style {
    std::unordered_map<uint64_t, Sprite> ShortTexts;
    std::unordered_map<std::string, Sprite> LongTexts;
  };
  static constexpr size_t MaxEntries = 8192;
  static constexpr size_t MaxShortText = 7;

  static uint64_t StyleKey(QRgb colour, int pixelSize) {
    return static_cast<uint64_t>(colour & 0xffffff) << 32 | static_cast<uint32_t>(pixelSize);
  }
  // The length and bytes of a short text packed into one integer.
  static uint64_t ShortTextKey(std::string_view text) {
    uint64_t key = text.size();
    for (char c : text) key = key << 8 | static_cast<unsigned char>(c);
    return key;
  }

  // The sprites printed last, found by a slot compare before any hashing:
  // a frame prints the same few numbers tens of thousands of times.
  struct RecentText {
    uint64_t Style = 0;
    uint64_t Text = 0;
    const Sprite* Found = nullptr;
  };
  static constexpr size_t RecentSlots = 256;
  static size_t RecentSlot(uint64_t textKey) { return (textKey * 0x9E3779B97F4A7C15ull) >> 56; }

  // The sprite from the style's map, drawn on first use; a short text becomes its slot's recent text.
  const Sprite& Find(std::string_view text, QRgb colour, int pixelSize);
  void ForgetAllIfFull();

  std::unordered_map<uint64_t, Style> styles_;
  Style* style_ = nullptr;  // the last style used
  uint64_t styleKey_ = 0;
  size_t entries_ = 0;
  std::array<RecentText, RecentSlots> recent_{};
};

}  // namespace keldor
