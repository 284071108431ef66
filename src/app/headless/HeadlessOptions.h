// The options of keldor-headless: what world to build, what to put on it,
// how many ticks to run and which files to write, described once
// (HeadlessOptionTable) for the command line and keldor-sweep's experiments.
// Reading checks the syntax and range of every value and how options combine;
// the checks that need the built world (cells inside the grid, the ant size
// against the nest radius) happen when it is built.
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "app/headless/OptionTable.h"
#include "render/ViewState.h"

namespace keldor::headless {

// Design size of the terrain view, in pixels.
inline constexpr int DesignViewWidth = static_cast<int>(TerrainDesignWidth / TwipsPerPixel);
inline constexpr int DesignViewHeight = static_cast<int>(TerrainDesignHeight / TwipsPerPixel);
// The widest view whose size in twips still fits a 16-bit scroll range.
inline constexpr int MaxViewPixels = static_cast<int>(32767 / TwipsPerPixel);
inline constexpr int MinZoom = 2;
inline constexpr int MaxZoom = 100;

enum class ScenarioKind { Nest, Wall, Food };

// One --nest, --wall or --food, in the order given.
struct ScenarioStep {
  ScenarioKind Kind = ScenarioKind::Nest;
  int X = 0;
  int Y = 0;
  std::string Argument;  // "--nest 3,4", for messages
};

// The world settings the options dialog would set; unset ones keep the defaults.
struct WorldOptions {
  std::optional<int> Grid;
  std::optional<int> FoodRate;
  std::optional<int> AntsPerNest;
  std::optional<double> AntSizeMm;
  std::optional<int> LifeSpan;
  std::optional<int> FoodTrace;
};

struct ViewOptions {
  int Width = DesignViewWidth;
  int Height = DesignViewHeight;
  std::optional<int> Zoom;
  bool Odor = false;
  bool HideAnts = false;
};

struct HeadlessOptions {
  std::string LoadPath;  // a world state file to start from instead of New
  std::optional<uint64_t> Seed;  // none: the loaded clock, or the real time of day
  WorldOptions World;
  std::vector<ScenarioStep> Scenario;
  int64_t Ticks = 0;
  bool Paused = false;
  bool Play = false;  // play a loaded world that was saved paused
  ViewOptions View;
  std::string JsonPath;
  std::string CsvPath;
  std::string PngPath;
  std::string FramesDir;
  int64_t Every = 1;  // a frame every Every ticks
};

// The description of every option, storing each value read into `options`;
// --help and --version set `help` and `version`. The table refers to all
// three, which must outlive it.
OptionTable HeadlessOptionTable(HeadlessOptions& options, bool& help, bool& version);

// The checks of options together, once all are read (`given` names them):
// world options with --load, --every without --frames, --play with --paused
// or without --load, two options writing one file. Returns the message naming the option.
std::optional<std::string> CheckCombinations(const HeadlessOptions& options, const std::set<std::string>& given);

struct ParsedArguments {
  enum class Outcome { Run, Help, Version, Error };
  Outcome Result = Outcome::Error;
  HeadlessOptions Options;
  std::string Message;  // the help text, the version line, or the error naming the bad argument
};

// Parses the full argument list (program name first).
ParsedArguments ParseHeadlessArguments(const std::vector<std::string>& arguments);
ParsedArguments ParseHeadlessArguments(int argc, const char* const* argv);

}  // namespace keldor::headless
