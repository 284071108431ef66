#include "app/sweep/SweepRun.h"

#include <sstream>

#include "app/headless/StreamMessageBox.h"
#include "app/headless/TickCsv.h"
#include "app/headless/TickLoop.h"
#include "app/headless/WorldSetup.h"
#include "engine/Simulation.h"
#include "model/World.h"
#include "sim/TickPainter.h"
#include "sim/TickTotals.h"
#include "window/Commands.h"
#include "window/WindowState.h"

namespace keldor::sweep {

RunOutcome RunOne(const headless::HeadlessOptions& options, int64_t every) {
  RunOutcome outcome;
  Simulation simulation;
  WindowState window;
  outcome.Error = headless::BuildWorld(simulation, window, options);
  if (outcome.Error) return outcome;
  const World& world = simulation.TheWorld();

  std::ostringstream messages;
  std::ostringstream series;
  headless::StreamMessageBox messageBox(messages);
  PopulationLimitNotice populationLimit(simulation.TheWorld(), window, messageBox);
  simulation.SetTickListener(&populationLimit);
  std::optional<headless::TickCsv> seriesCsv;
  if (every > 0) seriesCsv.emplace(series);
  NullPainter noDrawing;
  const auto painterFor = [&](int64_t) -> TickPainter& { return noDrawing; };
  headless::RunTicks(simulation, window, 1, options.Ticks, painterFor, [&](int64_t tick) {
    if (seriesCsv && tick % every == 0) seriesCsv->WriteRow(tick, world);
    return true;
  });

  std::ostringstream row;
  WriteTickCsvRow(row, options.Ticks, MeasureTotals(world));
  outcome.LastRow = row.str();
  outcome.Series = series.str();
  outcome.Messages = messages.str();
  return outcome;
}

std::optional<std::string> CheckWorld(const headless::HeadlessOptions& options) {
  Simulation simulation;
  WindowState window;
  return headless::BuildWorld(simulation, window, options);
}

}  // namespace keldor::sweep
