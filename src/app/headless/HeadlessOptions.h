// The command line of keldor-headless: what world to build, what to put on it,
// how many ticks to run and which files to write. Parsing checks the syntax
// and ranges of every value; the checks that need the built world (cells
// inside the grid, the ant size against the nest radius) happen when it is built.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <QString>
#include <QStringList>

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

// One --nest, --wall or --food on the command line, in command-line order.
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
  QString LoadPath;  // a world state file to start from instead of New
  std::optional<uint64_t> Seed;  // none: the loaded clock, or the real time of day
  WorldOptions World;
  std::vector<ScenarioStep> Scenario;
  int64_t Ticks = 0;
  bool Paused = false;
  bool Play = false;  // play a loaded world that was saved paused
  ViewOptions View;
  QString JsonPath;
  QString CsvPath;
  QString PngPath;
  QString FramesDir;
  int64_t Every = 1;  // a frame every Every ticks
};

struct ParsedArguments {
  enum class Outcome { Run, Help, Error };
  Outcome Result = Outcome::Error;
  HeadlessOptions Options;
  QString Message;  // the help text, or the error naming the bad argument
};

// Parses the full argument list (program name first).
ParsedArguments ParseHeadlessArguments(const QStringList& arguments);

// How an option (named without its dashes) is given: a flag alone, one
// value, or a value that may repeat (the scenario steps). None: no such option.
enum class OptionForm { Flag, Value, Repeatable };
std::optional<OptionForm> FindOptionForm(const QString& name);

}  // namespace keldor::headless
