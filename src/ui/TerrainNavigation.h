// The map-like navigation of the terrain view: the mouse wheel zooms in and
// out one zoom step a notch, the arrow keys scroll one cell. Both call back
// into the window, which runs the same viewport commands as the zoom buttons
// and the scroll bars.
#pragma once

#include <QObject>
#include <functional>

class QWidget;

namespace keldor {

class TerrainNavigation : public QObject {
  Q_OBJECT

 public:
  // zoom(+1) zooms in one step, zoom(-1) out; scroll(columns, rows).
  TerrainNavigation(QWidget* terrain, QWidget* window, std::function<void(int)> zoom,
                    std::function<void(int, int)> scroll);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::function<void(int)> zoom_;
  std::function<void(int, int)> scroll_;
  int wheelAngle_ = 0;  // eighths of a degree not yet turned into a step
};

}  // namespace keldor
