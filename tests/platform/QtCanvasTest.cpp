// Pixel tests of the Qt canvas, inside an offscreen QGuiApplication (fonts need one).
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <cmath>
#include <utility>

#include "model/Colour.h"
#include "platform/FrameImage.h"
#include "platform/QtCanvas.h"

namespace keldor {
namespace {

const QRgb Background = qRgb(185, 172, 145);
const QRgb RedPixel = qRgb(255, 0, 0);
const QRgb BluePixel = qRgb(0, 0, 255);
constexpr Colour Red{255, 0, 0};
constexpr Colour Blue{0, 0, 255};

QRgb Pixel(const QImage& image, int x, int y) { return image.pixel(x, y) | 0xff000000u; }
QRgb Pixel(const QtCanvas& canvas, int x, int y) { return Pixel(canvas.Image(), x, y); }

// Leftmost and rightmost non-background pixel of row y.
std::pair<int, int> InkedSpan(const QtCanvas& canvas, int y) {
  int first = -1, last = -1;
  for (int x = 0; x < canvas.Image().width(); ++x) {
    if (Pixel(canvas, x, y) == Background) continue;
    if (first < 0) first = x;
    last = x;
  }
  return {first, last};
}

void ExpectPixels(const QtCanvas& canvas, std::initializer_list<std::tuple<int, int, QRgb>> pixels) {
  for (const auto& [x, y, colour] : pixels) EXPECT_EQ(Pixel(canvas, x, y), colour) << x << "," << y;
}

TEST(QtCanvasTest, ClearsToTheBackgroundAtEverySize) {
  QtCanvas canvas(40, 30);  // 15 twips per pixel
  canvas.Box(450, 300, 585, 435, Red);  // pixels 30..39 by 20..29
  canvas.Circle(75, 75, 30, Blue);  // radius 2 round pixel (5, 5), filled black
  canvas.Cls();
  ExpectPixels(canvas, {{5, 5, Background}, {30, 20, Background}, {39, 29, Background}});
  canvas.Resize(64, 48);  // longer rows: the cached disc must still land round its centre
  canvas.Circle(600, 450, 30, Blue);  // pixel (40, 30)
  ExpectPixels(canvas, {{40, 30, qRgb(0, 0, 0)}, {40, 27, Background}, {63, 47, Background}});
}

TEST(QtCanvasTest, BoxesLandWhereTheScaleSays) {
  for (double ratio : {1.0, 2.0}) {
    SCOPED_TRACE(ratio);
    QtCanvas canvas(100, 100, ratio);
    canvas.SetScale({1000, 2000, 1500, 1500});  // 15 units per logical pixel
    canvas.Pen.FillColor = Blue;
    canvas.Box(1000 + 150, 2000 + 300, 1000 + 450, 2000 + 600, Red);  // pixels 10..30 by 20..40
    const auto px = [ratio](int logical) { return static_cast<int>(logical * ratio); };
    ExpectPixels(canvas, {{px(20), px(30), BluePixel}, {px(10), px(30), RedPixel}, {px(30), px(30), RedPixel},
                          {px(20), px(20), RedPixel}, {px(20), px(40), RedPixel}, {px(10) - 1, px(30), Background},
                          {px(31), px(30), Background}, {px(20), px(41), Background}});
  }
  QtCanvas canvas(100, 100);
  canvas.SetScale({1000, 2000, 1500, 1500});
  canvas.Pen.Fill = FillStyle::Transparent;
  canvas.Pen.DrawWidth = 2;
  canvas.Box(1000 + 150, 2000 + 300, 1000 + 450, 2000 + 600, Red);
  ExpectPixels(canvas, {{20, 30, Background}, {11, 30, RedPixel}, {12, 30, Background}});  // two pixels wide
}

TEST(QtCanvasTest, CircleCentreAndRadiusFollowTheScale) {
  for (double radiusPixels : {3.0, 10.0, 70.0}) {  // cached sprites and painted discs
    QtCanvas canvas(200, 200);
    canvas.SetScale({0, 0, 2000, 2000});  // 10 units per pixel
    canvas.Pen.FillColor = Blue;
    canvas.Circle(1000, 1000, radiusPixels * 10, Red);
    EXPECT_EQ(Pixel(canvas, 100, 100), BluePixel) << radiusPixels;
    const auto [first, last] = InkedSpan(canvas, 100);
    EXPECT_NEAR(first, 100 - radiusPixels, 1.5) << radiusPixels;
    EXPECT_NEAR(last, 100 + radiusPixels, 1.5) << radiusPixels;
    EXPECT_EQ(Pixel(canvas, 100, static_cast<int>(100 - radiusPixels - 3)), Background);
  }
  QtCanvas canvas(100, 100);
  canvas.SetScale({0, 0, 100, 100});
  canvas.Pen.Fill = FillStyle::Transparent;
  canvas.Circle(50, 50, 20, Red);
  EXPECT_EQ(Pixel(canvas, 50, 50), Background) << "a transparent circle is only its outline";
  EXPECT_NE(Pixel(canvas, 30, 50), Background);
}

TEST(QtCanvasTest, CircleEdgesRoundLikeTheBoxAroundThem) {
  // A disc inscribed in a box shares the box's outer columns: a nest on its
  // cell, a pile on its cell. Painted large discs match exactly; cached small
  // ones snap their centre to a pixel, which can cost one pixel on a side.
  struct Case {
    double Left, Right;
    bool Exact;
  };
  for (const Case& c : {Case{179.56, 224.0, true}, Case{10.3, 30.9, false}, Case{20.5, 41.5, true},
                        Case{12.4, 150.8, true}, Case{30.7, 170.1, true}}) {
    const double centre = (c.Left + c.Right) / 2, radius = (c.Right - c.Left) / 2;
    QtCanvas box(240, 240), disc(240, 240);
    for (QtCanvas* canvas : {&box, &disc}) canvas->SetScale({0, 0, 240, 240});
    box.Box(c.Left, c.Left, c.Right, c.Right, Red);
    disc.Circle(centre, centre, radius, Red);
    const int row = static_cast<int>(std::floor(centre + 0.5));
    const auto [discLeft, discRight] = InkedSpan(disc, row);
    const auto [boxLeft, boxRight] = InkedSpan(box, row);
    const int slack = c.Exact ? 0 : 1;
    EXPECT_NEAR(discLeft, boxLeft, slack) << c.Left << ".." << c.Right;
    EXPECT_NEAR(discRight, boxRight, slack) << c.Left << ".." << c.Right;
  }
}

TEST(QtCanvasTest, LinesOffImageShapesAndCallOrder) {
  QtCanvas canvas(100, 100);
  canvas.SetScale({0, 0, 100, 100});
  canvas.Line(10, 20, 60, 20, Red);
  canvas.Line(70, 10, 70, 90, Blue);
  canvas.Line(0, 0, 99, 99, Red);
  ExpectPixels(canvas, {{35, 20, RedPixel}, {35, 21, Background}, {70, 50, BluePixel}, {50, 50, RedPixel}});
  canvas.Line(0, 50, 99, 50, Blue);  // a later call paints over an earlier one
  EXPECT_EQ(Pixel(canvas, 50, 50), BluePixel);
  canvas.Cls();
  canvas.Circle(-5000, 50, 10, Red);  // far outside: nothing drawn, nothing breaks
  canvas.Box(1e12, 1e12, 2e12, 2e12, Red);
  canvas.Line(-1e9, -5, 1e9, -5, Red);
  EXPECT_EQ(InkedSpan(canvas, 50).first, -1);
}

TEST(QtCanvasTest, PrintDrawsTheTextInForeColorBelowRightOfTheCurrentPoint) {
  QtCanvas canvas(100, 60);
  canvas.SetScale({0, 0, 1500, 900});
  canvas.Pen.ForeColor = Colour(0, 0, 0);
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
      EXPECT_TRUE(x >= 20 && y >= 10 && y < 10 + 16) << x << "," << y;
    }
  }
  EXPECT_GT(inked, 10);
  EXPECT_LT(darkest, 100);
}

TEST(QtCanvasTest, FrameImagePutsTheMapRightOfTheTerrain) {
  QtCanvas terrain(60, 50), map(20, 20);
  map.SetScale({0, 0, 20, 20});
  map.Pen.FillColor = Red;
  map.Box(0, 0, 19, 19, Red);
  const QImage frame = ComposeFrameImage(terrain.Image(), map.Image());
  EXPECT_EQ(frame.size(), QSize(60 + FrameImageGap + 20, 50));
  EXPECT_EQ(Pixel(frame, 59, 10), Background);
  EXPECT_EQ(Pixel(frame, 60 + FrameImageGap, 0), RedPixel);
  EXPECT_EQ(Pixel(frame, 60 + FrameImageGap + 19, 19), RedPixel);
}

}  // namespace
}  // namespace keldor

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
