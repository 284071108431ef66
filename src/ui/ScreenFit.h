// The largest size a top-level window may take on its screen: the screen's
// available area (without panels and docks) less the window's frame.
#pragma once

#include <QSize>

class QWidget;

namespace keldor {

QSize AvailableSize(const QWidget& window);

}  // namespace keldor
