// Twips to screen pixels and back: 1440 twips per logical inch, so 15 twips
// per pixel at 96 dpi. High-dpi screens keep logical pixels; the canvases
// multiply by the device pixel ratio themselves.
#pragma once

#include <QRect>

#include "window/WindowLayout.h"

class QWidget;

namespace keldor {

class TwipScale {
 public:
  explicit TwipScale(double twipsPerPixel = 15) : twipsPerPixel_(twipsPerPixel) {}
  // The scale of the screen the widget is on.
  static TwipScale ForWidget(const QWidget& widget);

  double TwipsPerPixel() const { return twipsPerPixel_; }
  int Pixels(double twips) const;
  double Twips(double pixels) const { return pixels * twipsPerPixel_; }
  QRect Rect(const TwipRect& r) const;

 private:
  double twipsPerPixel_;
};

}  // namespace keldor
