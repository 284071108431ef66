#include "ui/TwipScale.h"

#include <QWidget>
#include <cmath>

namespace keldor {

namespace {
constexpr double TwipsPerInch = 1440;
}

TwipScale TwipScale::ForWidget(const QWidget& widget) {
  const int dpi = widget.logicalDpiX();
  return TwipScale(dpi > 0 ? TwipsPerInch / dpi : 15);
}

int TwipScale::Pixels(double twips) const { return static_cast<int>(std::lround(twips / twipsPerPixel_)); }

QRect TwipScale::Rect(const TwipRect& r) const {
  return QRect(Pixels(r.Left), Pixels(r.Top), Pixels(r.Width), Pixels(r.Height));
}

}  // namespace keldor
