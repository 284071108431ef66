#include "model/WindowLayout.h"

#include <gtest/gtest.h>

#include "support/TestWorld.h"

namespace keldor {
namespace {

TEST(WindowLayoutTest, SmallWindowSnapsBackToTheMinimum) {
  testing::TestWorld t;
  WindowLayout layout;
  Form_Resize(t.world, layout, 3000, 2000);
  EXPECT_EQ(layout.Width, MinWindowWidth);
  EXPECT_EQ(layout.Height, MinWindowHeight);
  Form_Resize(t.world, layout, 12000, 2000);
  EXPECT_EQ(layout.Width, 12000);
  EXPECT_EQ(layout.Height, MinWindowHeight);
  // Minimised: nothing moves.
  Form_Resize(t.world, layout, 100, 100, true);
  EXPECT_EQ(layout.Width, 12000);
}

TEST(WindowLayoutTest, ViewAndPanelsFollowTheWindowSize) {
  testing::TestWorld t;
  WindowLayout layout;
  Form_Resize(t.world, layout, 12000, 9000);
  const TwipRect& v = layout.Terrain;
  EXPECT_EQ(v.Top, 555 - 90);
  EXPECT_EQ(v.Width, 12000 - 135 - 255 - (2175 + 90) - 180);
  EXPECT_EQ(v.Height, 9000 - 465 - 255 - 555 - 180);
  EXPECT_EQ(layout.VScroll.Left, v.Left + v.Width);
  EXPECT_EQ(layout.VScroll.Height, v.Height);
  EXPECT_EQ(layout.HScroll.Top, v.Top + v.Height);
  EXPECT_EQ(layout.HScroll.Width, v.Width);
  EXPECT_EQ(layout.HScroll.Left, 120);
  EXPECT_EQ(layout.Info.Left, v.Left + v.Width + 255 + 90);
  EXPECT_EQ(layout.Info.Top, v.Top - 90);
  EXPECT_EQ(layout.Actions.Left, 45 + 400 + 180);
  EXPECT_EQ(t.world.View.Terrain.Width, v.Width);
  EXPECT_EQ(t.world.View.Terrain.Height, v.Height);
}

TEST(WindowLayoutTest, HidingPanelsGrowsTheViewAroundTheSameCentre) {
  testing::TestWorld t;
  World& w = t.world;
  WindowLayout layout;
  Form_Resize(w, layout, 12000, 9000);
  cmdZoomIn_Click(w);
  cmdZoomIn_Click(w);
  NavigateFromMap(w, 1100, 900);
  const float cx = w.ViewCentreX;
  const float cy = w.ViewCentreY;
  const double width = layout.Terrain.Width;
  const double height = layout.Terrain.Height;

  btnInfo_Click(w, layout);
  EXPECT_FALSE(w.Controls.InfoVisible);
  EXPECT_EQ(layout.Terrain.Width, width + 2175 + 90);
  EXPECT_NEAR(w.ViewCentreX, cx, 1.0 / w.ZoomX);
  EXPECT_NEAR(w.ViewCentreY, cy, 1.0 / w.ZoomY);

  btnQuick_Click(w, layout, 1);
  EXPECT_FALSE(w.Controls.ButtonBarVisible);
  EXPECT_EQ(layout.Terrain.Top, 0);
  EXPECT_EQ(layout.Terrain.Height, height + 555 - 90);
  EXPECT_EQ(QuickButtonColour(w.Controls.ButtonBarVisible), QuickHiddenColour);
  EXPECT_NEAR(w.ViewCentreY, cy, 1.0 / w.ZoomY);

  mnuButtons_Click(w, layout);
  mnuInfo_Click(w, layout);
  btnQuick_Click(w, layout, 3);
  EXPECT_TRUE(w.Controls.ButtonBarVisible);
  EXPECT_TRUE(w.Controls.InfoVisible);
  EXPECT_EQ(layout.Terrain.Width, width);
  EXPECT_EQ(layout.Terrain.Height, height);
}

TEST(WindowLayoutTest, GrowingPastTheWorldClampsTheViewToItsEdge) {
  testing::TestWorld t;
  World& w = t.world;
  WindowLayout layout;
  Form_Resize(w, layout, 12000, 9000);
  NavigateFromMap(w, 0, 0);
  Form_Resize(w, layout, 16000, 12000);
  EXPECT_EQ(w.View.HScroll1.Value, w.View.HScroll1.Min);
  EXPECT_NEAR(w.View.Terrain.Left, 0, 0.5);  // the scroll value is a whole number
  EXPECT_NEAR(w.View.Terrain.Top, 0, 0.5);
}

}  // namespace
}  // namespace keldor
