// A canvas on a pixel buffer in the byte order of an HTML canvas's ImageData
// (red, green, blue, alpha), which the page copies onto its <canvas> with
// putImageData after each drawn frame. Text is not rasterised here: each
// Print is kept as a TextItem, and the page writes them over the pixels with
// the browser's own font (fillText).
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "render/Canvas.h"

namespace keldor::web {

struct TextItem {
  int X = 0;  // top-left corner, pixels
  int Y = 0;
  int SizePixels = 0;
  Colour Ink;
  std::string Text;
};

class PixelCanvas : public Canvas {
 public:
  PixelCanvas(int width, int height);

  // Resizes the buffer (clearing it); the scale shows width x height pixels
  // of terrain units, 15 to a pixel, from the scale's corner as it was.
  void Resize(int width, int height);

  void SetScale(const ViewScale& scale) override;
  void Cls() override;
  void Line(double x1, double y1, double x2, double y2, Colour colour) override;
  void Box(double x1, double y1, double x2, double y2, Colour colour) override;
  void Circle(double x, double y, double radius, Colour colour) override;
  void Print(std::string_view text) override;

  int Width() const { return width_; }
  int Height() const { return height_; }
  const uint32_t* Pixels() const { return pixels_.data(); }
  const std::vector<TextItem>& Texts() const { return texts_; }

 private:
  double PixelX(double x) const { return (x - scale_.Left) * pixelsPerUnitX_; }
  double PixelY(double y) const { return (y - scale_.Top) * pixelsPerUnitY_; }
  int LineWidthPixels() const { return Pen.DrawWidth < 1 ? 1 : Pen.DrawWidth; }
  void Fill(int left, int top, int right, int bottom, uint32_t value);
  void Dot(int x, int y, int width, uint32_t value);

  int width_ = 0;
  int height_ = 0;
  std::vector<uint32_t> pixels_;
  std::vector<TextItem> texts_;
  ViewScale scale_;
  double pixelsPerUnitX_ = 0;
  double pixelsPerUnitY_ = 0;
};

// Colour as a pixel of the buffer: opaque, red in the lowest byte.
inline uint32_t PixelOf(Colour colour) { return colour.Packed() | 0xff000000u; }

}  // namespace keldor::web
