// The fixed colours of the two views.
#pragma once

#include "model/Colour.h"

namespace keldor {

inline constexpr Colour Black{0, 0, 0};
inline constexpr Colour NestGrey{50, 50, 50};
inline constexpr Colour FoodGreen{16, 152, 16};
inline constexpr Colour TextYellow{255, 255, 0};
inline constexpr Colour FrameRed{255, 0, 0};
inline constexpr Colour BorderBlue{0, 0, 255};
inline constexpr Colour ViewBackground{185, 172, 145};

}  // namespace keldor
