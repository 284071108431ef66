// A Colour as Qt takes it: an opaque QRgb or QColor.
#pragma once

#include <QColor>

#include "model/Colour.h"

namespace keldor {

inline constexpr QRgb ToQRgb(Colour colour) { return qRgb(colour.Red(), colour.Green(), colour.Blue()); }

inline QColor ToQColor(Colour colour) { return QColor(colour.Red(), colour.Green(), colour.Blue()); }

}  // namespace keldor
