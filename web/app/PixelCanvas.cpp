#include "PixelCanvas.h"

#include <algorithm>
#include <cmath>

#include "render/ViewColours.h"

namespace keldor::web {

namespace {

// Twips per typographic point: a font size of 8 is 8 * 20 / 15 pixels high.
constexpr double TwipsPerPoint = 20;

// The pixel of a coordinate, floor(v + 0.5), held within int range for
// coordinates far outside any buffer.
int ToPixel(double v) {
  constexpr double Limit = 1e8;
  return static_cast<int>(std::floor(std::clamp(v + 0.5, -Limit, Limit)));
}

}  // namespace

PixelCanvas::PixelCanvas(int width, int height) { Resize(width, height); }

void PixelCanvas::Resize(int width, int height) {
  width_ = std::max(1, width);
  height_ = std::max(1, height);
  pixels_.assign(static_cast<size_t>(width_) * static_cast<size_t>(height_), PixelOf(ViewBackground));
  texts_.clear();
  SetScale({scale_.Left, scale_.Top, width_ * TwipsPerPixel, height_ * TwipsPerPixel});
}

void PixelCanvas::SetScale(const ViewScale& scale) {
  scale_ = scale;
  pixelsPerUnitX_ = scale.Width != 0 ? width_ / scale.Width : 0;
  pixelsPerUnitY_ = scale.Height != 0 ? height_ / scale.Height : 0;
}

void PixelCanvas::Cls() {
  std::fill(pixels_.begin(), pixels_.end(), PixelOf(ViewBackground));
  texts_.clear();
}

void PixelCanvas::Fill(int left, int top, int right, int bottom, uint32_t value) {
  left = std::max(left, 0);
  top = std::max(top, 0);
  right = std::min(right, width_ - 1);
  bottom = std::min(bottom, height_ - 1);
  for (int y = top; y <= bottom; ++y) {
    uint32_t* row = pixels_.data() + static_cast<size_t>(y) * static_cast<size_t>(width_);
    std::fill(row + left, row + right + 1, value);
  }
}

void PixelCanvas::Dot(int x, int y, int width, uint32_t value) { Fill(x, y, x + width - 1, y + width - 1, value); }

void PixelCanvas::Box(double x1, double y1, double x2, double y2, Colour colour) {
  const int left = ToPixel(std::min(PixelX(x1), PixelX(x2)));
  const int right = ToPixel(std::max(PixelX(x1), PixelX(x2)));
  const int top = ToPixel(std::min(PixelY(y1), PixelY(y2)));
  const int bottom = ToPixel(std::max(PixelY(y1), PixelY(y2)));
  if (right < 0 || bottom < 0 || left >= width_ || top >= height_) return;
  const int w = LineWidthPixels();
  const uint32_t outline = PixelOf(colour);
  if (Pen.Fill == FillStyle::Solid) Fill(left, top, right, bottom, PixelOf(Pen.FillColor));
  Fill(left, top, right, top + w - 1, outline);
  Fill(left, bottom - w + 1, right, bottom, outline);
  Fill(left, top, left + w - 1, bottom, outline);
  Fill(right - w + 1, top, right, bottom, outline);
}

void PixelCanvas::Line(double x1, double y1, double x2, double y2, Colour colour) {
  // Bresenham's line between the two end pixels, each point a square of the
  // line width.
  int x = ToPixel(PixelX(x1));
  int y = ToPixel(PixelY(y1));
  const int endX = ToPixel(PixelX(x2));
  const int endY = ToPixel(PixelY(y2));
  const int w = LineWidthPixels();
  if (std::max(x, endX) < -w || std::max(y, endY) < -w || std::min(x, endX) >= width_ ||
      std::min(y, endY) >= height_) {
    return;
  }
  const uint32_t value = PixelOf(colour);
  if (x == endX || y == endY) {
    Fill(std::min(x, endX), std::min(y, endY), std::max(x, endX) + w - 1, std::max(y, endY) + w - 1, value);
    return;
  }
  const int dx = std::abs(endX - x);
  const int dy = -std::abs(endY - y);
  const int stepX = x < endX ? 1 : -1;
  const int stepY = y < endY ? 1 : -1;
  int error = dx + dy;
  for (;;) {
    Dot(x, y, w, value);
    if (x == endX && y == endY) return;
    const int twice = 2 * error;
    if (twice >= dy) error += dy, x += stepX;
    if (twice <= dx) error += dx, y += stepY;
  }
}

void PixelCanvas::Circle(double x, double y, double radius, Colour colour) {
  // Each row of the disc is one span; the outline is the ring between the
  // radius and the radius less the line width.
  const int cx = ToPixel(PixelX(x));
  const int cy = ToPixel(PixelY(y));
  const double r = std::abs(radius) * pixelsPerUnitX_;
  const int reach = static_cast<int>(std::ceil(r));
  if (cx + reach < 0 || cy + reach < 0 || cx - reach >= width_ || cy - reach >= height_) return;
  const double inner = std::max(0.0, r - LineWidthPixels());
  const uint32_t outline = PixelOf(colour);
  const bool filled = Pen.Fill == FillStyle::Solid;
  const uint32_t fill = PixelOf(Pen.FillColor);
  for (int dy = -reach; dy <= reach; ++dy) {
    const int row = cy + dy;
    if (row < 0 || row >= height_) continue;
    const double outerSquare = r * r + r - static_cast<double>(dy) * dy;
    if (outerSquare < 0) continue;
    const int outerHalf = static_cast<int>(std::sqrt(outerSquare));
    const double innerSquare = inner * inner + inner - static_cast<double>(dy) * dy;
    if (innerSquare < 0 || inner == 0) {
      Fill(cx - outerHalf, row, cx + outerHalf, row, outline);
      continue;
    }
    const int innerHalf = static_cast<int>(std::sqrt(innerSquare));
    Fill(cx - outerHalf, row, cx - innerHalf - 1, row, outline);
    Fill(cx + innerHalf + 1, row, cx + outerHalf, row, outline);
    if (filled) Fill(cx - innerHalf, row, cx + innerHalf, row, fill);
  }
}

void PixelCanvas::Print(std::string_view text) {
  if (text.empty()) return;
  const int x = ToPixel(PixelX(Pen.CurrentX));
  const int y = ToPixel(PixelY(Pen.CurrentY));
  const int size = ToPixel(Pen.FontSize * TwipsPerPoint / TwipsPerPixel);
  if (x >= width_ || y >= height_ || x + size * static_cast<int>(text.size()) < 0 || y + size < 0) return;
  texts_.push_back({x, y, size, Pen.ForeColor, std::string(text)});
}

}  // namespace keldor::web
