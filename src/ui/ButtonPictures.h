// The pictures on the main window's buttons and the application icon, drawn
// with QPainter so that the program needs no image files.
#pragma once

#include <QIcon>
#include <QPixmap>

namespace keldor {

enum class ButtonPicture {
  Start,
  Play,
  Pause,
  ZoomIn,
  ZoomOut,
  Info,
  Odor,
  Ants,
  NoTool,
  FoodTool,
  WallTool,
  RemoveAntsTool,
  NestTool,
};

QIcon ButtonIcon(ButtonPicture picture);

// The application icon at a given size in pixels.
QPixmap AppIconPixmap(int size);
QIcon AppIcon();

}  // namespace keldor
