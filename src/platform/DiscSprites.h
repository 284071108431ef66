// Cached pictures of small circles (ant bodies, loads, food piles, nests), one
// per radius (to a quarter pixel), fill, outline colour and line width.
#pragma once

#include <QRgb>
#include <array>
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

 private:
  static constexpr size_t MaxEntries = 4096;
  // The last sprites used, by a cheap slot number: a frame asks for the same
  // few discs (an ant's three body circles, its map circle) tens of thousands
  // of times, and a slot compare is much cheaper than the map's hashing.
  struct RecentDisc {
    DiscKey Key;
    const Sprite* Found = nullptr;
  };
  static constexpr size_t RecentSlots = 64;
  static size_t RecentSlot(const DiscKey& key) {
    return (static_cast<size_t>(key.QuarterPixels) * 7 + key.Fill * 3 + key.Outline + static_cast<size_t>(key.LineWidth)) %
           RecentSlots;
  }

  std::unordered_map<DiscKey, Sprite, DiscKeyHash> sprites_;
  std::array<RecentDisc, RecentSlots> recent_{};
};

}  // namespace keldor
