// The fixed colours of the two views.
#pragma once

#include "model/Numeric.h"

namespace keldor {

inline const double Black = Rgb(0, 0, 0);
inline const double NestGrey = Rgb(50, 50, 50);
inline const double FoodGreen = Rgb(16, 152, 16);
inline const double TextYellow = Rgb(255, 255, 0);
inline const double FrameRed = Rgb(255, 0, 0);
inline const double BorderBlue = Rgb(0, 0, 255);
inline const double ViewBackground = Rgb(185, 172, 145);

}  // namespace keldor
