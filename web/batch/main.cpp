// keldor-batch: keldor-headless's batch run on the WebAssembly engine, run by
// node. It builds (or loads) the world from the same arguments, runs the
// ticks without drawing, and writes the --csv rows and the --json world file;
// pictures (--png, --frames) need the desktop build.
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "app/headless/HeadlessOptions.h"
#include "app/headless/StreamMessageBox.h"
#include "app/headless/TickCsv.h"
#include "app/headless/TickLoop.h"
#include "app/headless/WorldSetup.h"
#include "engine/Simulation.h"
#include "sim/TickPainter.h"
#include "window/Commands.h"
#include "window/WindowState.h"

namespace keldor::headless {
namespace {

constexpr int ExitOk = 0;
constexpr int ExitWriteFailed = 1;
constexpr int ExitBadArguments = 2;

int Fail(const std::string& message, int status) {
  std::cerr << "keldor-batch: " << message << std::endl;
  return status;
}

int RunBatch(const std::vector<std::string>& arguments) {
  const ParsedArguments parsed = ParseHeadlessArguments(arguments);
  if (parsed.Result == ParsedArguments::Outcome::Help || parsed.Result == ParsedArguments::Outcome::Version) {
    std::cout << parsed.Message;
    return ExitOk;
  }
  if (parsed.Result == ParsedArguments::Outcome::Error) return Fail(parsed.Message, ExitBadArguments);
  const HeadlessOptions& options = parsed.Options;
  if (!options.PngPath.empty() || !options.FramesDir.empty()) {
    return Fail("--png and --frames need the desktop keldor-headless", ExitBadArguments);
  }

  Simulation simulation;
  WindowState window;
  if (!options.LoadPath.empty()) {
    if (const auto fault = simulation.LoadFile(options.LoadPath, window)) {
      return Fail("--load: " + *fault, ExitBadArguments);
    }
  }
  const auto problem = options.LoadPath.empty() ? BuildWorld(simulation, window, options)
                                                : ContinueWorld(simulation, window, options);
  if (problem) return Fail(*problem, ExitBadArguments);
  World& world = simulation.TheWorld();

  std::ofstream csvFile;
  std::optional<TickCsv> csv;
  if (!options.CsvPath.empty()) {
    csvFile.open(options.CsvPath, std::ios::binary);
    if (!csvFile) return Fail("--csv: cannot write " + options.CsvPath, ExitBadArguments);
    csv.emplace(csvFile);
  }
  StreamMessageBox messages(std::cerr);
  PopulationLimitNotice populationLimit(world, window, messages);
  simulation.SetTickListener(&populationLimit);
  NullPainter noDrawing;
  RunTicks(
      simulation, window, simulation.Ticks() + 1, simulation.Ticks() + options.Ticks,
      [&](int64_t) -> TickPainter& { return noDrawing; },
      [&](int64_t tick) {
        if (csv) csv->WriteRow(tick, world);
        return true;
      });
  if (csv && !csvFile.flush()) return Fail("--csv: cannot write " + options.CsvPath, ExitWriteFailed);
  if (!options.JsonPath.empty()) {
    std::ofstream json(options.JsonPath, std::ios::binary);
    if (!(json << simulation.SaveText(window)).flush()) {
      return Fail("--json: cannot write " + options.JsonPath, ExitWriteFailed);
    }
  }
  std::cout << "keldor-batch: " << options.Ticks << " ticks, population " << world.Settings.Population << ", "
            << world.NestCount << " nests, " << world.FoodPileCount() << " food piles" << std::endl;
  return ExitOk;
}

}  // namespace
}  // namespace keldor::headless

int main(int argc, char* argv[]) { return keldor::headless::RunBatch(std::vector<std::string>(argv, argv + argc)); }
