#include "model/Commands.h"

#include <gtest/gtest.h>

#include "model/Numeric.h"
#include "support/TestWorld.h"

namespace keldor {
namespace {

TEST(CommandsTest, StartUpDefaults) {
  World w;
  Form_Load(w);
  const WorldSettings& s = w.Settings;
  EXPECT_EQ(s.AntsPerNest, 30);
  EXPECT_EQ(s.AntSizeMm, 3.0);
  EXPECT_EQ(s.AntColour, Rgb(150, 100, 70));
  EXPECT_EQ(s.LifeSpan, 100);
  EXPECT_EQ(s.FoodRate, 2);
  EXPECT_EQ(s.FoodScentMax, 500);
  EXPECT_EQ(s.NestScentMax, 250);
  EXPECT_EQ(s.GridX, 30);
  EXPECT_DOUBLE_EQ(s.CellSize, 2000.0 / 30);
  EXPECT_DOUBLE_EQ(s.SpreadFoodAmount, Pi * (s.CellSize / 4) * (s.CellSize / 4) * 10);
  EXPECT_FALSE(w.TimerEnabled);
  EXPECT_FALSE(w.HasWorld());
}

TEST(CommandsTest, PlayPauseToggles) {
  testing::TestWorld t;
  World& w = t.world;
  w.Controls.PickActionCaption = "^";
  btnStop_Click(w);
  EXPECT_TRUE(w.Running);
  EXPECT_EQ(w.Controls.StopToolTip, "Pause");
  EXPECT_EQ(w.Controls.StopImage, PlayPauseImage::Pause);
  EXPECT_EQ(w.Controls.PickActionCaption, "v");
  btnStop_Click(w);
  EXPECT_FALSE(w.Running);
  EXPECT_EQ(w.Controls.StopToolTip, "Play");
  EXPECT_EQ(w.Controls.StopImage, PlayPauseImage::Play);
}

TEST(CommandsTest, DisplayTogglesNeedAWorld) {
  World before;
  Form_Load(before);
  btnOdor_Click(before);
  btnAnts_Click(before);
  EXPECT_EQ(before.ShowOdor, 0);
  EXPECT_EQ(before.Controls.OdorToolTip, "Show Odor Traces");

  testing::TestWorld t;
  World& w = t.world;
  btnOdor_Click(w);
  EXPECT_EQ(w.ShowOdor, 1);
  EXPECT_EQ(w.Controls.OdorToolTip, "Hide Odor Traces");
  btnOdor_Click(w);
  EXPECT_EQ(w.ShowOdor, 0);
  EXPECT_EQ(w.Controls.OdorToolTip, "Show Odor Traces");
  btnAnts_Click(w);
  EXPECT_EQ(w.ShowAnts, 0);
  EXPECT_EQ(w.Controls.AntsToolTip, "Show ants");
  // New shows the ants again but leaves the ants tool tip as it was.
  mnuFileNew_Click(w, t.random, {});
  EXPECT_EQ(w.ShowAnts, 1);
  EXPECT_EQ(w.Controls.AntsToolTip, "Show ants");
}

}  // namespace
}  // namespace keldor
