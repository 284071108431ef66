#include "app/headless/HeadlessOptions.h"

#include <limits>

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QFileInfo>

#include "model/Numeric.h"
#include "window/OptionsForm.h"
#include "model/WorldCreation.h"

namespace keldor::headless {

namespace {

constexpr int64_t MaxTicks = std::numeric_limits<int32_t>::max();

QList<QCommandLineOption> DefineOptions() {
  return {
      {"load", "Start from the world state FILE (a --json output) instead of New; world options are refused.", "FILE"},
      {"seed", "Reproducible run: the clock starts from seed N and advances 75 ms per tick.", "N"},
      {"grid", "Grid of N x N cells (1..181, default 30).", "N"},
      {"food-rate", "Percent chance that a free cell gets food at New (0..100, default 2).", "P"},
      {"ants-per-nest", "Ants of every nest created, queen included (0..32767, default 30).", "N"},
      {"ant-size", "Ant length in millimetres (above 0, at most the nest radius; default 3).", "MM"},
      {"life-span", "Life span of new nests' ants (1..100, default 100).", "N"},
      {"food-trace", "The options dialog's \"Food Scent\" slider, which caps a bite's scent mark (0..500, default 0: never moved).", "N"},
      {"nest", "Create a nest on cell X,Y. May repeat; applied in order.", "X,Y"},
      {"wall", "Put a plaster brick on cell X,Y unless one stands there. May repeat.", "X,Y"},
      {"food", "Lay a food pile on cell X,Y unless it holds food. May repeat.", "X,Y"},
      {"ticks", "Run N ticks (default 0).", "N"},
      {"paused", "Run the ticks with the world paused."},
      {"play", "Play a loaded world that was saved paused."},
      {"json", "Write the final state of the world to FILE.", "FILE"},
      {"csv", "Write one row of totals per tick to FILE.", "FILE"},
      {"png", "Write the last frame (terrain view and mini-map) to FILE.", "FILE"},
      {"frames", "Write the frame of every Nth tick (see --every) to DIR as frame-000100.png...", "DIR"},
      {"every", "With --frames: a frame every N ticks (default 1).", "N"},
      {"view", "Terrain view size in pixels (default 448,403).", "W,H"},
      {"zoom", "Zoom of the terrain view (2..100, default 10).", "Z"},
      {"odor", "Show the odor traces."},
      {"hide-ants", "Hide the ants."},
  };
}

bool TakesValue(const QList<QCommandLineOption>& options, const QString& name) {
  for (const QCommandLineOption& o : options) {
    if (o.names().contains(name)) return !o.valueName().isEmpty();
  }
  return false;
}

std::optional<ScenarioKind> ScenarioKindOf(const QString& name) {
  if (name == "nest") return ScenarioKind::Nest;
  if (name == "wall") return ScenarioKind::Wall;
  if (name == "food") return ScenarioKind::Food;
  return std::nullopt;
}

struct NamedValue {
  QString Name;
  QString Value;
};

// The scenario options with their values, in command-line order. The parser
// keeps each option's values in order but not how different options interleave.
std::vector<NamedValue> ScenarioInOrder(const QStringList& arguments, const QList<QCommandLineOption>& options) {
  std::vector<NamedValue> found;
  for (qsizetype i = 1; i < arguments.size(); ++i) {
    const QString& argument = arguments[i];
    if (argument == "--") break;
    if (!argument.startsWith("--")) continue;
    QString name = argument.mid(2);
    QString value;
    const qsizetype equals = name.indexOf('=');
    if (equals >= 0) {
      value = name.mid(equals + 1);
      name = name.left(equals);
    } else if (TakesValue(options, name) && i + 1 < arguments.size()) {
      value = arguments[++i];
    }
    if (ScenarioKindOf(name)) found.push_back({name, value});
  }
  return found;
}

// Reads the values of one command line and records the first fault.
class ValueReader {
 public:
  bool Failed() const { return !error_.isEmpty(); }
  const QString& Error() const { return error_; }

  std::optional<int64_t> Integer(const QString& option, const QString& text, int64_t lo, int64_t hi) {
    bool ok = false;
    const qlonglong v = text.toLongLong(&ok);
    if (!ok) return Fail(QString("--%1: '%2' is not a whole number").arg(option, text));
    if (v < lo || v > hi) return Fail(QString("--%1: %2 is outside %3..%4").arg(option, text).arg(lo).arg(hi));
    return v;
  }

  std::optional<double> PositiveNumber(const QString& option, const QString& text) {
    bool ok = false;
    const double v = text.toDouble(&ok);
    if (!ok) return Fail(QString("--%1: '%2' is not a number").arg(option, text));
    if (!(v > 0)) return Fail(QString("--%1: %2 must be above 0").arg(option, text));
    return v;
  }

  // A file name; an empty one cannot be written.
  QString Path(const QString& option, const QString& text) {
    if (text.isEmpty()) Fail(QString("--%1: the file name is empty").arg(option));
    return text;
  }

  std::optional<uint64_t> Seed(const QString& text) {
    bool ok = false;
    const qulonglong v = text.toULongLong(&ok);
    if (!ok) return Fail(QString("--seed: '%1' is not a whole number from 0 to %2").arg(text).arg(UINT64_MAX));
    return v;
  }

  // "A,B" with both parts integers within lo..hi.
  std::optional<std::pair<int, int>> Pair(const QString& option, const QString& text, int lo, int hi) {
    const QStringList parts = text.split(',');
    if (parts.size() != 2) return Fail(QString("--%1: '%2' is not two numbers A,B").arg(option, text));
    const auto a = Integer(option, parts[0].trimmed(), lo, hi);
    const auto b = Integer(option, parts[1].trimmed(), lo, hi);
    if (!a || !b) return std::nullopt;
    return std::pair<int, int>(static_cast<int>(*a), static_cast<int>(*b));
  }

  std::nullopt_t Fail(const QString& message) {
    if (error_.isEmpty()) error_ = message;
    return std::nullopt;
  }

 private:
  QString error_;
};

template <class T>
std::optional<int> AsInt(const std::optional<T>& v) {
  if (!v) return std::nullopt;
  return static_cast<int>(*v);
}

// The options that set up the world New builds; a loaded world keeps its own.
constexpr const char* WorldOptionNames[] = {"grid", "food-rate", "ants-per-nest", "ant-size", "life-span", "food-trace"};

void ReadWorldOptions(const QCommandLineParser& parser, ValueReader& read, WorldOptions& world) {
  if (parser.isSet("grid")) world.Grid = AsInt(read.Integer("grid", parser.value("grid"), MinGridSize, MaxGridSize));
  if (parser.isSet("food-rate")) world.FoodRate = AsInt(read.Integer("food-rate", parser.value("food-rate"), 0, 100));
  if (parser.isSet("ants-per-nest")) {
    world.AntsPerNest = AsInt(read.Integer("ants-per-nest", parser.value("ants-per-nest"), 0, Int16Max));
  }
  if (parser.isSet("ant-size")) world.AntSizeMm = read.PositiveNumber("ant-size", parser.value("ant-size"));
  if (parser.isSet("life-span")) world.LifeSpan = AsInt(read.Integer("life-span", parser.value("life-span"), 1, 100));
  if (parser.isSet("food-trace")) {
    world.FoodTrace = AsInt(read.Integer("food-trace", parser.value("food-trace"), 0, TraceRange.Max));
  }
}

void ReadViewOptions(const QCommandLineParser& parser, ValueReader& read, ViewOptions& view) {
  if (parser.isSet("view")) {
    if (const auto size = read.Pair("view", parser.value("view"), 1, MaxViewPixels)) {
      view.Width = size->first;
      view.Height = size->second;
    }
  }
  if (parser.isSet("zoom")) view.Zoom = AsInt(read.Integer("zoom", parser.value("zoom"), MinZoom, MaxZoom));
  view.Odor = parser.isSet("odor");
  view.HideAnts = parser.isSet("hide-ants");
}

void ReadScenario(const std::vector<NamedValue>& steps, ValueReader& read, std::vector<ScenarioStep>& scenario) {
  for (const NamedValue& step : steps) {
    const auto cell = read.Pair(step.Name, step.Value, Int16Min, Int16Max);
    if (!cell) return;
    const std::string argument = ("--" + step.Name + " " + step.Value).toStdString();
    scenario.push_back({*ScenarioKindOf(step.Name), cell->first, cell->second, argument});
  }
}

// One file however it is named: through links, relative or absolute.
QString FileIdentity(const QString& path) {
  const QFileInfo info(path);
  const QString canonical = info.canonicalFilePath();
  return canonical.isEmpty() ? info.absoluteFilePath() : canonical;
}

void ReadOutputs(const QCommandLineParser& parser, ValueReader& read, HeadlessOptions& options) {
  if (parser.isSet("json")) options.JsonPath = read.Path("json", parser.value("json"));
  if (parser.isSet("csv")) options.CsvPath = read.Path("csv", parser.value("csv"));
  if (parser.isSet("png")) options.PngPath = read.Path("png", parser.value("png"));
  if (parser.isSet("frames")) options.FramesDir = read.Path("frames", parser.value("frames"));
  if (parser.isSet("every")) {
    if (!parser.isSet("frames")) read.Fail("--every: only with --frames");
    options.Every = read.Integer("every", parser.value("every"), 1, MaxTicks).value_or(1);
  }
  const std::pair<const char*, QString> files[] = {
      {"json", options.JsonPath}, {"csv", options.CsvPath}, {"png", options.PngPath}};
  for (size_t i = 0; i < std::size(files); ++i) {
    for (size_t j = 0; j < i; ++j) {
      if (files[i].second.isEmpty() || files[j].second.isEmpty()) continue;
      if (FileIdentity(files[i].second) == FileIdentity(files[j].second)) {
        read.Fail(QString("--%1: '%2' is the file --%3 writes").arg(files[i].first, files[i].second, files[j].first));
      }
    }
  }
}

void ReadLoad(const QCommandLineParser& parser, ValueReader& read, HeadlessOptions& options) {
  if (!parser.isSet("load")) return;
  options.LoadPath = read.Path("load", parser.value("load"));
  for (const char* name : WorldOptionNames) {
    if (parser.isSet(name)) read.Fail(QString("--%1: not with --load (the loaded world keeps its settings)").arg(name));
  }
}

}  // namespace

ParsedArguments ParseHeadlessArguments(const QStringList& arguments) {
  ParsedArguments parsed;
  const QList<QCommandLineOption> options = DefineOptions();
  QCommandLineParser parser;
  parser.setApplicationDescription(
      "Builds a Keldor world as File > New does, applies the scenario options in order,\n"
      "runs the simulation without a window and writes the requested files.");
  parser.addOptions(options);
  const QCommandLineOption help = parser.addHelpOption();

  if (!parser.parse(arguments)) {
    parsed.Message = parser.errorText();
    return parsed;
  }
  if (parser.isSet(help)) {
    parsed.Result = ParsedArguments::Outcome::Help;
    parsed.Message = parser.helpText();
    return parsed;
  }
  if (!parser.positionalArguments().isEmpty()) {
    parsed.Message = QString("unexpected argument '%1'").arg(parser.positionalArguments().first());
    return parsed;
  }

  HeadlessOptions& o = parsed.Options;
  ValueReader read;
  ReadLoad(parser, read, o);
  if (parser.isSet("seed")) o.Seed = read.Seed(parser.value("seed"));
  ReadWorldOptions(parser, read, o.World);
  ReadScenario(ScenarioInOrder(arguments, options), read, o.Scenario);
  if (parser.isSet("ticks")) o.Ticks = read.Integer("ticks", parser.value("ticks"), 0, MaxTicks).value_or(0);
  o.Paused = parser.isSet("paused");
  o.Play = parser.isSet("play");
  if (o.Paused && o.Play) read.Fail("--play: cannot be given with --paused");
  ReadViewOptions(parser, read, o.View);
  ReadOutputs(parser, read, o);
  if (read.Failed()) {
    parsed.Message = read.Error();
    return parsed;
  }
  parsed.Result = ParsedArguments::Outcome::Run;
  return parsed;
}

std::optional<OptionForm> FindOptionForm(const QString& name) {
  for (const QCommandLineOption& o : DefineOptions()) {
    if (!o.names().contains(name)) continue;
    if (ScenarioKindOf(name)) return OptionForm::Repeatable;
    return o.valueName().isEmpty() ? OptionForm::Flag : OptionForm::Value;
  }
  return std::nullopt;
}

}  // namespace keldor::headless
