#include "app/sweep/Sweep.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <iomanip>
#include <map>
#include <mutex>
#include <thread>
#include <vector>

#include <QFile>
#include <QString>

#include "app/headless/FailureReport.h"
#include "app/headless/HeadlessRun.h"
#include "worldfile/ReplacingFile.h"
#include "app/sweep/ExperimentCheck.h"
#include "app/sweep/MergeTables.h"
#include "app/sweep/ProgressBar.h"
#include "app/sweep/ResultsFile.h"
#include "app/sweep/SweepOptions.h"
#include "app/sweep/SweepRun.h"

namespace keldor::sweep {

using headless::ExitBadArguments;
using headless::ExitOk;
using headless::ExitWriteFailed;

namespace {

constexpr const char* ProgramName = "keldor-sweep";
// An experiment file is a few lines; a larger file is refused before it is read.
constexpr qint64 MaxExperimentBytes = qint64{16} << 20;

int Fail(std::ostream& err, const std::string& message, int status) {
  return headless::ReportFailure(err, ProgramName, message, status);
}

// A run's series table beside the results: results.csv -> results-run-000012.csv.
std::string SeriesPath(const std::string& out, int64_t run) {
  const QString outPath = QString::fromStdString(out);
  const QString base = outPath.endsWith(".csv") ? outPath.chopped(4) : outPath;
  return (base + QString("-run-%1.csv").arg(run, 6, 10, QChar('0'))).toStdString();
}

// Whether a done run's series table is there whole: its header and a row
// for every `every`-th tick, each line ended.
bool SeriesComplete(const std::string& path, const Experiment& experiment) {
  QFile file(QString::fromStdString(path));
  if (NotARegularFile(path) || !file.open(QIODevice::ReadOnly)) return false;
  const QByteArray text = file.readAll();
  return text.endsWith('\n') && text.count('\n') == 1 + experiment.Ticks / experiment.Every;
}

struct FinishedRun {
  std::string Row;
  std::string Messages;
  std::string Error;  // empty when the run succeeded
  int Status = ExitOk;
};

FinishedRun Execute(const Experiment& experiment, const std::string& outPath, int64_t run) {
  const RunPlan plan = experiment.Run(run);
  if (!plan.Error.empty()) return {"", "", "run " + std::to_string(run) + ": " + plan.Error, ExitBadArguments};
  const RunOutcome outcome = RunOne(plan.Options, experiment.Every);
  if (outcome.Error) return {"", "", "run " + std::to_string(run) + ": " + *outcome.Error, ExitBadArguments};
  if (experiment.Every > 0) {
    // The series is on disk whole before the run's row is written.
    const std::string path = SeriesPath(outPath, run);
    ReplacingFile series;
    std::optional<std::string> problem = series.Open(path);
    if (!problem) {
      series.Write(outcome.Series);
      problem = series.Commit();
    }
    if (problem) return {"", "", "cannot write '" + path + "': " + *problem, ExitWriteFailed};
  }
  return {ResultsRow(plan, outcome.LastRow), outcome.Messages, "", ExitOk};
}

// Runs the pending runs on `jobs` threads. Each thread takes the next run in
// order; the calling thread hands each finished run to `write` in that order.
// A false return from `write` stops the pool after the runs under way.
template <class Write>
void RunPool(const Experiment& experiment, const std::string& outPath, const std::vector<int64_t>& pending, int jobs,
             Write write) {
  std::map<size_t, FinishedRun> finished;  // by index in `pending`, until written
  std::mutex mutex;
  std::condition_variable ready;
  std::atomic<size_t> next{0};
  std::atomic<bool> stop{false};
  auto work = [&] {
    for (size_t i = next++; i < pending.size() && !stop; i = next++) {
      FinishedRun run = Execute(experiment, outPath, pending[i]);
      const std::lock_guard lock(mutex);
      finished.emplace(i, std::move(run));
      ready.notify_all();
    }
  };
  std::vector<std::jthread> threads;
  for (int j = 0; j < std::min<int64_t>(jobs, static_cast<int64_t>(pending.size())); ++j) threads.emplace_back(work);
  for (size_t i = 0; i < pending.size() && !stop; ++i) {
    std::unique_lock lock(mutex);
    ready.wait(lock, [&] { return finished.contains(i); });
    const FinishedRun run = std::move(finished.extract(i).mapped());
    lock.unlock();
    if (!write(pending[i], run)) stop = true;
  }
  stop = true;
}

}  // namespace

int RunSweep(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err, bool errIsTerminal) {
  if (arguments.size() >= 2 && arguments[1] == "merge") {
    return MergeTables({arguments.begin() + 2, arguments.end()}, out, err);
  }
  const ParsedSweepArguments parsed =
      ParseSweepArguments(arguments, static_cast<int>(std::thread::hardware_concurrency()));
  if (parsed.Result == ParsedSweepArguments::Outcome::Help || parsed.Result == ParsedSweepArguments::Outcome::Version) {
    out << parsed.Message;
    return ExitOk;
  }
  if (parsed.Result == ParsedSweepArguments::Outcome::Error) return Fail(err, parsed.Message, ExitBadArguments);
  const SweepOptions& options = parsed.Options;

  const std::string experimentName = "'" + options.ExperimentPath + "'";
  QFile experimentFile(QString::fromStdString(options.ExperimentPath));
  // A device or FIFO could block or never end; a huge file is no experiment.
  if (auto problem = NotARegularFile(options.ExperimentPath)) {
    return Fail(err, "cannot read " + experimentName + ": " + *problem, ExitBadArguments);
  }
  if (experimentFile.size() > MaxExperimentBytes) {
    return Fail(err, "cannot read " + experimentName + ": larger than " + std::to_string(MaxExperimentBytes) + " bytes",
                ExitBadArguments);
  }
  if (!experimentFile.open(QIODevice::ReadOnly)) {
    return Fail(err, "cannot read " + experimentName + ": " + experimentFile.errorString().toStdString(),
                ExitBadArguments);
  }
  const QByteArray text = experimentFile.readAll();
  const ExperimentParse experiment = ParseExperiment(std::string_view(text.data(), text.size()));
  if (!experiment.Error.empty()) return Fail(err, experimentName + ": " + experiment.Error, ExitBadArguments);
  const Experiment& e = experiment.Result;
  if (auto problem = CheckExperiment(e)) return Fail(err, experimentName + ": " + *problem, ExitBadArguments);

  ResultsFile results;
  if (auto refusal = results.Open(options.OutPath, e, {options.ShardIndex - 1, options.ShardCount}, options.Resume)) {
    return Fail(err, refusal->Message, refusal->Status);
  }
  // A run counts as done only with its series table whole.
  for (const int64_t run : results.DoneRuns()) {
    if (e.Every > 0 && !SeriesComplete(SeriesPath(options.OutPath, run), e)) {
      return Fail(err, "--resume: the series table of run " + std::to_string(run) + " ('" + SeriesPath(options.OutPath, run) +
                           "') is missing or cut short; remove its row from '" + options.OutPath + "' to run it again",
                  ExitBadArguments);
    }
  }
  std::vector<int64_t> pending;
  int64_t inShard = 0;
  for (int64_t run = options.ShardIndex - 1; run < e.RunCount(); run += options.ShardCount) {
    ++inShard;
    if (!results.DoneRuns().contains(run)) pending.push_back(run);
  }

  ProgressBar progress(err, static_cast<int64_t>(pending.size()), errIsTerminal);
  progress.Update(0);
  int status = ExitOk;
  int64_t written = 0;
  const auto start = std::chrono::steady_clock::now();
  RunPool(e, options.OutPath, pending, options.Jobs, [&](int64_t run, const FinishedRun& finished) {
    if (!finished.Error.empty()) {
      progress.Clear();
      status = Fail(err, finished.Error, finished.Status);
      return false;
    }
    if (auto problem = results.Append(finished.Row)) {
      progress.Clear();
      status = Fail(err, "--out: cannot write '" + options.OutPath + "': " + *problem, ExitWriteFailed);
      return false;
    }
    if (!finished.Messages.empty()) {
      progress.Clear();
      err << "run " << run << ": " << finished.Messages << std::flush;
    }
    progress.Update(++written);
    return true;
  });
  if (status != ExitOk) return status;
  if (auto problem = results.Finish()) {
    return Fail(err, "--out: cannot write '" + options.OutPath + "': " + *problem, ExitWriteFailed);
  }
  const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
  out << ProgramName << ": " << written << " runs of " << inShard << " in this shard (" << inShard - written
      << " already done), " << std::fixed << std::setprecision(1) << elapsed.count() << " s" << std::endl;
  return ExitOk;
}

}  // namespace keldor::sweep
