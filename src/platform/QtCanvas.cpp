#include "platform/QtCanvas.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <cstdint>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "platform/QtColour.h"
#include "render/ViewColours.h"

namespace keldor {

namespace {

constexpr QRgb Background = ToQRgb(ViewBackground);

// Sets count pixels to value (none if count is 0 or less), four at a time
// where the processor allows.
void FillRow(uint32_t* row, int count, uint32_t value) {
  int i = 0;
#if defined(__SSE2__)
  const __m128i four = _mm_set1_epi32(static_cast<int>(value));
  for (; i + 4 <= count; i += 4) _mm_storeu_si128(reinterpret_cast<__m128i*>(row + i), four);
#endif
  for (; i < count; ++i) row[i] = value;
}

// The pixel index of a coordinate, Floor(v + 0.5), held within int range for
// coordinates far outside any image. Truncation and a correction below zero
// give the floor without a library call: a few hundred thousand a frame.
int ToPixelIndex(double v) {
  constexpr double Limit = 1e8;
  const double t = v + 0.5;
  if (!(t > -Limit)) return -static_cast<int>(Limit);
  if (t >= Limit) return static_cast<int>(Limit);
  const int truncated = static_cast<int>(t);
  return static_cast<double>(truncated) > t ? truncated - 1 : truncated;
}

}  // namespace

QtCanvas::QtCanvas(int width, int height, double devicePixelRatio) : devicePixelRatio_(devicePixelRatio) {
  Resize(width, height);
}

void QtCanvas::Resize(int width, int height) {
  image_ = QImage(std::max(1, static_cast<int>(std::lround(width * devicePixelRatio_))),
                  std::max(1, static_cast<int>(std::lround(height * devicePixelRatio_))), QImage::Format_RGB32);
  image_.fill(Background);
  TakeBuffer();
  buffer_.Written = {};
  SetScale({scale_.Left, scale_.Top, width * TwipsPerPixel, height * TwipsPerPixel});
}

void QtCanvas::SetScale(const ViewScale& scale) {
  scale_ = scale;
  pixelsPerUnitX_ = scale.Width != 0 ? buffer_.Width / scale.Width : 0;
  pixelsPerUnitY_ = scale.Height != 0 ? buffer_.Height / scale.Height : 0;
}

void QtCanvas::TakeBuffer() {
  buffer_.Pixels = reinterpret_cast<uint32_t*>(image_.bits());
  buffer_.PixelsPerRow = image_.bytesPerLine() / static_cast<qsizetype>(sizeof(uint32_t));
  buffer_.Width = image_.width();
  buffer_.Height = image_.height();
}

void QtCanvas::Cls() {
  TakeBuffer();
  // Outside the written area the image is still all background.
  const PixelArea& written = buffer_.Written;
  const int firstColumn = std::max(written.Left, 0);
  const int count = std::min(written.Right, buffer_.Width - 1) - firstColumn + 1;
  const int lastRow = std::min(written.Bottom, buffer_.Height - 1);
  for (int y = std::max(written.Top, 0); y <= lastRow; ++y) {
    FillRow(buffer_.Pixels + y * buffer_.PixelsPerRow + firstColumn, count, Background | 0xff000000u);
  }
  buffer_.Written = {};
}

void QtCanvas::MeasureLineWidth() {
  lineWidthOfDrawWidth_ = Pen.DrawWidth;
  lineWidthPixels_ = std::max(1, ToPixelIndex(Pen.DrawWidth * devicePixelRatio_));
}

void QtCanvas::FillPixels(int left, int top, int right, int bottom, uint32_t value) {
  const int firstColumn = std::max(left, 0);
  const int lastColumn = std::min(right, buffer_.Width - 1);
  const int firstRow = std::max(top, 0);
  const int lastRow = std::min(bottom, buffer_.Height - 1);
  if (firstColumn > lastColumn || firstRow > lastRow) return;
  buffer_.MarkWritten(firstColumn, firstRow, lastColumn, lastRow);
  for (int y = firstRow; y <= lastRow; ++y) {
    FillRow(buffer_.Pixels + y * buffer_.PixelsPerRow + firstColumn, lastColumn - firstColumn + 1, value);
  }
}

void QtCanvas::Box(double x1, double y1, double x2, double y2, Colour colour) {
  const int left = ToPixelIndex(std::min(PixelX(x1), PixelX(x2)));
  const int right = ToPixelIndex(std::max(PixelX(x1), PixelX(x2)));
  const int top = ToPixelIndex(std::min(PixelY(y1), PixelY(y2)));
  const int bottom = ToPixelIndex(std::max(PixelY(y1), PixelY(y2)));
  if (right < 0 || bottom < 0 || left >= buffer_.Width || top >= buffer_.Height) return;
  const int width = LineWidthPixels();
  const uint32_t outline = ToQRgb(colour) | 0xff000000u;
  const bool filled = Pen.Fill == FillStyle::Solid;
  const uint32_t fill = ToQRgb(Pen.FillColor) | 0xff000000u;
  const int innerLeft = left + width;
  const int innerRight = right - width;
  const int innerTop = top + width;
  const int innerBottom = bottom - width;
  if (innerLeft > innerRight || innerTop > innerBottom || (filled && fill == outline)) {
    // All outline, or inside and outline alike (every cell on the mini-map):
    // one solid rectangle.
    FillPixels(left, top, right, bottom, outline);
    return;
  }
  // The outline's four sides and the inside, each pixel written once.
  FillPixels(left, top, right, innerTop - 1, outline);
  FillPixels(left, innerTop, innerLeft - 1, innerBottom, outline);
  if (filled) FillPixels(innerLeft, innerTop, innerRight, innerBottom, fill);
  FillPixels(innerRight + 1, innerTop, right, innerBottom, outline);
  FillPixels(left, innerBottom + 1, right, bottom, outline);
}

void QtCanvas::Line(double x1, double y1, double x2, double y2, Colour colour) {
  const double px1 = PixelX(x1), py1 = PixelY(y1), px2 = PixelX(x2), py2 = PixelY(y2);
  const bool horizontal = py1 == py2;
  const bool vertical = px1 == px2;
  if (!horizontal && !vertical) {
    PaintSlantedLine(px1, py1, px2, py2, ToQRgb(colour));
    return;
  }
  // A straight line is a box one line width across, from its first pixel to its last.
  const int extra = LineWidthPixels() - 1;
  const int left = ToPixelIndex(std::min(px1, px2));
  const int right = vertical ? left + extra : ToPixelIndex(std::max(px1, px2));
  const int top = ToPixelIndex(std::min(py1, py2));
  const int bottom = horizontal ? top + extra : ToPixelIndex(std::max(py1, py2));
  FillPixels(left, top, right, bottom, ToQRgb(colour) | 0xff000000u);
}

void QtCanvas::PaintSlantedLine(double x1, double y1, double x2, double y2, QRgb colour) {
  if (std::max(x1, x2) < 0 || std::max(y1, y2) < 0 || std::min(x1, x2) > buffer_.Width ||
      std::min(y1, y2) > buffer_.Height) {
    return;
  }
  QPainter painter(&image_);
  painter.setPen(QPen(QColor(colour), LineWidthPixels()));
  painter.drawLine(QPointF(x1, y1), QPointF(x2, y2));
  painter.end();
  TakeBuffer();
  buffer_.MarkWritten(0, 0, buffer_.Width - 1, buffer_.Height - 1);
}

void QtCanvas::Circle(double x, double y, double radius, Colour colour) {
  const double cx = PixelX(x);
  const double cy = PixelY(y);
  const double r = std::abs(radius) * pixelsPerUnitX_;
  const int lineWidth = LineWidthPixels();
  const double reach = r + lineWidth;
  if (cx + reach < 0 || cy + reach < 0 || cx - reach > buffer_.Width || cy - reach > buffer_.Height) return;
  if (r > DiscSprites::MaxRadius) {
    PaintLargeCircle(cx, cy, r, ToQRgb(colour));
    return;
  }
  // The centre snaps to a pixel as a box corner does, so a disc sits on the
  // grid lines of the cell box drawn around it.
  DiscSprite(r, lineWidth, colour).StampOnto(buffer_, ToPixelIndex(cx), ToPixelIndex(cy));
}

const Sprite& QtCanvas::FindDiscSprite(double radiusPixels, int lineWidth, Colour outline) {
  const DiscKey key{ToPixelIndex(radiusPixels * 4), lineWidth, Pen.Fill == FillStyle::Solid, ToQRgb(Pen.FillColor),
                    ToQRgb(outline)};
  const uint64_t generation = discs_.Generation();
  const Sprite& found = discs_.Get(key);
  if (discs_.Generation() != generation) recentDiscs_.fill({});  // their sprites were dropped
  recentDiscs_[RecentDiscSlot(radiusPixels)] = {radiusPixels, Pen.FillColor, outline, Pen.Fill, lineWidth, &found};
  return found;
}

void QtCanvas::PaintLargeCircle(double cx, double cy, double radius, QRgb outline) {
  // Without anti-aliasing, like the cached discs and the boxes; pixel i of a
  // box covers coordinate i, which QPainter places at the pixel's centre.
  QPainter painter(&image_);
  painter.setPen(QPen(QColor(outline), LineWidthPixels()));
  painter.setBrush(Pen.Fill == FillStyle::Solid ? QBrush(ToQColor(Pen.FillColor)) : Qt::NoBrush);
  painter.drawEllipse(QPointF(cx + 0.5, cy + 0.5), radius, radius);
  painter.end();
  TakeBuffer();
  buffer_.MarkWritten(0, 0, buffer_.Width - 1, buffer_.Height - 1);
}

void QtCanvas::Print(std::string_view text) {
  if (text.empty()) return;
  const int x = ToPixelIndex(PixelX(Pen.CurrentX));
  const int y = ToPixelIndex(PixelY(Pen.CurrentY));
  if (x >= buffer_.Width || y >= buffer_.Height) return;
  if (Pen.FontSize != fontPixelsOfFontSize_) {
    fontPixelsOfFontSize_ = Pen.FontSize;
    fontPixels_ = ToPixelIndex(Pen.FontSize * TwipsPerPoint / TwipsPerPixel * devicePixelRatio_);
  }
  texts_.Get(text, ToQRgb(Pen.ForeColor), fontPixels_).StampOnto(buffer_, x, y);
}

}  // namespace keldor
