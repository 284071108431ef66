#include "app/headless/HeadlessRun.h"

#include <chrono>
#include <iomanip>
#include <memory>
#include <optional>

#include <QJsonDocument>

#include "app/headless/HeadlessOptions.h"
#include "app/headless/OutputFiles.h"
#include "app/headless/StateJson.h"
#include "app/headless/StreamMessageBox.h"
#include "app/headless/TickCsv.h"
#include "app/headless/TickLoop.h"
#include "app/headless/WorldSetup.h"
#include "model/Random.h"
#include "model/World.h"
#include "window/Commands.h"
#include "window/WindowState.h"
#include "platform/SystemClock.h"
#include "platform/ViewCanvases.h"
#include "sim/TickPainter.h"

namespace keldor::headless {

namespace {

constexpr const char* ProgramName = "keldor-headless";

int Fail(std::ostream& err, const std::string& message, int status) {
  err << ProgramName << ": " << message << std::endl;
  return status;
}

void PrintSummary(std::ostream& out, const World& world, int64_t ticks, double seconds) {
  const double ticksPerSecond = seconds > 0 ? ticks / seconds : 0;
  out << ProgramName << ": " << ticks << " ticks, population " << world.Settings.Population << ", "
      << world.NestCount << " nests, " << world.FoodPileCount() << " food piles, " << std::fixed
      << std::setprecision(1) << ticksPerSecond << " ticks/s" << std::endl;
}

}  // namespace

int RunHeadless(const QStringList& arguments, std::ostream& out, std::ostream& err) {
  const ParsedArguments parsed = ParseHeadlessArguments(arguments);
  if (parsed.Result == ParsedArguments::Outcome::Help) {
    out << parsed.Message.toStdString();
    return ExitOk;
  }
  if (parsed.Result == ParsedArguments::Outcome::Error) return Fail(err, parsed.Message.toStdString(), ExitBadArguments);
  const HeadlessOptions& options = parsed.Options;

  std::optional<VirtualClock> virtualClock;
  SystemClock systemClock;
  if (options.Seed) virtualClock.emplace(*options.Seed);
  RandomSource random(virtualClock ? static_cast<Clock&>(*virtualClock) : systemClock);
  World world;
  WindowState window;
  if (const auto problem = BuildWorld(world, window, random, options)) return Fail(err, *problem, ExitBadArguments);

  OutputFiles files;
  if (const auto problem = files.Open(options)) return Fail(err, *problem, ExitBadArguments);
  std::optional<TickCsv> csv;
  if (files.Csv() != nullptr) csv.emplace(*files.Csv());

  StreamMessageBox messages(err);
  PopulationLimitNotice populationLimit(world, window, messages);
  // Every tick clears both views and draws them whole, so drawing only the
  // last tick gives the frame the window shows after it.
  NullPainter noDrawing;
  std::optional<ViewCanvases> views;
  if (files.Png() != nullptr) views.emplace(QSize(options.View.Width, options.View.Height), MapBoxPixels(), window.View);
  TickPainter& lastTickPainter = views ? static_cast<TickPainter&>(views->Painter()) : noDrawing;
  const TickLoop loop{world, window, random, populationLimit, virtualClock ? &*virtualClock : nullptr};
  const auto start = std::chrono::steady_clock::now();
  RunTicks(loop, options.Ticks, noDrawing, lastTickPainter, [&](int64_t tick) {
    if (csv) csv->WriteRow(tick, world);
  });
  const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;

  if (files.Csv() != nullptr && !files.Csv()->flush()) {
    return Fail(err, "--csv: writing '" + options.CsvPath.toStdString() + "' failed", ExitWriteFailed);
  }
  if (QFile* json = files.Json()) {
    if (json->write(QJsonDocument(StateJson(world, window, options.Ticks)).toJson()) < 0 || !json->flush()) {
      return Fail(err, "--json: writing '" + options.JsonPath.toStdString() + "' failed", ExitWriteFailed);
    }
  }
  if (QFile* png = files.Png()) {
    if (!views->Frame().save(png, "PNG") || !png->flush()) {
      return Fail(err, "--png: writing '" + options.PngPath.toStdString() + "' failed", ExitWriteFailed);
    }
  }
  PrintSummary(out, world, options.Ticks, elapsed.count());
  return ExitOk;
}

}  // namespace keldor::headless
