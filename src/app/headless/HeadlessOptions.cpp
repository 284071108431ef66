#include "app/headless/HeadlessOptions.h"

#include <filesystem>
#include <limits>
#include <tuple>

#include "Version.h"
#include "model/Numeric.h"
#include "model/WorldCreation.h"
#include "window/OptionsForm.h"

namespace keldor::headless {

namespace {

constexpr int64_t MaxTicks = std::numeric_limits<int32_t>::max();

constexpr const char* Usage = "keldor-headless [options]";
constexpr const char* Description =
    "Builds a Keldor world as File > New does, applies the scenario options in order,\n"
    "runs the simulation without a window and writes the requested files.";

// The options that set up the world New builds; a loaded world keeps its own.
constexpr const char* WorldOptionNames[] = {"grid", "food-rate", "ants-per-nest", "ant-size", "life-span", "food-trace"};

int64_t WholeOf(const OptionValue& v) { return std::get<int64_t>(v); }
int IntOf(const OptionValue& v) { return static_cast<int>(std::get<int64_t>(v)); }
const std::string& TextOf(const OptionValue& v) { return std::get<std::string>(v); }

// Stores a scenario step of `kind`, named as the command line would give it.
std::function<void(const OptionValue&)> StoreStep(std::vector<ScenarioStep>& scenario, ScenarioKind kind,
                                                  const std::string& name) {
  return [&scenario, kind, name](const OptionValue& v) {
    const auto [x, y] = std::get<std::pair<int, int>>(v);
    scenario.push_back({kind, x, y, "--" + name + " " + std::to_string(x) + "," + std::to_string(y)});
  };
}

// One file however it is named: through links, relative or absolute.
std::filesystem::path FileIdentity(const std::string& path) {
  std::error_code error;
  const std::filesystem::path absolute = std::filesystem::absolute(path, error);
  const std::filesystem::path canonical = std::filesystem::weakly_canonical(absolute, error);
  return error ? absolute.lexically_normal() : canonical;
}

}  // namespace

OptionTable HeadlessOptionTable(HeadlessOptions& o, bool& help, bool& version) {
  using enum ValueType;
  const std::string viewSize = std::to_string(DesignViewWidth) + "," + std::to_string(DesignViewHeight);
  return {
      {"load", Path, "FILE", 0, 0, false, false,
       "Start from the world state FILE (a --json output) instead of New; world options are refused.",
       [&](const OptionValue& v) { o.LoadPath = TextOf(v); }},
      {"seed", Unsigned, "N", 0, 0, false, false,
       "Reproducible run: the clock starts from seed N and advances 75 ms per tick.",
       [&](const OptionValue& v) { o.Seed = std::get<uint64_t>(v); }},
      {"grid", Whole, "N", MinGridSize, MaxGridSize, false, true, "Grid of N x N cells (1..181, default 30).",
       [&](const OptionValue& v) { o.World.Grid = IntOf(v); }},
      {"food-rate", Whole, "P", 0, 100, false, true,
       "Percent chance that a free cell gets food at New (0..100, default 2).",
       [&](const OptionValue& v) { o.World.FoodRate = IntOf(v); }},
      {"ants-per-nest", Whole, "N", 0, Int16Max, false, true,
       "Ants of every nest created, queen included (0..32767, default 30).",
       [&](const OptionValue& v) { o.World.AntsPerNest = IntOf(v); }},
      {"ant-size", Positive, "MM", 0, 0, false, true,
       "Ant length in millimetres (above 0, at most the nest radius; default 3).",
       [&](const OptionValue& v) { o.World.AntSizeMm = std::get<double>(v); }},
      {"life-span", Whole, "N", 1, 100, false, true, "Life span of new nests' ants (1..100, default 100).",
       [&](const OptionValue& v) { o.World.LifeSpan = IntOf(v); }},
      {"food-trace", Whole, "N", 0, TraceRange.Max, false, true,
       "The options dialog's \"Food Scent\" slider, which caps a bite's scent mark (0..500, default 0: never moved).",
       [&](const OptionValue& v) { o.World.FoodTrace = IntOf(v); }},
      {"nest", Pair, "X,Y", Int16Min, Int16Max, true, true, "Create a nest on cell X,Y. May repeat; applied in order.",
       StoreStep(o.Scenario, ScenarioKind::Nest, "nest")},
      {"wall", Pair, "X,Y", Int16Min, Int16Max, true, true,
       "Put a plaster brick on cell X,Y unless one stands there. May repeat.",
       StoreStep(o.Scenario, ScenarioKind::Wall, "wall")},
      {"food", Pair, "X,Y", Int16Min, Int16Max, true, true, "Lay a food pile on cell X,Y unless it holds food. May repeat.",
       StoreStep(o.Scenario, ScenarioKind::Food, "food")},
      {"ticks", Whole, "N", 0, MaxTicks, false, false, "Run N ticks (default 0).",
       [&](const OptionValue& v) { o.Ticks = WholeOf(v); }},
      {"paused", Flag, "", 0, 0, false, true, "Run the ticks with the world paused.",
       [&](const OptionValue&) { o.Paused = true; }},
      {"play", Flag, "", 0, 0, false, false, "With --load: play a world that was saved paused.",
       [&](const OptionValue&) { o.Play = true; }},
      {"json", Path, "FILE", 0, 0, false, false, "Write the final state of the world to FILE.",
       [&](const OptionValue& v) { o.JsonPath = TextOf(v); }},
      {"csv", Path, "FILE", 0, 0, false, false, "Write one row of totals per tick to FILE.",
       [&](const OptionValue& v) { o.CsvPath = TextOf(v); }},
      {"png", Path, "FILE", 0, 0, false, false, "Write the last frame (terrain view and mini-map) to FILE.",
       [&](const OptionValue& v) { o.PngPath = TextOf(v); }},
      {"frames", Path, "DIR", 0, 0, false, false,
       "Write the frame of every Nth tick (see --every) to DIR as frame-000100.png...",
       [&](const OptionValue& v) { o.FramesDir = TextOf(v); }},
      {"every", Whole, "N", 1, MaxTicks, false, false, "With --frames: a frame every N ticks (default 1).",
       [&](const OptionValue& v) { o.Every = WholeOf(v); }},
      {"view", Pair, "W,H", 1, MaxViewPixels, false, true, "Terrain view size in pixels (default " + viewSize + ").",
       [&](const OptionValue& v) { std::tie(o.View.Width, o.View.Height) = std::get<std::pair<int, int>>(v); }},
      {"zoom", Whole, "Z", MinZoom, MaxZoom, false, true, "Zoom of the terrain view (2..100, default 10).",
       [&](const OptionValue& v) { o.View.Zoom = IntOf(v); }},
      {"odor", Flag, "", 0, 0, false, true, "Show the odor traces.", [&](const OptionValue&) { o.View.Odor = true; }},
      {"hide-ants", Flag, "", 0, 0, false, true, "Hide the ants.",
       [&](const OptionValue&) { o.View.HideAnts = true; }},
      {"version", Flag, "", 0, 0, false, false, "Print the version and stop.",
       [&](const OptionValue&) { version = true; }},
      {"help", Flag, "", 0, 0, false, false, "Print this help and stop.", [&](const OptionValue&) { help = true; }},
  };
}

std::optional<std::string> CheckCombinations(const HeadlessOptions& options, const std::set<std::string>& given) {
  if (given.contains("load")) {
    for (const char* name : WorldOptionNames) {
      if (given.contains(name)) return std::string("--") + name + ": not with --load (the loaded world keeps its settings)";
    }
  }
  if (options.Play && options.Paused) return "--play: not with --paused";
  if (options.Play && !given.contains("load")) return "--play: only with --load (a new world plays unless --paused)";
  if (given.contains("every") && !given.contains("frames")) return "--every: only with --frames";
  const std::pair<const char*, const std::string*> files[] = {
      {"json", &options.JsonPath}, {"csv", &options.CsvPath}, {"png", &options.PngPath}};
  for (size_t i = 0; i < std::size(files); ++i) {
    for (size_t j = 0; j < i; ++j) {
      const std::string& path = *files[i].second;
      if (path.empty() || files[j].second->empty()) continue;
      if (FileIdentity(path) == FileIdentity(*files[j].second)) {
        return std::string("--") + files[i].first + ": '" + path + "' is the file --" + files[j].first + " writes";
      }
    }
  }
  return std::nullopt;
}

ParsedArguments ParseHeadlessArguments(const std::vector<std::string>& arguments) {
  ParsedArguments parsed;
  bool help = false;
  bool version = false;
  const OptionTable table = HeadlessOptionTable(parsed.Options, help, version);
  const CommandLineRead read = ReadCommandLine(table, arguments);
  if (help) {
    parsed.Result = ParsedArguments::Outcome::Help;
    parsed.Message = HelpText(Usage, Description, table);
  } else if (version) {
    parsed.Result = ParsedArguments::Outcome::Version;
    parsed.Message = std::string("keldor-headless ") + KeldorVersion + "\n";
  } else if (!read.Error.empty()) {
    parsed.Message = read.Error;
  } else if (!read.Positional.empty()) {
    parsed.Message = "unexpected argument '" + read.Positional.front() + "'";
  } else if (auto problem = CheckCombinations(parsed.Options, {read.Given.begin(), read.Given.end()})) {
    parsed.Message = *problem;
  } else {
    parsed.Result = ParsedArguments::Outcome::Run;
  }
  return parsed;
}

ParsedArguments ParseHeadlessArguments(int argc, const char* const* argv) {
  return ParseHeadlessArguments(std::vector<std::string>(argv, argv + argc));
}

}  // namespace keldor::headless
