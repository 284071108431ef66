#include "app/headless/HeadlessRun.h"

#include <chrono>
#include <cstdint>
#include <string>
#include <iomanip>
#include <memory>
#include <optional>

#include "app/headless/FailureReport.h"
#include "app/headless/HeadlessOptions.h"
#include "app/headless/Interruption.h"
#include "app/headless/OutputFiles.h"
#include "app/headless/ProgressLine.h"
#include "app/headless/StreamMessageBox.h"
#include "app/headless/TickCsv.h"
#include "app/headless/TickLoop.h"
#include "app/headless/WorldSetup.h"
#include "engine/Simulation.h"
#include "model/World.h"
#include "platform/ViewCanvases.h"
#include "sim/TickPainter.h"
#include "window/Commands.h"
#include "window/WindowState.h"

namespace keldor::headless {

namespace {

constexpr const char* ProgramName = "keldor-headless";

int Fail(std::ostream& err, const std::string& message, int status) {
  return ReportFailure(err, ProgramName, message, status);
}

void PrintSummary(std::ostream& out, const World& world, int64_t ticks, double seconds) {
  const double ticksPerSecond = seconds > 0 ? ticks / seconds : 0;
  out << ProgramName << ": " << ticks << " ticks, population " << world.Settings.Population << ", "
      << world.NestCount << " nests, " << world.FoodPileCount() << " food piles, " << std::fixed
      << std::setprecision(1) << ticksPerSecond << " ticks/s" << std::endl;
}

}  // namespace

int RunHeadless(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err, bool showProgress) {
  const ParsedArguments parsed = ParseHeadlessArguments(arguments);
  if (parsed.Result == ParsedArguments::Outcome::Help || parsed.Result == ParsedArguments::Outcome::Version) {
    out << parsed.Message;
    return ExitOk;
  }
  if (parsed.Result == ParsedArguments::Outcome::Error) return Fail(err, parsed.Message, ExitBadArguments);
  const HeadlessOptions& options = parsed.Options;

  Simulation simulation;
  WindowState window;
  if (!options.LoadPath.empty()) {
    if (const auto fault = simulation.LoadFile(options.LoadPath, window)) {
      return Fail(err, "--load: " + *fault, ExitBadArguments);
    }
  }
  const auto problem = options.LoadPath.empty() ? BuildWorld(simulation, window, options)
                                                  : ContinueWorld(simulation, window, options);
  if (problem) return Fail(err, *problem, ExitBadArguments);
  if (options.Ticks > INT64_MAX - simulation.Ticks()) {
    return Fail(err, "--ticks: " + std::to_string(options.Ticks) + " ticks after tick " +
                         std::to_string(simulation.Ticks()) + " pass the largest tick number", ExitBadArguments);
  }
  World& world = simulation.TheWorld();

  OutputFiles files;
  if (const auto fault = files.Open(options)) return Fail(err, *fault, ExitBadArguments);
  std::optional<TickCsv> csv;
  if (files.Csv() != nullptr) csv.emplace(*files.Csv());

  StreamMessageBox messages(err);
  PopulationLimitNotice populationLimit(world, window, messages);
  simulation.SetTickListener(&populationLimit);
  // Every tick clears both views and draws them whole, so drawing only the
  // ticks whose frame is saved gives the frames the window shows after them.
  NullPainter noDrawing;
  std::optional<ViewCanvases> views;
  if (files.Png() != nullptr || files.WritesFrames()) {
    views.emplace(QSize(options.View.Width, options.View.Height), MapBoxPixels(), window.View);
  }
  // Ticks and rows count on from the loaded world's tick.
  const int64_t first = simulation.Ticks() + 1;
  const int64_t last = simulation.Ticks() + options.Ticks;
  const auto savesFrame = [&](int64_t tick) { return files.WritesFrames() && tick % options.Every == 0; };
  const auto painterFor = [&](int64_t tick) -> TickPainter& {
    if (tick == last && files.Png() != nullptr) return views->Painter();
    return savesFrame(tick) ? static_cast<TickPainter&>(views->Painter()) : noDrawing;
  };
  std::optional<std::string> frameFault;
  const auto start = std::chrono::steady_clock::now();
  int64_t lastRun = first - 1;
  {
    ProgressLine progress(err, showProgress, first, last);
    lastRun = RunTicks(simulation, window, first, last, painterFor, [&](int64_t tick) {
      if (csv) csv->WriteRow(tick, world);
      if (savesFrame(tick)) frameFault = files.WriteFrame(tick, views->Frame());
      progress.TickDone(tick);
      return !frameFault && InterruptingSignal() == 0;
    });
  }
  const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
  if (frameFault) return Fail(err, *frameFault, ExitWriteFailed);
  if (const int signal = InterruptingSignal()) {
    // Frames are written as their ticks run; the other files only at the end.
    const std::string replaced = files.WritesFrames() ? "only the frames up to it were written" : "no file was replaced";
    return Fail(err, "interrupted after tick " + std::to_string(lastRun) + "; " + replaced, ExitInterrupted + signal);
  }

  // A failed write is reported by Commit, which then replaces nothing.
  if (ReplacingFile* json = files.Json()) json->Write(simulation.SaveText(window));
  if (ReplacingFile* png = files.Png()) WritePng(*png, views->Frame());
  if (const auto fault = files.Commit()) return Fail(err, *fault, ExitWriteFailed);
  PrintSummary(out, world, options.Ticks, elapsed.count());
  return ExitOk;
}

}  // namespace keldor::headless
