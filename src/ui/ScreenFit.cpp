#include "ui/ScreenFit.h"

#include <QScreen>
#include <QWidget>

namespace keldor {

QSize AvailableSize(const QWidget& window) {
  const QScreen* shown = window.screen();
  if (shown == nullptr) return QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  // The frame lies outside the window's size; before the first show it is
  // not known, and a title bar's worth is kept free.
  const QSize frame = window.isVisible() ? window.frameGeometry().size() - window.size()
                                         : QSize(0, window.fontMetrics().height() * 2);
  return shown->availableGeometry().size() - frame;
}

}  // namespace keldor
