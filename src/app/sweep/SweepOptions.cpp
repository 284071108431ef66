#include "app/sweep/SweepOptions.h"

#include <algorithm>

#include <QCommandLineParser>

#include "app/sweep/Experiment.h"

namespace keldor::sweep {

ParsedSweepArguments ParseSweepArguments(const QStringList& arguments, int cores) {
  ParsedSweepArguments parsed;
  QCommandLineParser parser;
  parser.setApplicationDescription(
      "Runs every combination of an experiment's varied keldor-headless options, each\n"
      "repeated with seeds seed, seed + 1, ..., and writes one row of last-tick totals per run.");
  parser.addPositionalArgument("EXPERIMENT", "The experiment, a JSON file.");
  parser.addOptions({
      {"out", "Write the results table to FILE (default results.csv).", "FILE"},
      {"jobs", "Run N runs at a time (default: every core).", "N"},
      {"shard", "Run only the runs whose number modulo N is I - 1 (1 <= I <= N).", "I/N"},
      {"resume", "Keep the rows already in the results table and run only the missing runs."},
  });
  const QCommandLineOption help = parser.addHelpOption();
  if (!parser.parse(arguments)) {
    parsed.Message = parser.errorText();
    return parsed;
  }
  if (parser.isSet(help)) {
    parsed.Result = ParsedSweepArguments::Outcome::Help;
    parsed.Message = parser.helpText();
    return parsed;
  }
  const QStringList positional = parser.positionalArguments();
  if (positional.size() != 1) {
    parsed.Message = positional.isEmpty() ? "no experiment file given"
                                          : QString("unexpected argument '%1'").arg(positional[1]);
    return parsed;
  }
  SweepOptions& o = parsed.Options;
  o.ExperimentPath = positional[0];
  o.Resume = parser.isSet("resume");
  if (parser.isSet("out")) o.OutPath = parser.value("out");
  if (o.OutPath.isEmpty()) {
    parsed.Message = "--out: the file name is empty";
    return parsed;
  }
  o.Jobs = std::clamp(cores, 1, MaxJobs);
  if (parser.isSet("jobs")) {
    bool ok = false;
    o.Jobs = parser.value("jobs").toInt(&ok);
    if (!ok || o.Jobs < 1 || o.Jobs > MaxJobs) {
      parsed.Message = QString("--jobs: '%1' is not a whole number from 1 to %2").arg(parser.value("jobs")).arg(MaxJobs);
      return parsed;
    }
  }
  if (parser.isSet("shard")) {
    const QStringList parts = parser.value("shard").split('/');
    bool okIndex = false;
    bool okCount = false;
    if (parts.size() == 2) {
      o.ShardIndex = parts[0].toLongLong(&okIndex);
      o.ShardCount = parts[1].toLongLong(&okCount);
    }
    if (!okIndex || !okCount || o.ShardCount < 1 || o.ShardCount > MaxRuns || o.ShardIndex < 1 ||
        o.ShardIndex > o.ShardCount) {
      parsed.Message = QString("--shard: '%1' is not I/N with 1 <= I <= N").arg(parser.value("shard"));
      return parsed;
    }
  }
  parsed.Result = ParsedSweepArguments::Outcome::Run;
  return parsed;
}

}  // namespace keldor::sweep
