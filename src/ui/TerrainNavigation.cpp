#include "ui/TerrainNavigation.h"

#include <QAction>
#include <QWheelEvent>
#include <QWidget>

namespace keldor {

namespace {

// One notch of a common mouse wheel, in eighths of a degree.
constexpr int WheelNotch = 120;

}  // namespace

TerrainNavigation::TerrainNavigation(QWidget* terrain, QWidget* window, std::function<void(int)> zoom,
                                     std::function<void(int, int)> scroll)
    : QObject(window), zoom_(std::move(zoom)), scroll_(std::move(scroll)) {
  terrain->installEventFilter(this);
  struct Arrow {
    const char* name;
    Qt::Key key;
    int columns, rows;
  };
  const Arrow arrows[] = {{"actScrollLeft", Qt::Key_Left, -1, 0},
                          {"actScrollRight", Qt::Key_Right, 1, 0},
                          {"actScrollUp", Qt::Key_Up, 0, -1},
                          {"actScrollDown", Qt::Key_Down, 0, 1}};
  for (const Arrow& arrow : arrows) {
    auto* action = new QAction(window);
    action->setObjectName(arrow.name);
    action->setShortcut(arrow.key);
    action->setAutoRepeat(true);
    connect(action, &QAction::triggered, this, [this, arrow] { scroll_(arrow.columns, arrow.rows); });
    window->addAction(action);
  }
}

bool TerrainNavigation::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Wheel) return QObject::eventFilter(watched, event);
  // A touchpad sends small turns: they add up to whole steps.
  wheelAngle_ += static_cast<QWheelEvent*>(event)->angleDelta().y();
  const int steps = wheelAngle_ / WheelNotch;
  wheelAngle_ -= steps * WheelNotch;
  if (steps != 0) zoom_(steps);
  return true;
}

}  // namespace keldor
