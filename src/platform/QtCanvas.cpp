#include "platform/QtCanvas.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <cstdint>


namespace keldor {

namespace {

const QRgb Background = qRgb(185, 172, 145);

// Pixel coordinates far outside any image, held within int range.
int ToPixelIndex(double v) { return static_cast<int>(std::clamp(std::floor(v + 0.5), -1e8, 1e8)); }

}  // namespace

QtCanvas::QtCanvas(int width, int height, double devicePixelRatio) : devicePixelRatio_(devicePixelRatio) {
  Resize(width, height);
}

void QtCanvas::Resize(int width, int height) {
  image_ = QImage(std::max(1, static_cast<int>(std::lround(width * devicePixelRatio_))),
                  std::max(1, static_cast<int>(std::lround(height * devicePixelRatio_))), QImage::Format_RGB32);
  image_.fill(Background);
  SetScale({scale_.Left, scale_.Top, width * TwipsPerPixel, height * TwipsPerPixel});
}

QRgb QtCanvas::ToQRgb(double colour) {
  const auto value = static_cast<uint32_t>(static_cast<int64_t>(colour) & 0xffffff);
  return qRgb(static_cast<int>(value & 0xff), static_cast<int>((value >> 8) & 0xff),
              static_cast<int>((value >> 16) & 0xff));
}

void QtCanvas::SetScale(const ViewScale& scale) {
  scale_ = scale;
  pixelsPerUnitX_ = scale.Width != 0 ? image_.width() / scale.Width : 0;
  pixelsPerUnitY_ = scale.Height != 0 ? image_.height() / scale.Height : 0;
}

void QtCanvas::Cls() { image_.fill(Background); }

int QtCanvas::LineWidthPixels() const {
  return std::max(1, static_cast<int>(std::lround(Pen.DrawWidth * devicePixelRatio_)));
}

void QtCanvas::FillPixels(double x0, double y0, double x1, double y1, QRgb colour) {
  const int left = std::max(0, ToPixelIndex(std::min(x0, x1)));
  const int right = std::min(image_.width() - 1, ToPixelIndex(std::max(x0, x1)));
  const int top = std::max(0, ToPixelIndex(std::min(y0, y1)));
  const int bottom = std::min(image_.height() - 1, ToPixelIndex(std::max(y0, y1)));
  if (left > right || top > bottom) return;
  uchar* bits = image_.bits();
  const qsizetype stride = image_.bytesPerLine();
  const uint32_t value = colour | 0xff000000u;
  for (int y = top; y <= bottom; ++y) {
    auto* row = reinterpret_cast<uint32_t*>(bits + y * stride);
    std::fill(row + left, row + right + 1, value);
  }
}

void QtCanvas::Box(double x1, double y1, double x2, double y2, double colour) {
  const double left = std::min(PixelX(x1), PixelX(x2));
  const double right = std::max(PixelX(x1), PixelX(x2));
  const double top = std::min(PixelY(y1), PixelY(y2));
  const double bottom = std::max(PixelY(y1), PixelY(y2));
  if (right < -0.5 || bottom < -0.5 || left > image_.width() || top > image_.height()) return;
  if (Pen.Fill == FillStyle::Solid) FillPixels(left, top, right, bottom, ToQRgb(Pen.FillColor));
  const QRgb outline = ToQRgb(colour);
  const int width = LineWidthPixels() - 1;
  FillPixels(left, top, right, top + width, outline);
  FillPixels(left, bottom - width, right, bottom, outline);
  FillPixels(left, top, left + width, bottom, outline);
  FillPixels(right - width, top, right, bottom, outline);
}

void QtCanvas::Line(double x1, double y1, double x2, double y2, double colour) {
  const QRgb rgb = ToQRgb(colour);
  const double px1 = PixelX(x1), py1 = PixelY(y1), px2 = PixelX(x2), py2 = PixelY(y2);
  const int width = LineWidthPixels() - 1;
  if (py1 == py2) {
    FillPixels(px1, py1, px2, py1 + width, rgb);
  } else if (px1 == px2) {
    FillPixels(px1, py1, px1 + width, py2, rgb);
  } else {
    PaintSlantedLine(px1, py1, px2, py2, rgb);
  }
}

void QtCanvas::PaintSlantedLine(double x1, double y1, double x2, double y2, QRgb colour) {
  if (std::max(x1, x2) < 0 || std::max(y1, y2) < 0 || std::min(x1, x2) > image_.width() ||
      std::min(y1, y2) > image_.height()) {
    return;
  }
  QPainter painter(&image_);
  painter.setPen(QPen(QColor(colour), LineWidthPixels()));
  painter.drawLine(QPointF(x1, y1), QPointF(x2, y2));
}

void QtCanvas::Circle(double x, double y, double radius, double colour) {
  const double cx = PixelX(x);
  const double cy = PixelY(y);
  const double r = std::abs(radius) * pixelsPerUnitX_;
  const double reach = r + LineWidthPixels();
  if (cx + reach < 0 || cy + reach < 0 || cx - reach > image_.width() || cy - reach > image_.height()) return;
  const QRgb outline = ToQRgb(colour);
  if (r > DiscSprites::MaxRadius) {
    PaintLargeCircle(cx, cy, r, outline);
    return;
  }
  const DiscKey key{static_cast<int>(std::lround(r * 4)), LineWidthPixels(), Pen.Fill == FillStyle::Solid,
                    ToQRgb(Pen.FillColor), outline};
  discs_.Get(key).BlendOnto(image_, ToPixelIndex(cx - 0.5), ToPixelIndex(cy - 0.5));
}

void QtCanvas::PaintLargeCircle(double cx, double cy, double radius, QRgb outline) {
  QPainter painter(&image_);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(outline), LineWidthPixels()));
  painter.setBrush(Pen.Fill == FillStyle::Solid ? QBrush(QColor(ToQRgb(Pen.FillColor))) : Qt::NoBrush);
  painter.drawEllipse(QPointF(cx, cy), radius, radius);
}

void QtCanvas::Print(std::string_view text) {
  if (text.empty()) return;
  const int x = ToPixelIndex(PixelX(Pen.CurrentX));
  const int y = ToPixelIndex(PixelY(Pen.CurrentY));
  if (x >= image_.width() || y >= image_.height()) return;
  const int pixelSize = static_cast<int>(std::lround(Pen.FontSize * TwipsPerPoint / TwipsPerPixel * devicePixelRatio_));
  texts_.Get(text, ToQRgb(Pen.ForeColor), pixelSize).BlendOnto(image_, x, y);
}

}  // namespace keldor
