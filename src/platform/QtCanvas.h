// The Qt canvas of a view: draws on an off-screen RGB32 image whose whole area
// shows the canvas's user scale rectangle. The image is in device pixels:
// width x height logical pixels times the device pixel ratio. Text sizes are
// in points (20 twips) on a 96 dpi screen (15 twips per logical pixel).
//
// Small circles and printed numbers are stamped from cached sprites (see
// Sprite, DiscSprites, TextSprites), boxes and axis-aligned lines are written
// straight into the image; only large circles and slanted lines go through
// QPainter. Shapes wholly off the image are skipped before any work.
#pragma once

#include <QImage>
#include <QRgb>
#include <array>
#include <bit>
#include <cstdint>

#include "render/ViewState.h"
#include "platform/DiscSprites.h"
#include "platform/TextSprites.h"
#include "render/Canvas.h"

namespace keldor {

inline constexpr double TwipsPerPoint = 20;

class QtCanvas : public Canvas {
 public:
  // A canvas of width x height logical pixels; its scale starts as the same
  // area in twips.
  QtCanvas(int width, int height, double devicePixelRatio = 1);

  void SetScale(const ViewScale& scale) override;
  void Cls() override;
  void Line(double x1, double y1, double x2, double y2, Colour colour) override;
  void Box(double x1, double y1, double x2, double y2, Colour colour) override;
  void Circle(double x, double y, double radius, Colour colour) override;
  void Print(std::string_view text) override;

  // The drawn frame, in device pixels.
  const QImage& Image() const { return image_; }
  double DevicePixelRatio() const { return devicePixelRatio_; }
  // New size in logical pixels; the image is cleared to the background.
  void Resize(int width, int height);

 private:
  double PixelX(double x) const { return (x - scale_.Left) * pixelsPerUnitX_; }
  double PixelY(double y) const { return (y - scale_.Top) * pixelsPerUnitY_; }
  // The pen's DrawWidth in device pixels, measured again only when it changes.
  int LineWidthPixels() {
    if (Pen.DrawWidth != lineWidthOfDrawWidth_) MeasureLineWidth();
    return lineWidthPixels_;
  }
  void MeasureLineWidth();
  // Points the direct pixel writes at the image's buffer (after it may have
  // been reallocated or detached from a copy).
  void TakeBuffer();
  // Sets pixel columns left..right of rows top..bottom (inclusive), clipped,
  // to an opaque value.
  void FillPixels(int left, int top, int right, int bottom, uint32_t value);
  // The sprite of a disc of the pen's fill with the given radius, line width
  // and outline colour.
  const Sprite& DiscSprite(double radiusPixels, int lineWidth, Colour outline) {
    const RecentDisc& recent = recentDiscs_[RecentDiscSlot(radiusPixels)];
    if (recent.RadiusPixels == radiusPixels && recent.FillColor == Pen.FillColor && recent.Outline == outline &&
        recent.Fill == Pen.Fill && recent.LineWidth == lineWidth) {
      return *recent.Found;
    }
    return FindDiscSprite(radiusPixels, lineWidth, outline);
  }
  // The disc from the sprite cache; it becomes its slot's recent disc.
  const Sprite& FindDiscSprite(double radiusPixels, int lineWidth, Colour outline);
  void PaintLargeCircle(double cx, double cy, double radius, QRgb outline);
  void PaintSlantedLine(double x1, double y1, double x2, double y2, QRgb colour);

  QImage image_;
  PixelBuffer buffer_;
  double devicePixelRatio_;
  ViewScale scale_;
  double pixelsPerUnitX_ = 1;
  double pixelsPerUnitY_ = 1;
  int lineWidthOfDrawWidth_ = 0;  // the DrawWidth lineWidthPixels_ was measured for
  int lineWidthPixels_ = 1;
  int fontPixelsOfFontSize_ = -1;  // the FontSize fontPixels_ was measured for
  int fontPixels_ = 0;
  DiscSprites discs_;
  // The discs drawn last, keyed by the call's own values: the same disc again
  // (an ant's three body circles, its map circle, tens of thousands a frame)
  // skips the colour conversions and the sprite map.
  struct RecentDisc {
    double RadiusPixels = -1;
    Colour FillColor{};
    Colour Outline{};
    FillStyle Fill = FillStyle::Solid;
    int LineWidth = 0;
    const Sprite* Found = nullptr;
  };
  static constexpr size_t RecentDiscSlots = 8;
  // Slots by the radius's leading fraction bits: an ant's body circles differ there.
  static size_t RecentDiscSlot(double radiusPixels) {
    return std::bit_cast<uint64_t>(radiusPixels) >> 49 & (RecentDiscSlots - 1);
  }
  std::array<RecentDisc, RecentDiscSlots> recentDiscs_{};
  TextSprites texts_;
};

}  // namespace keldor
