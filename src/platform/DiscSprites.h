// Cached pictures of small circles (ant bodies, loads, food piles, nests), one
// per radius (to a quarter pixel), fill, outline colour and line width.
#pragma once

#include <QRgb>
#include <cstdint>
#include <unordered_map>

#include "platform/Sprite.h"

namespace keldor {

struct DiscKey {
  int QuarterPixels = 0;  // radius in quarter pixels
  int LineWidth = 1;      // pixels
  bool Filled = true;
  QRgb Fill = 0;
  QRgb Outline = 0;
  bool operator==(const DiscKey&) const = default;
};

struct DiscKeyHash {
  size_t operator()(const DiscKey& k) const {
    uint64_t h = static_cast<uint64_t>(k.QuarterPixels) * 0x9E3779B97F4A7C15ull;
    h ^= (static_cast<uint64_t>(k.Fill) << 1 | (k.Filled ? 1u : 0u)) + 0x9E3779B97F4A7C15ull + (h << 6) + (h >> 2);
    h ^= (static_cast<uint64_t>(k.Outline) << 8 | static_cast<uint64_t>(k.LineWidth)) + 0x9E3779B97F4A7C15ull +
         (h << 6) + (h >> 2);
    return static_cast<size_t>(h);
  }
};

class DiscSprites {
 public:
  // Discs up to this radius (pixels) are cached; larger ones are painted directly.
  static constexpr double MaxRadius = 48;

  const Sprite& Get(const DiscKey& key);
  // Changes whenever sprites handed out earlier are dropped.
  uint64_t Generation() const { return generation_; }

 private:
  static constexpr size_t MaxEntries = 4096;
  std::unordered_map<DiscKey, Sprite, DiscKeyHash> sprites_;
  uint64_t generation_ = 1;
};

}  // namespace keldor
