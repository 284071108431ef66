#include "app/headless/HeadlessRun.h"

#include <gtest/gtest.h>

#include <sstream>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include "app/headless/WorldSetup.h"
#include "headless/run/InProcessRun.h"
#include "engine/Simulation.h"
#include "model/Queries.h"
#include "support/TestWorld.h"

namespace keldor::headless {
namespace {

// The world BuildWorld makes from a command line, with the clock the tests seed.
struct Built {
  explicit Built(std::vector<std::string> arguments) : clock(3) {
    arguments.insert(arguments.begin(), "keldor-headless");
    const ParsedArguments p = ParseHeadlessArguments(arguments);
    EXPECT_EQ(p.Result, ParsedArguments::Outcome::Run) << p.Message;
    problem = BuildWorld(simulation, window, p.Options);
  }
  VirtualClock clock;
  Simulation simulation{&clock};
  World& world = simulation.TheWorld();
  WindowState window;
  std::optional<std::string> problem;
};

TEST(WorldSetupTest, SettingsReachNewAndPlayIsPressed) {
  const Built b({"--grid", "21", "--food-rate", "0", "--ants-per-nest", "5", "--ant-size", "2", "--life-span", "50",
                 "--view", "640,480", "--zoom", "4", "--odor", "--hide-ants"});
  ASSERT_FALSE(b.problem) << *b.problem;
  const World& w = b.world;
  EXPECT_EQ(w.Settings.GridY, 21);
  EXPECT_EQ(w.FoodPileCount(), 0);
  const Nest& n = w.Nests[0];
  EXPECT_EQ(n.CellX, 10);
  EXPECT_EQ(n.AntCount(), 5);
  EXPECT_EQ(w.AntSizeTwips, 113);
  EXPECT_EQ(n.LifeSpan, 50);
  EXPECT_TRUE(w.Running);
  const ViewState& view = b.window.View;
  EXPECT_EQ(view.Terrain.Width, 640 * 15);
  EXPECT_EQ(view.Terrain.Height, 480 * 15);
  EXPECT_EQ(view.ZoomY, 4);
  EXPECT_TRUE(view.ShowOdor == 1 && view.ShowAnts == 0);

  const Built paused({"--paused"});
  const testing::TestWorld desktop(3);
  EXPECT_FALSE(paused.world.Running);
  EXPECT_EQ(paused.world.FoodPiles, desktop.world.FoodPiles);
  EXPECT_EQ(paused.world.Nests[0].Ants, desktop.world.Nests[0].Ants);
}

TEST(ScenarioSetupTest, StepsApplyInOrderOnTheirCells) {
  const Built b({"--food-rate", "0", "--wall", "1,1", "--nest", "5,5", "--food", "3,3", "--wall", "2,2", "--nest", "6,7",
                 "--wall", "2,2", "--food", "3,3"});  // occupied cells are left as the tools leave them
  ASSERT_FALSE(b.problem) << *b.problem;
  const World& w = b.world;
  ASSERT_EQ(w.NestCount, 3);
  EXPECT_EQ(w.Nests[1].CellX, 5);
  EXPECT_EQ(w.Nests[2].Name, "NEST_2");
  EXPECT_EQ(w.Nests[2].CellY, 7);
  EXPECT_EQ(w.Settings.Population, 90);
  EXPECT_EQ(w.Cells(6, 7).AntCount, 30);
  ASSERT_EQ(w.WallCount(), 2);
  EXPECT_EQ(w.Walls[1].X, 2);
  EXPECT_TRUE(w.Cells(2, 2).Objects.HasBrick());
  EXPECT_EQ(w.Cells(2, 2).ObjectCount(), 1);
  ASSERT_EQ(w.FoodPileCount(), 1);
  EXPECT_EQ(w.FoodPiles[0].Amount, w.Settings.SpreadFoodAmount);
  EXPECT_EQ(w.Cells(3, 3).Food, w.FoodPiles[0].Amount);
}

TEST(ScenarioSetupTest, ReportsTheFirstArgumentThatCannotApply) {
  // On a 30-cell grid the nest radius is 5.88 mm; the default size is not checked.
  EXPECT_FALSE(Built({"--ant-size", "5.87"}).problem);
  EXPECT_NE(Built({"--ant-size", "5.9"}).problem.value_or("").find("--ant-size"), std::string::npos);
  EXPECT_TRUE(Built({"--grid", "100", "--ant-size", "2"}).problem);
  EXPECT_FALSE(Built({"--grid", "181"}).problem);
  const Built outside({"--wall", "2,2", "--nest", "31,1", "--wall", "3,3"});
  ASSERT_TRUE(outside.problem);
  EXPECT_EQ(outside.problem->rfind("--nest 31,1: ", 0), 0u) << *outside.problem;
  EXPECT_TRUE(Built({"--food", "0,5"}).problem);
  // 20000 ants per nest: New makes the first, a second would pass 32767.
  const Built full({"--ants-per-nest", "20000", "--nest", "1,1"});
  ASSERT_TRUE(full.problem);
  EXPECT_EQ(full.problem->rfind("--nest 1,1: ", 0), 0u) << *full.problem;
  EXPECT_EQ(full.world.NestCount, 1);
}

QJsonObject ReadJson(const QString& path) { return QJsonDocument::fromJson(ReadAll(path)).object(); }

TEST(HeadlessRunTest, BadArgumentsExitWithStatusTwoNamingThem) {
  QTemporaryDir dir;
  const QString unwritable = dir.filePath("no-such-folder/out.json");
  const std::pair<QStringList, std::string> cases[] = {
      {{"--ticks", "many"}, "--ticks"},                 // the command line
      {{"--grid", "10", "--food", "11,1"}, "--food 11,1"},  // a scenario step
      {{"--ant-size", "9"}, "--ant-size"},              // the world
      {{"--json", unwritable}, "--json"},               // an output file
      {{"--png", dir.path()}, "--png"}};
  for (const auto& [arguments, named] : cases) {
    const InProcessRun run(arguments);
    EXPECT_EQ(run.status, ExitBadArguments) << named;
    EXPECT_NE(run.err.str().find(named), std::string::npos) << run.err.str();
    EXPECT_TRUE(run.out.str().empty()) << named;
  }
  EXPECT_FALSE(QFile::exists(unwritable));
}

TEST(HeadlessRunTest, PopulationLimitIsReportedOnStandardErrorAndPressesPlayPause) {
  QTemporaryDir dir;
  const InProcessRun running({"--seed", "5", "--ants-per-nest", "2000", "--ticks", "1", "--json", dir.filePath("r.json")});
  ASSERT_EQ(running.status, ExitOk);
  EXPECT_NE(running.err.str().find("Maximum ant population has been reached."), std::string::npos);
  EXPECT_FALSE(ReadJson(dir.filePath("r.json"))["Running"].toBool());
  // From paused, the same press resumes the world.
  const InProcessRun paused(
      {"--seed", "5", "--ants-per-nest", "2000", "--paused", "--ticks", "1", "--json", dir.filePath("p.json")});
  ASSERT_EQ(paused.status, ExitOk);
  EXPECT_TRUE(ReadJson(dir.filePath("p.json"))["Running"].toBool());
}

}  // namespace
}  // namespace keldor::headless
