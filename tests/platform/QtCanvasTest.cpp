#include <gtest/gtest.h>

#include "model/Numeric.h"
#include "platform/FrameImage.h"
#include "platform/QtCanvas.h"

namespace keldor {
namespace {

const QRgb Background = qRgb(185, 172, 145);
const double Red = Rgb(255, 0, 0);
const double Blue = Rgb(0, 0, 255);

QRgb Pixel(const QtCanvas& canvas, int x, int y) { return canvas.Image().pixel(x, y) | 0xff000000u; }

// Leftmost and rightmost non-background pixel of row y.
std::pair<int, int> InkedSpan(const QtCanvas& canvas, int y) {
  int first = -1, last = -1;
  for (int x = 0; x < canvas.Image().width(); ++x) {
    if (Pixel(canvas, x, y) != Background) {
      if (first < 0) first = x;
      last = x;
    }
  }
  return {first, last};
}

TEST(QtCanvasTest, ClearsToTheBackgroundAtEverySize) {
  QtCanvas canvas(40, 30);
  EXPECT_EQ(canvas.Image().size(), QSize(40, 30));
  canvas.Pen.FillColor = Red;
  canvas.Box(0, 0, 300, 300, Red);
  canvas.Cls();
  for (int y = 0; y < 30; y += 7) {
    for (int x = 0; x < 40; x += 7) EXPECT_EQ(Pixel(canvas, x, y), Background);
  }
  canvas.Resize(64, 48);
  EXPECT_EQ(canvas.Image().size(), QSize(64, 48));
  EXPECT_EQ(Pixel(canvas, 63, 47), Background);
}

TEST(QtCanvasTest, FilledBoxLandsWhereTheScaleSays) {
  QtCanvas canvas(100, 100);
  canvas.SetScale({1000, 2000, 1500, 1500});  // 15 units per pixel
  canvas.Pen.FillColor = Blue;
  canvas.Box(1000 + 150, 2000 + 300, 1000 + 450, 2000 + 600, Red);  // pixels 10..30 by 20..40
  EXPECT_EQ(Pixel(canvas, 20, 30), qRgb(0, 0, 255));
  EXPECT_EQ(Pixel(canvas, 10, 30), qRgb(255, 0, 0));
  EXPECT_EQ(Pixel(canvas, 30, 30), qRgb(255, 0, 0));
  EXPECT_EQ(Pixel(canvas, 20, 20), qRgb(255, 0, 0));
  EXPECT_EQ(Pixel(canvas, 20, 40), qRgb(255, 0, 0));
  EXPECT_EQ(Pixel(canvas, 9, 30), Background);
  EXPECT_EQ(Pixel(canvas, 31, 30), Background);
  EXPECT_EQ(Pixel(canvas, 20, 41), Background);

  canvas.Cls();
  canvas.Pen.Fill = FillStyle::Transparent;
  canvas.Pen.DrawWidth = 2;
  canvas.Box(1000 + 150, 2000 + 300, 1000 + 450, 2000 + 600, Red);
  EXPECT_EQ(Pixel(canvas, 20, 30), Background);
  EXPECT_EQ(Pixel(canvas, 11, 30), qRgb(255, 0, 0));  // two pixels wide
  EXPECT_EQ(Pixel(canvas, 12, 30), Background);
}

TEST(QtCanvasTest, HighDpiCanvasDoublesThePixels) {
  QtCanvas canvas(50, 40, 2);
  EXPECT_EQ(canvas.Image().size(), QSize(100, 80));
  canvas.Pen.FillColor = Blue;
  canvas.Box(150, 300, 450, 600, Red);  // logical 10..30 by 20..40
  EXPECT_EQ(Pixel(canvas, 40, 60), qRgb(0, 0, 255));
  EXPECT_EQ(Pixel(canvas, 19, 60), Background);
  EXPECT_EQ(Pixel(canvas, 20, 60), qRgb(255, 0, 0));
  EXPECT_EQ(Pixel(canvas, 61, 60), Background);
}

TEST(QtCanvasTest, CircleCentreAndRadiusFollowTheScale) {
  for (double radiusPixels : {3.0, 10.0, 70.0}) {  // cached sprites and painted discs
    QtCanvas canvas(200, 200);
    canvas.SetScale({0, 0, 2000, 2000});  // 10 units per pixel
    canvas.Pen.FillColor = Blue;
    canvas.Circle(1000, 1000, radiusPixels * 10, Red);
    EXPECT_EQ(Pixel(canvas, 100, 100), qRgb(0, 0, 255)) << radiusPixels;
    const auto [first, last] = InkedSpan(canvas, 100);
    EXPECT_NEAR(first, 100 - radiusPixels, 1.5) << radiusPixels;
    EXPECT_NEAR(last, 100 + radiusPixels, 1.5) << radiusPixels;
    EXPECT_EQ(Pixel(canvas, 100, static_cast<int>(100 - radiusPixels - 3)), Background);
  }
}

TEST(QtCanvasTest, TransparentCircleIsOnlyItsOutline) {
  QtCanvas canvas(100, 100);
  canvas.SetScale({0, 0, 100, 100});
  canvas.Pen.Fill = FillStyle::Transparent;
  canvas.Circle(50, 50, 20, Red);
  EXPECT_EQ(Pixel(canvas, 50, 50), Background);
  EXPECT_NE(Pixel(canvas, 30, 50), Background);
}

TEST(QtCanvasTest, LinesAndOffImageShapes) {
  QtCanvas canvas(100, 100);
  canvas.SetScale({0, 0, 100, 100});
  canvas.Line(10, 20, 60, 20, Red);
  EXPECT_EQ(Pixel(canvas, 35, 20), qRgb(255, 0, 0));
  EXPECT_EQ(Pixel(canvas, 35, 21), Background);
  canvas.Line(70, 10, 70, 90, Blue);
  EXPECT_EQ(Pixel(canvas, 70, 50), qRgb(0, 0, 255));
  canvas.Line(0, 0, 99, 99, Red);
  EXPECT_EQ(Pixel(canvas, 50, 50), qRgb(255, 0, 0));
  // Far outside: nothing drawn, nothing breaks.
  canvas.Cls();
  canvas.Circle(-5000, 50, 10, Red);
  canvas.Box(1e12, 1e12, 2e12, 2e12, Red);
  canvas.Line(-1e9, -5, 1e9, -5, Red);
  EXPECT_EQ(InkedSpan(canvas, 50).first, -1);
}

TEST(QtCanvasTest, PrintDrawsTheTextInForeColorBelowRightOfTheCurrentPoint) {
  QtCanvas canvas(100, 60);
  canvas.SetScale({0, 0, 1500, 900});
  canvas.Pen.ForeColor = Rgb(0, 0, 0);
  canvas.Pen.FontSize = 8;  // 160 twips, about 11 pixels
  canvas.Pen.CurrentX = 300;
  canvas.Pen.CurrentY = 150;  // pixel (20, 10)
  canvas.Print("88");
  int inked = 0, darkest = 255 * 3;
  for (int y = 0; y < 60; ++y) {
    for (int x = 0; x < 100; ++x) {
      const QRgb p = Pixel(canvas, x, y);
      if (p == Background) continue;
      ++inked;
      darkest = std::min(darkest, qRed(p) + qGreen(p) + qBlue(p));
      EXPECT_GE(x, 20);
      EXPECT_GE(y, 10);
      EXPECT_LT(y, 10 + 16);
    }
  }
  EXPECT_GT(inked, 10);
  EXPECT_LT(darkest, 100);
}

TEST(QtCanvasTest, FrameImagePutsTheMapRightOfTheTerrain) {
  QtCanvas terrain(60, 50);
  QtCanvas map(20, 20);
  map.SetScale({0, 0, 20, 20});
  map.Pen.FillColor = Red;
  map.Box(0, 0, 19, 19, Red);
  const QImage frame = ComposeFrameImage(terrain.Image(), map.Image());
  EXPECT_EQ(frame.size(), QSize(60 + FrameImageGap + 20, 50));
  EXPECT_EQ(frame.pixel(59, 10) | 0xff000000u, Background);
  EXPECT_EQ(frame.pixel(60 + FrameImageGap, 0) | 0xff000000u, qRgb(255, 0, 0));
  EXPECT_EQ(frame.pixel(60 + FrameImageGap + 19, 19) | 0xff000000u, qRgb(255, 0, 0));
}

}  // namespace
}  // namespace keldor
