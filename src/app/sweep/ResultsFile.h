// The results table of a sweep: a header, then one row per run, with the
// record of its experiment beside it (ExperimentRecord.h). One sweep writes a
// table at a time: it holds an advisory lock (flock) on the table while it
// is open, and a second sweep is refused. Each row is written whole, every
// byte checked, so an interrupted sweep leaves complete rows, and --resume
// carries on from them after checking every one.
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "app/sweep/Experiment.h"

namespace keldor::sweep {

// run, the varied option names, seed, then the per-tick CSV's columns.
std::string ResultsHeader(const Experiment& experiment);
// The row of a run whose last tick gave `lastTickRow` (a per-tick CSV row).
std::string ResultsRow(const RunPlan& run, const std::string& lastTickRow);

// The run of a complete table row (without its line end), after checking
// that it has the header's field count, a run number of the experiment and
// the seed the experiment gives that run; else what is wrong with it.
struct CheckedRow {
  int64_t Run = -1;
  std::string Problem;
};
CheckedRow CheckRow(std::string_view row, const Experiment& experiment);

// Runs start..RunCount-1 in steps of `step`: the runs of one shard.
struct RunSet {
  int64_t Start = 0;
  int64_t Step = 1;
  bool Holds(int64_t run) const { return run >= Start && (run - Start) % Step == 0; }
};

// Why a table cannot be written, with the exit status that says so.
struct TableRefusal {
  std::string Message;
  int Status;
};

class ResultsFile {
 public:
  ResultsFile() = default;
  ~ResultsFile();
  ResultsFile(const ResultsFile&) = delete;
  ResultsFile& operator=(const ResultsFile&) = delete;

  // Starts the table for the runs `runs` of the experiment. A path that is
  // no regular file, or a table another sweep holds, is refused; so is one
  // that already holds text, unless `resume` is set: then its experiment
  // record must be this experiment's, its header this header, and every
  // complete row a checked row of one of `runs`, none twice. A half-written
  // last line is dropped, and the runs of the rows count as done.
  std::optional<TableRefusal> Open(const std::string& path, const Experiment& experiment, RunSet runs, bool resume);
  const std::set<int64_t>& DoneRuns() const { return done_; }
  // Writes one row whole; the reason when that failed.
  std::optional<std::string> Append(std::string_view row);
  // Flushes the table to disk; the reason when that failed.
  std::optional<std::string> Finish();

 private:
  std::optional<std::string> ReadDoneRuns(const Experiment& experiment, RunSet runs);

  std::string path_;
  int fd_ = -1;
  std::set<int64_t> done_;
};

}  // namespace keldor::sweep
