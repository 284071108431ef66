// A canvas that draws nothing and records every drawing call with the pen
// state at that moment, so tests can check what a view was asked to draw and
// in which order. The last scale set is kept in Scale.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "render/Canvas.h"

namespace keldor::testing {

enum class CanvasOp { Cls, Line, Box, Circle, Print };

struct CanvasCall {
  CanvasOp Op = CanvasOp::Cls;
  double X1 = 0;  // Line/Box first corner; Circle centre
  double Y1 = 0;
  double X2 = 0;  // Line/Box second corner; Circle radius in X2
  double Y2 = 0;
  keldor::Colour Colour{};
  std::string Text;  // Print
  PenState Pen;      // the pen when the call was made
};

class RecordingCanvas : public Canvas {
 public:
  void SetScale(const ViewScale& scale) override { Scale = scale; }
  void Cls() override { Record(CanvasOp::Cls); }
  void Line(double x1, double y1, double x2, double y2, Colour colour) override {
    Record(CanvasOp::Line, x1, y1, x2, y2, colour);
  }
  void Box(double x1, double y1, double x2, double y2, Colour colour) override {
    Record(CanvasOp::Box, x1, y1, x2, y2, colour);
  }
  void Circle(double x, double y, double radius, Colour colour) override {
    Record(CanvasOp::Circle, x, y, radius, 0, colour);
  }
  void Print(std::string_view text) override { Record(CanvasOp::Print, Pen.CurrentX, Pen.CurrentY, 0, 0, {}, text); }

  // How many calls of one kind were recorded.
  size_t Count(CanvasOp op) const {
    return static_cast<size_t>(std::count_if(Calls.begin(), Calls.end(), [op](auto& c) { return c.Op == op; }));
  }

  std::vector<CanvasCall> Calls;
  ViewScale Scale;

 private:
  void Record(CanvasOp op, double x1 = 0, double y1 = 0, double x2 = 0, double y2 = 0, Colour colour = {},
              std::string_view text = {}) {
    Calls.push_back(CanvasCall{op, x1, y1, x2, y2, colour, std::string(text), Pen});
  }
};

}  // namespace keldor::testing
