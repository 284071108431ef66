#include "model/Viewport.h"

#include <gtest/gtest.h>

#include "model/Commands.h"
#include "model/World.h"

namespace keldor {
namespace {

World StartedWorld() {
  World w;
  Form_Load(w);
  return w;
}

TEST(ViewportTest, StartUpCentresTheViewOnTheWorld) {
  World w = StartedWorld();
  // Zoom 10: the world is 20000 terrain units wide, the view 6720.
  EXPECT_EQ(w.View.HScroll1.Min, 3360);
  EXPECT_EQ(w.View.HScroll1.Max, 20000 - 3360);
  EXPECT_EQ(w.View.HScroll1.Value, 10000);
  EXPECT_DOUBLE_EQ(w.View.Terrain.Left, 10000 - 3360);
  EXPECT_FLOAT_EQ(w.ViewCentreX, 1000);
  EXPECT_FLOAT_EQ(w.ViewCentreY, 1000);
}

TEST(ViewportTest, IsPointVisibleIsStrictOnEverySide) {
  const ViewScale v{100, 200, 50, 60};
  EXPECT_TRUE(IsPointVisible(101, 201, v));
  EXPECT_FALSE(IsPointVisible(100, 201, v));
  EXPECT_FALSE(IsPointVisible(150, 201, v));
  EXPECT_FALSE(IsPointVisible(101, 200, v));
  EXPECT_FALSE(IsPointVisible(101, 260, v));
  EXPECT_TRUE(IsPointVisible(149.99, 259.99, v));
  // Single precision: a point a hair inside the edge compares equal to it.
  EXPECT_FALSE(IsPointVisible(100.000000001, 201, v));
}

TEST(ViewportTest, ZoomLimitsAndFontSize) {
  World w = StartedWorld();
  for (int i = 0; i < 20; ++i) cmdZoomOut_Click(w);
  EXPECT_EQ(w.ZoomX, 2);
  EXPECT_EQ(w.ZoomY, 2);
  EXPECT_EQ(w.View.TerrainFontSize, 1);
  for (int i = 0; i < 40; ++i) cmdZoomIn_Click(w);
  EXPECT_EQ(w.ZoomX, 42);
  EXPECT_EQ(w.View.TerrainFontSize, 8);
  w.Controls.PickActionCaption = "^";
  cmdZoomOut_Click(w);
  EXPECT_EQ(w.Controls.PickActionCaption, "v");
}

TEST(ViewportTest, ZoomKeepsTheWorldPointAtTheCentre) {
  World w = StartedWorld();
  NavigateFromMap(w, 800, 900);
  cmdZoomIn_Click(w);
  EXPECT_EQ(w.View.HScroll1.Value, 800 * 11);
  EXPECT_EQ(w.View.VScroll1.Value, 900 * 11);
  EXPECT_NEAR(w.ViewCentreX, 800, 1e-3);
}

TEST(ViewportTest, ZoomNearAnEdgeStaysAgainstIt) {
  World w = StartedWorld();
  NavigateFromMap(w, 10, 10);
  EXPECT_EQ(w.View.HScroll1.Value, w.View.HScroll1.Min);
  cmdZoomOut_Click(w);
  EXPECT_EQ(w.View.HScroll1.Value, w.View.HScroll1.Min);
  EXPECT_EQ(w.View.VScroll1.Value, w.View.VScroll1.Min);
  EXPECT_DOUBLE_EQ(w.View.Terrain.Left, 0);
}

TEST(ViewportTest, MapPointingClampsToTheWorldAndTo32767) {
  World w = StartedWorld();
  NavigateFromMap(w, 1999, 1999);
  EXPECT_EQ(w.View.HScroll1.Value, w.View.HScroll1.Max);
  for (int i = 0; i < 20; ++i) cmdZoomIn_Click(w);  // zoom 30: 60000 units wide
  EXPECT_EQ(w.View.HScroll1.Max, 32767);
  NavigateFromMap(w, 1990, 1990);
  EXPECT_EQ(w.View.HScroll1.Value, 32767);
  EXPECT_EQ(w.View.VScroll1.Value, 32767);
}

TEST(ViewportTest, ResizeKeepsTheCentreOrClampsToTheEdge) {
  World w = StartedWorld();
  NavigateFromMap(w, 1200, 700);
  const double centreX = w.View.Terrain.Left + w.View.Terrain.Width / 2;
  ResizeTerrainView(w, 9000, 6045);
  EXPECT_DOUBLE_EQ(w.View.Terrain.Left + w.View.Terrain.Width / 2, centreX);
  EXPECT_EQ(w.View.HScroll1.Min, 4500);
  // At the left edge a wider view is pushed back inside the world.
  NavigateFromMap(w, 0, 0);
  ResizeTerrainView(w, 12000, 6045);
  EXPECT_EQ(w.View.HScroll1.Value, 6000);
  EXPECT_DOUBLE_EQ(w.View.Terrain.Left, 0);
}

}  // namespace
}  // namespace keldor
