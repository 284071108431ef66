#include "app/headless/HeadlessOptions.h"

#include <gtest/gtest.h>

namespace keldor::headless {
namespace {

ParsedArguments Parse(QStringList arguments) {
  arguments.prepend("keldor-headless");
  return ParseHeadlessArguments(arguments);
}

TEST(HeadlessOptionsTest, ReadsEveryValue) {
  const ParsedArguments p =
      Parse({"--seed", "18446744073709551615", "--grid", "181", "--food-rate", "0", "--ants-per-nest", "32767",
             "--ant-size", "0.5", "--life-span", "1", "--ticks", "12", "--paused", "--json", "a.json", "--csv=b.csv",
             "--png", "c.png", "--view", "640,480", "--zoom", "2", "--odor", "--hide-ants"});
  ASSERT_EQ(p.Result, ParsedArguments::Outcome::Run) << p.Message.toStdString();
  const HeadlessOptions& o = p.Options;
  EXPECT_EQ(o.Seed, UINT64_MAX);
  EXPECT_TRUE(o.World.Grid == 181 && o.World.FoodRate == 0 && o.World.AntsPerNest == 32767);
  EXPECT_TRUE(o.World.AntSizeMm == 0.5 && o.World.LifeSpan == 1);
  EXPECT_EQ(o.Ticks, 12);
  EXPECT_TRUE(o.Paused && o.View.Odor && o.View.HideAnts);
  EXPECT_EQ(QStringList({o.JsonPath, o.CsvPath, o.PngPath}), QStringList({"a.json", "b.csv", "c.png"}));
  EXPECT_TRUE(o.View.Width == 640 && o.View.Height == 480 && o.View.Zoom == 2);
  EXPECT_FALSE(Parse({}).Options.Seed);
  EXPECT_EQ(Parse({"--help"}).Result, ParsedArguments::Outcome::Help);
}

TEST(HeadlessOptionsTest, EachClassOfBadArgumentIsAnErrorNamingIt) {
  const std::pair<QStringList, QString> cases[] = {
      {{"--ticks", "1.5"}, "--ticks"},         // not a number
      {{"--nest", "3,x"}, "--nest"},           // not a cell
      {{"--view", "640x480"}, "--view"},       // not a pair
      {{"--grid", "182"}, "--grid"},           // out of range
      {{"--ant-size", "nan"}, "--ant-size"},   // not a finite number
      {{"--bogus"}, "bogus"},                  // unknown option
      {{"--ticks", "5", "--grid"}, "--grid"},  // missing value
      {{"stray"}, "stray"},                    // stray argument
      {{"--json", ""}, "--json"},              // empty file name
      {{"--grid", "x", "--ticks", "y"}, "--grid"}};  // the first fault is the one reported
  for (const auto& [arguments, named] : cases) {
    const ParsedArguments p = Parse(arguments);
    EXPECT_EQ(p.Result, ParsedArguments::Outcome::Error) << arguments.join(' ').toStdString();
    EXPECT_TRUE(p.Message.contains(named)) << p.Message.toStdString();
  }
}

TEST(HeadlessOptionsTest, ScenarioKeepsCommandLineOrderAcrossOptions) {
  const ParsedArguments p = Parse(
      {"--nest", "1,2", "--ticks", "5", "--wall", "3,4", "--nest=5,6", "--paused", "--food", "7, 8", "--wall", "9,10"});
  ASSERT_EQ(p.Result, ParsedArguments::Outcome::Run) << p.Message.toStdString();
  const std::vector<ScenarioStep>& s = p.Options.Scenario;
  ASSERT_EQ(s.size(), 5u);
  const ScenarioKind kinds[] = {ScenarioKind::Nest, ScenarioKind::Wall, ScenarioKind::Nest, ScenarioKind::Food,
                                ScenarioKind::Wall};
  for (size_t i = 0; i < s.size(); ++i) {
    EXPECT_EQ(s[i].Kind, kinds[i]) << i;
    EXPECT_EQ(s[i].X, static_cast<int>(2 * i + 1)) << i;
    EXPECT_EQ(s[i].Y, static_cast<int>(2 * i + 2)) << i;
  }
  EXPECT_EQ(s[2].Argument, "--nest 5,6");
  // A file named like a scenario option is a value, not a step; "--" ends the options.
  const ParsedArguments q = Parse({"--json", "--wall", "--food", "2,2", "--"});
  ASSERT_EQ(q.Result, ParsedArguments::Outcome::Run) << q.Message.toStdString();
  EXPECT_EQ(q.Options.JsonPath, "--wall");
  ASSERT_EQ(q.Options.Scenario.size(), 1u);
  EXPECT_EQ(q.Options.Scenario[0].Kind, ScenarioKind::Food);
}

}  // namespace
}  // namespace keldor::headless
