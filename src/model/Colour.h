// An RGB colour packed as red + 256 green + 65536 blue (0..16777215), the
// number the records, the views and the world state files hold.
#pragma once

#include <concepts>
#include <cstdint>
#include <utility>

namespace keldor {

class Colour {
 public:
  static constexpr uint32_t MaxPacked = 0xFFFFFF;

  // Black.
  constexpr Colour() = default;

  // Components outside 0..255 are held to the nearer end. Integers only, so a
  // fractional component cannot be truncated unnoticed.
  constexpr Colour(std::integral auto red, std::integral auto green, std::integral auto blue)
      : packed_(Component(red) + 256 * Component(green) + 65536 * Component(blue)) {}

  // The bits above the 24 colour bits are dropped.
  static constexpr Colour FromPacked(uint32_t packed) {
    Colour colour;
    colour.packed_ = packed & MaxPacked;
    return colour;
  }

  constexpr int Red() const { return static_cast<int>(packed_ & 0xFF); }
  constexpr int Green() const { return static_cast<int>((packed_ >> 8) & 0xFF); }
  constexpr int Blue() const { return static_cast<int>(packed_ >> 16); }
  constexpr uint32_t Packed() const { return packed_; }

  constexpr bool operator==(const Colour&) const = default;

 private:
  static constexpr uint32_t Component(std::integral auto value) {
    if (std::cmp_less_equal(value, 0)) return 0;
    if (std::cmp_greater_equal(value, 255)) return 255;
    return static_cast<uint32_t>(value);
  }

  uint32_t packed_ = 0;
};

}  // namespace keldor
