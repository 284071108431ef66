#include "app/headless/WorldSetup.h"

#include <gtest/gtest.h>

#include "model/Queries.h"
#include "model/Random.h"
#include "model/World.h"
#include "support/TestWorld.h"

namespace keldor::headless {
namespace {

struct Built {
  explicit Built(const HeadlessOptions& options) : clock(3), random(clock) { problem = BuildWorld(world, random, options); }
  VirtualClock clock;
  RandomSource random;
  World world;
  std::optional<std::string> problem;
};

ParsedArguments Parse(QStringList arguments) {
  arguments.prepend("keldor-headless");
  return ParseHeadlessArguments(arguments);
}

HeadlessOptions Options(const QStringList& arguments) {
  const ParsedArguments p = Parse(arguments);
  EXPECT_EQ(p.Result, ParsedArguments::Outcome::Run) << p.Message.toStdString();
  return p.Options;
}

TEST(WorldSetupTest, SettingsReachNewAndPlayIsPressed) {
  const Built b(Options({"--grid", "21", "--food-rate", "0", "--ants-per-nest", "5", "--ant-size", "2", "--life-span", "50"}));
  ASSERT_FALSE(b.problem) << *b.problem;
  const World& w = b.world;
  EXPECT_EQ(w.Settings.GridX, 21);
  EXPECT_EQ(w.Settings.GridY, 21);
  EXPECT_EQ(w.FoodPileCount(), 0);
  ASSERT_EQ(w.NestCount, 1);
  const Nest& n = w.Nests[0];
  EXPECT_EQ(n.CellX, 10);
  EXPECT_EQ(n.CellY, 10);
  EXPECT_EQ(n.AntCount(), 5);
  EXPECT_DOUBLE_EQ(n.AntLength, 2 * 56.7);
  EXPECT_EQ(w.AntSizeTwips, 113);
  EXPECT_EQ(n.LifeSpan, 50);
  EXPECT_EQ(n.Ants[1].LifeFactor, 0.5);
  EXPECT_TRUE(w.TimerEnabled);
  EXPECT_TRUE(w.Running);
  EXPECT_EQ(w.Controls.StopToolTip, "Pause");
}

TEST(WorldSetupTest, DefaultsMatchTheDesktopNew) {
  const Built b(Options({"--paused"}));
  testing::TestWorld reference(3);
  ASSERT_FALSE(b.problem);
  EXPECT_FALSE(b.world.Running);
  EXPECT_EQ(b.world.Settings.GridX, 30);
  EXPECT_EQ(b.world.FoodPileCount(), reference.world.FoodPileCount());
  EXPECT_EQ(b.world.Nests[0].Signature, reference.world.Nests[0].Signature);
  EXPECT_EQ(b.world.Nests[0].Ants, reference.world.Nests[0].Ants);
}

TEST(WorldSetupTest, AntSizeIsHeldToTheNestRadius) {
  // On a 30-cell grid the nest radius is 2000/30/2*10 body units, 5.88 mm.
  EXPECT_FALSE(Built(Options({"--ant-size", "5.87"})).problem);
  const Built tooLong(Options({"--ant-size", "5.9"}));
  ASSERT_TRUE(tooLong.problem);
  EXPECT_NE(tooLong.problem->find("--ant-size"), std::string::npos);
  // The limit follows the grid; the default size is not checked.
  EXPECT_TRUE(Built(Options({"--grid", "100", "--ant-size", "2"})).problem);
  EXPECT_FALSE(Built(Options({"--grid", "181"})).problem);
}

TEST(WorldSetupTest, ViewOptionsActOnTheNewWorld) {
  const Built b(Options({"--view", "640,480", "--zoom", "4", "--odor", "--hide-ants"}));
  ASSERT_FALSE(b.problem);
  EXPECT_EQ(b.world.View.Terrain.Width, 640 * 15);
  EXPECT_EQ(b.world.View.Terrain.Height, 480 * 15);
  EXPECT_EQ(b.world.ZoomX, 4);
  EXPECT_EQ(b.world.ZoomY, 4);
  EXPECT_EQ(b.world.ShowOdor, 1);
  EXPECT_EQ(b.world.ShowAnts, 0);
  EXPECT_EQ(Built(Options({"--zoom", "13"})).world.ZoomX, 13);
}

TEST(ScenarioSetupTest, StepsApplyInOrderOnTheirCells) {
  const Built b(Options({"--food-rate", "0", "--wall", "1,1", "--nest", "5,5", "--food", "3,3", "--wall", "2,2",
                         "--nest", "6,7"}));
  ASSERT_FALSE(b.problem) << *b.problem;
  const World& w = b.world;
  ASSERT_EQ(w.NestCount, 3);
  EXPECT_EQ(w.Nests[1].Name, "NEST_1");
  EXPECT_EQ(w.Nests[1].CellX, 5);
  EXPECT_EQ(w.Nests[2].CellX, 6);
  EXPECT_EQ(w.Nests[2].CellY, 7);
  EXPECT_EQ(w.Settings.Population, 90);
  EXPECT_EQ(w.Cells(6, 7).AntCount, 30);
  ASSERT_EQ(w.WallCount(), 2);
  EXPECT_EQ(w.Walls[0].X, 1);
  EXPECT_EQ(w.Walls[1].X, 2);
  EXPECT_TRUE(CellHasObjectType(w, PlasterBrickType, 2, 2));
  ASSERT_EQ(w.FoodPileCount(), 1);
  EXPECT_EQ(w.FoodPiles[0].X, 3);
  EXPECT_EQ(w.FoodPiles[0].Amount, w.Settings.SpreadFoodAmount);
  EXPECT_EQ(w.Cells(3, 3).Food, w.FoodPiles[0].Amount);
}

TEST(ScenarioSetupTest, OccupiedCellsAreLeftAsTheToolsLeaveThem) {
  const Built b(Options({"--food-rate", "0", "--wall", "4,4", "--wall", "4,4", "--food", "8,8", "--food", "8,8"}));
  ASSERT_FALSE(b.problem);
  EXPECT_EQ(b.world.WallCount(), 1);
  EXPECT_EQ(b.world.Cells(4, 4).ObjectCount(), 1);
  EXPECT_EQ(b.world.FoodPileCount(), 1);
}

TEST(ScenarioSetupTest, ReportsTheFirstStepThatCannotApply) {
  const Built outside(Options({"--wall", "2,2", "--nest", "31,1", "--wall", "3,3"}));
  ASSERT_TRUE(outside.problem);
  EXPECT_EQ(outside.problem->rfind("--nest 31,1: ", 0), 0u) << *outside.problem;
  EXPECT_TRUE(Built(Options({"--food", "0,5"})).problem);
  EXPECT_TRUE(Built(Options({"--wall", "5,-1"})).problem);

  // 20000 ants per nest: New makes the first, a second would pass 32767.
  const Built full(Options({"--ants-per-nest", "20000", "--nest", "1,1"}));
  ASSERT_TRUE(full.problem);
  EXPECT_EQ(full.problem->rfind("--nest 1,1: ", 0), 0u) << *full.problem;
  EXPECT_EQ(full.world.NestCount, 1);
}

}  // namespace
}  // namespace keldor::headless
