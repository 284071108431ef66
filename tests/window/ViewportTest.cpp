#include "window/Viewport.h"

#include <gtest/gtest.h>

#include "window/Commands.h"
#include "window/WindowLayout.h"
#include "model/World.h"
#include "window/WindowState.h"
#include "support/TestWorld.h"

namespace keldor {
namespace {

WindowState StartedWindow() {
  World world;
  WindowState w;
  StartUp(world, w);
  return w;
}

TEST(ViewportTest, StartUpCentresZoomKeepsTheCentreWithinLimits) {
  WindowState w = StartedWindow();
  // Zoom 10: the world is 20000 terrain units wide, the view 6720.
  EXPECT_EQ(w.HScroll1.Min, 3360);
  EXPECT_EQ(w.HScroll1.Max, 20000 - 3360);
  EXPECT_DOUBLE_EQ(w.View.Terrain.Left, 10000 - 3360);
  EXPECT_FLOAT_EQ(w.ViewCentreY, 1000);
  for (int i = 0; i < 20; ++i) ZoomOut(w);
  EXPECT_EQ(w.View.ZoomX, 2);
  EXPECT_EQ(w.View.TerrainFontSize, 1);
  for (int i = 0; i < 40; ++i) ZoomIn(w);
  EXPECT_EQ(w.View.ZoomY, 42);
  EXPECT_EQ(w.View.TerrainFontSize, 8);

  WindowState c = StartedWindow();
  NavigateFromMap(c, 800, 900);
  ZoomIn(c);
  EXPECT_EQ(c.HScroll1.Value, 800 * 11);
  EXPECT_EQ(c.VScroll1.Value, 900 * 11);
  EXPECT_NEAR(c.ViewCentreX, 800, 1e-3);
  // Near an edge the view stays against it.
  NavigateFromMap(c, 10, 10);
  ZoomOut(c);
  EXPECT_EQ(c.VScroll1.Value, c.VScroll1.Min);
  EXPECT_DOUBLE_EQ(c.View.Terrain.Left, 0);
}

TEST(ViewportTest, MapPointingClampsToTheWorldAndTo32767) {
  WindowState w = StartedWindow();
  NavigateFromMap(w, 1999, 1999);
  EXPECT_EQ(w.HScroll1.Value, w.HScroll1.Max);
  for (int i = 0; i < 20; ++i) ZoomIn(w);  // zoom 30: 60000 units wide
  EXPECT_EQ(w.HScroll1.Max, 32767);
  NavigateFromMap(w, 1990, 1990);
  EXPECT_EQ(w.HScroll1.Value, 32767);
  EXPECT_EQ(w.VScroll1.Value, 32767);
}

TEST(ViewportTest, ResizeKeepsTheCentreOrClampsToTheEdge) {
  WindowState w = StartedWindow();
  NavigateFromMap(w, 1200, 700);
  const double centreX = w.View.Terrain.Left + w.View.Terrain.Width / 2;
  ResizeTerrainView(w, 9000, 6045);
  EXPECT_DOUBLE_EQ(w.View.Terrain.Left + w.View.Terrain.Width / 2, centreX);
  EXPECT_EQ(w.HScroll1.Min, 4500);
  NavigateFromMap(w, 0, 0);
  ResizeTerrainView(w, 12000, 6045);
  EXPECT_EQ(w.HScroll1.Value, 6000);
  EXPECT_DOUBLE_EQ(w.View.Terrain.Left, 0);
}

TEST(ViewportTest, ArrowStepsMoveByTheSmallChangeAndFollowingRecentresOnlyNearTheEdge) {
  WindowState w = StartedWindow();  // zoom 10, view 6720 wide, centred at 10000 of 3360..16640
  w.HScroll1.SmallChange = 100;
  w.VScroll1.SmallChange = 100;
  const int top = w.VScroll1.Value;
  ScrollBySteps(w, 3, -2);
  EXPECT_EQ(w.HScroll1.Value, 10300);
  EXPECT_DOUBLE_EQ(w.View.Terrain.Left, 10300 - 3360);
  EXPECT_EQ(w.VScroll1.Value, top - 200);
  ScrollBySteps(w, -1000, 0);
  EXPECT_EQ(w.HScroll1.Value, 3360);
  WindowState f = StartedWindow();
  // The middle spans terrain 6640 + 672 .. 6640 + 6048, world x 731.2 .. 1268.8.
  KeepInView(f, 1260, f.ViewCentreY);
  EXPECT_EQ(f.HScroll1.Value, 10000);
  KeepInView(f, 1300, f.ViewCentreY);
  EXPECT_EQ(f.HScroll1.Value, 13000);
  KeepInView(f, 100, f.ViewCentreY);
  EXPECT_EQ(f.HScroll1.Value, 3360);  // clamped at the world's left edge
}

TEST(WindowLayoutTest, SmallWindowSnapsBackToTheMinimum) {
  testing::TestWorld t;
  WindowLayout layout;
  ResizeWindow(t.window, layout, 3000, 2000);
  EXPECT_EQ(layout.Width, MinWindowWidth);
  EXPECT_EQ(layout.Height, MinWindowHeight);
  ResizeWindow(t.window, layout, 12000, 2000);
  EXPECT_EQ(layout.Width, 12000);
  EXPECT_EQ(layout.Height, MinWindowHeight);
  ResizeWindow(t.window, layout, 100, 100, true);  // minimised: nothing moves
  EXPECT_EQ(layout.Width, 12000);
  EXPECT_EQ(t.window.View.Terrain.Width, layout.Terrain.Width);
  EXPECT_EQ(layout.HScroll.Top, layout.Terrain.Top + layout.Terrain.Height);
  EXPECT_EQ(layout.VScroll.Left, layout.Terrain.Left + layout.Terrain.Width);
}

TEST(WindowLayoutTest, HidingPanelsGrowsTheViewAroundTheSameCentre) {
  testing::TestWorld t;
  WindowState& w = t.window;
  WindowLayout layout;
  ResizeWindow(w, layout, 12000, 9000);
  ZoomIn(w);
  ZoomIn(w);
  NavigateFromMap(w, 1100, 900);
  const float cx = w.ViewCentreX;
  const float cy = w.ViewCentreY;
  const TwipRect before = layout.Terrain;

  CloseInfoPanel(w, layout);
  EXPECT_FALSE(w.View.InfoVisible);
  EXPECT_EQ(layout.Terrain.Width, before.Width + 2175 + 90);
  EXPECT_NEAR(w.ViewCentreX, cx, 1.0 / w.View.ZoomX);
  QuickToggle(w, layout, 1);
  EXPECT_FALSE(w.Controls.ButtonBarVisible);
  EXPECT_EQ(layout.Terrain.Top, 0);
  EXPECT_EQ(layout.Terrain.Height, before.Height + 555 - 90);
  EXPECT_NEAR(w.ViewCentreY, cy, 1.0 / w.View.ZoomY);
  ToggleButtonBar(w, layout);
  ToggleInfoPanel(w, layout);
  EXPECT_EQ(layout.Terrain.Width, before.Width);
  EXPECT_EQ(layout.Terrain.Height, before.Height);

  // Growing past the world clamps the view to its edge.
  NavigateFromMap(w, 0, 0);
  ResizeWindow(w, layout, 16000, 12000);
  EXPECT_EQ(w.HScroll1.Value, w.HScroll1.Min);
  EXPECT_NEAR(w.View.Terrain.Left, 0, 0.5);  // the scroll value is a whole number
}

}  // namespace
}  // namespace keldor
