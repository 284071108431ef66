#include "app/headless/HeadlessOptions.h"

#include <gtest/gtest.h>

namespace keldor::headless {
namespace {

ParsedArguments Parse(QStringList arguments) {
  arguments.prepend("keldor-headless");
  return ParseHeadlessArguments(arguments);
}

TEST(HeadlessOptionsTest, NoArgumentsRunsTheDefaultWorldForNoTicks) {
  const ParsedArguments p = Parse({});
  ASSERT_EQ(p.Result, ParsedArguments::Outcome::Run) << p.Message.toStdString();
  EXPECT_FALSE(p.Options.Seed);
  EXPECT_FALSE(p.Options.World.Grid);
  EXPECT_EQ(p.Options.Ticks, 0);
  EXPECT_FALSE(p.Options.Paused);
  EXPECT_EQ(p.Options.View.Width, 448);
  EXPECT_EQ(p.Options.View.Height, 403);
  EXPECT_TRUE(p.Options.Scenario.empty());
  EXPECT_TRUE(p.Options.JsonPath.isEmpty());
}

TEST(HeadlessOptionsTest, ReadsEveryValue) {
  const ParsedArguments p =
      Parse({"--seed", "18446744073709551615", "--grid", "181", "--food-rate", "0", "--ants-per-nest", "32767",
             "--ant-size", "0.5", "--life-span", "1", "--ticks", "12", "--paused", "--json", "a.json", "--csv=b.csv",
             "--png", "c.png", "--view", "640,480", "--zoom", "2", "--odor", "--hide-ants"});
  ASSERT_EQ(p.Result, ParsedArguments::Outcome::Run) << p.Message.toStdString();
  const HeadlessOptions& o = p.Options;
  EXPECT_EQ(o.Seed, UINT64_MAX);
  EXPECT_EQ(o.World.Grid, 181);
  EXPECT_EQ(o.World.FoodRate, 0);
  EXPECT_EQ(o.World.AntsPerNest, 32767);
  EXPECT_EQ(o.World.AntSizeMm, 0.5);
  EXPECT_EQ(o.World.LifeSpan, 1);
  EXPECT_EQ(o.Ticks, 12);
  EXPECT_TRUE(o.Paused);
  EXPECT_EQ(o.JsonPath, "a.json");
  EXPECT_EQ(o.CsvPath, "b.csv");
  EXPECT_EQ(o.PngPath, "c.png");
  EXPECT_EQ(o.View.Width, 640);
  EXPECT_EQ(o.View.Height, 480);
  EXPECT_EQ(o.View.Zoom, 2);
  EXPECT_TRUE(o.View.Odor);
  EXPECT_TRUE(o.View.HideAnts);
}

TEST(HeadlessOptionsTest, HelpIsNotAnError) {
  const ParsedArguments p = Parse({"--help"});
  EXPECT_EQ(p.Result, ParsedArguments::Outcome::Help);
  EXPECT_TRUE(p.Message.contains("--ants-per-nest"));
}

struct BadArguments {
  QStringList Arguments;
  QString Named;  // what the message must mention
};

class HeadlessBadArgumentsTest : public ::testing::TestWithParam<BadArguments> {};

TEST_P(HeadlessBadArgumentsTest, IsAnErrorNamingTheArgument) {
  const ParsedArguments p = Parse(GetParam().Arguments);
  EXPECT_EQ(p.Result, ParsedArguments::Outcome::Error);
  EXPECT_TRUE(p.Message.contains(GetParam().Named)) << p.Message.toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    EachClass, HeadlessBadArgumentsTest,
    ::testing::Values(
        // Not a number.
        BadArguments{{"--grid", "abc"}, "--grid"}, BadArguments{{"--ticks", "1.5"}, "--ticks"},
        BadArguments{{"--seed", "-1"}, "--seed"}, BadArguments{{"--ant-size", "big"}, "--ant-size"},
        BadArguments{{"--nest", "3,x"}, "--nest"}, BadArguments{{"--wall", "3"}, "--wall"},
        BadArguments{{"--food", "1,2,3"}, "--food"}, BadArguments{{"--view", "640x480"}, "--view"},
        // Out of range.
        BadArguments{{"--grid", "0"}, "--grid"}, BadArguments{{"--grid", "182"}, "--grid"},
        BadArguments{{"--food-rate", "101"}, "--food-rate"}, BadArguments{{"--food-rate", "-1"}, "--food-rate"},
        BadArguments{{"--ants-per-nest", "32768"}, "--ants-per-nest"},
        BadArguments{{"--life-span", "0"}, "--life-span"}, BadArguments{{"--life-span", "101"}, "--life-span"},
        BadArguments{{"--ant-size", "0"}, "--ant-size"}, BadArguments{{"--ant-size", "nan"}, "--ant-size"},
        BadArguments{{"--ticks", "-1"}, "--ticks"}, BadArguments{{"--ticks", "2147483648"}, "--ticks"},
        BadArguments{{"--zoom", "1"}, "--zoom"}, BadArguments{{"--view", "0,10"}, "--view"},
        BadArguments{{"--view", "10,2185"}, "--view"}, BadArguments{{"--nest", "40000,1"}, "--nest"},
        // Unknown option, missing value, stray argument, empty file name.
        BadArguments{{"--bogus"}, "bogus"}, BadArguments{{"--ticks", "5", "--grid"}, "--grid"},
        BadArguments{{"stray"}, "stray"}, BadArguments{{"--json", ""}, "--json"},
        // The first fault is the one reported.
        BadArguments{{"--grid", "x", "--ticks", "y"}, "--grid"}));

TEST(HeadlessOptionsTest, ScenarioKeepsCommandLineOrderAcrossOptions) {
  const ParsedArguments p =
      Parse({"--nest", "1,2", "--ticks", "5", "--wall", "3,4", "--nest=5,6", "--paused", "--food", "7, 8", "--wall", "9,10"});
  ASSERT_EQ(p.Result, ParsedArguments::Outcome::Run) << p.Message.toStdString();
  const std::vector<ScenarioStep>& s = p.Options.Scenario;
  ASSERT_EQ(s.size(), 5u);
  const ScenarioKind kinds[] = {ScenarioKind::Nest, ScenarioKind::Wall, ScenarioKind::Nest, ScenarioKind::Food,
                                ScenarioKind::Wall};
  const int xs[] = {1, 3, 5, 7, 9};
  for (size_t i = 0; i < s.size(); ++i) {
    EXPECT_EQ(s[i].Kind, kinds[i]) << i;
    EXPECT_EQ(s[i].X, xs[i]) << i;
    EXPECT_EQ(s[i].Y, xs[i] + 1) << i;
  }
  EXPECT_EQ(s[0].Argument, "--nest 1,2");
  EXPECT_EQ(s[2].Argument, "--nest 5,6");
}

TEST(HeadlessOptionsTest, ScenarioScanSkipsOtherOptionsValues) {
  // A file named like a scenario option is a value, not a step; "--" ends the options.
  const ParsedArguments p = Parse({"--json", "--wall", "--food", "2,2", "--"});
  ASSERT_EQ(p.Result, ParsedArguments::Outcome::Run) << p.Message.toStdString();
  EXPECT_EQ(p.Options.JsonPath, "--wall");
  ASSERT_EQ(p.Options.Scenario.size(), 1u);
  EXPECT_EQ(p.Options.Scenario[0].Kind, ScenarioKind::Food);
}

}  // namespace
}  // namespace keldor::headless
