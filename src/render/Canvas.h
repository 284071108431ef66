// The drawing surface of a view, as the rendering layer sees it: a box with a
// user coordinate scale, immediate drawing operations and a pen state that
// persists between calls and between ticks. The Qt canvas draws on an
// off-screen image; tests record the calls.
//
// Coordinates and radii are in scale units. Box and Circle fill with FillColor
// when FillStyle is Solid and only outline when it is Transparent.
#pragma once

#include <string_view>

#include "model/Colour.h"
#include "render/ViewState.h"

namespace keldor {

enum class FillStyle { Solid = 0, Transparent = 1 };

struct PenState {
  Colour ForeColor{};
  Colour FillColor{};
  FillStyle Fill = FillStyle::Solid;
  int DrawWidth = 1;
  int FontSize = 8;
  double CurrentX = 0;
  double CurrentY = 0;
};

class Canvas {
 public:
  virtual ~Canvas() = default;

  // The user scale: which rectangle of scale units the box shows.
  virtual void SetScale(const ViewScale& scale) = 0;
  // Clear to the background colour.
  virtual void Cls() = 0;
  virtual void Line(double x1, double y1, double x2, double y2, Colour colour) = 0;
  // Line with the box option: the rectangle with corners (x1, y1) and (x2, y2).
  virtual void Box(double x1, double y1, double x2, double y2, Colour colour) = 0;
  virtual void Circle(double x, double y, double radius, Colour colour) = 0;
  // Draw text at (CurrentX, CurrentY) in ForeColor at FontSize.
  virtual void Print(std::string_view text) = 0;

  PenState Pen;
};

}  // namespace keldor
