#include "app/headless/HeadlessOptions.h"

#include <gtest/gtest.h>

#include "Version.h"

namespace keldor::headless {
namespace {

ParsedArguments Parse(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "keldor-headless");
  return ParseHeadlessArguments(arguments);
}

TEST(HeadlessOptionsTest, ReadsEveryValue) {
  const ParsedArguments p =
      Parse({"--seed", "18446744073709551615", "--grid", "181", "--food-rate", "0", "--ants-per-nest", "32767",
             "--ant-size", "0.5", "--life-span", "1", "--food-trace", "500", "--ticks", "12", "--paused", "--json",
             "a.json", "--csv=b.csv", "--png", "c.png", "--frames", "f", "--every", "3", "--view", "640,480", "--zoom",
             "2", "--odor", "--hide-ants"});
  ASSERT_EQ(p.Result, ParsedArguments::Outcome::Run) << p.Message;
  const HeadlessOptions& o = p.Options;
  EXPECT_EQ(o.Seed, UINT64_MAX);
  EXPECT_TRUE(o.World.Grid == 181 && o.World.FoodRate == 0 && o.World.AntsPerNest == 32767);
  EXPECT_TRUE(o.World.AntSizeMm == 0.5 && o.World.LifeSpan == 1 && o.World.FoodTrace == 500);
  EXPECT_TRUE(o.Ticks == 12 && o.Every == 3);
  EXPECT_TRUE(o.Paused && !o.Play && o.View.Odor && o.View.HideAnts);
  EXPECT_EQ((std::vector<std::string>{o.JsonPath, o.CsvPath, o.PngPath, o.FramesDir}),
            (std::vector<std::string>{"a.json", "b.csv", "c.png", "f"}));
  EXPECT_TRUE(o.View.Width == 640 && o.View.Height == 480 && o.View.Zoom == 2);
  EXPECT_TRUE(!Parse({}).Options.Seed && Parse({}).Options.View.Width == 448 && Parse({}).Options.View.Height == 403);
}

TEST(HeadlessOptionsTest, HelpListsEveryOptionAndVersionNamesTheProgram) {
  const std::string help = Parse({"--ticks", "5", "-h"}).Message;
  for (const char* line : {"--grid N", "--nest X,Y", "--view W,H", "--play ", "--version ", "(1..181, default 30)"}) {
    EXPECT_NE(help.find(line), std::string::npos) << line;
  }
  EXPECT_EQ(Parse({"--version"}).Message, std::string("keldor-headless ") + KeldorVersion + "\n");
}

TEST(HeadlessOptionsTest, EachClassOfBadArgumentIsAnErrorNamingIt) {
  const std::pair<std::vector<std::string>, std::string> cases[] = {
      {{"--ticks", "1.5"}, "--ticks: '1.5' is not a whole number"},
      {{"--nest", "3,x"}, "--nest: 'x' is not a whole number"},
      {{"--view", "640x480"}, "--view: '640x480' is not two numbers A,B"},
      {{"--grid", "182"}, "--grid: 182 is outside 1..181"},
      {{"--ant-size", "nan"}, "--ant-size: 'nan' is not a number"},
      {{"--bogus"}, "unknown option 'bogus'"},
      {{"--paused=yes"}, "--paused: takes no value"},
      {{"--ticks", "5", "--grid"}, "--grid: missing value N"},
      {{"stray"}, "unexpected argument 'stray'"},
      {{"--json", ""}, "--json: the file name is empty"},
      {{"--grid", "x", "--ticks", "y"}, "--grid"},  // the first fault is the one reported
      {{"--load", "w.json", "--play", "--paused"}, "--play: not with --paused"},
      {{"--play"}, "--play: only with --load"},
      {{"--every", "2"}, "--every: only with --frames"},
  };
  for (const auto& [arguments, message] : cases) {
    const ParsedArguments p = Parse(arguments);
    EXPECT_EQ(p.Result, ParsedArguments::Outcome::Error) << message;
    EXPECT_NE(p.Message.find(message), std::string::npos) << p.Message;
  }
}

TEST(HeadlessOptionsTest, ScenarioKeepsCommandLineOrderAcrossOptions) {
  const ParsedArguments p = Parse(
      {"--nest", "1,2", "--ticks", "5", "--wall", "3,4", "--nest=5,6", "--paused", "--food", "7, 8", "--wall", "9,10"});
  ASSERT_EQ(p.Result, ParsedArguments::Outcome::Run) << p.Message;
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
  // A file named like a scenario option is a value, not a step; after "--" only stray arguments.
  const ParsedArguments q = Parse({"--json", "--wall", "--food", "2,2", "--"});
  ASSERT_EQ(q.Result, ParsedArguments::Outcome::Run) << q.Message;
  EXPECT_EQ(q.Options.JsonPath, "--wall");
  ASSERT_EQ(q.Options.Scenario.size(), 1u);
  EXPECT_EQ(q.Options.Scenario[0].Kind, ScenarioKind::Food);
  EXPECT_EQ(Parse({"--", "--paused"}).Message, "unexpected argument '--paused'");
}

}  // namespace
}  // namespace keldor::headless
