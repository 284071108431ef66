// The results table of a sweep: a header, then one row per run. Each row is
// written whole and flushed, so an interrupted sweep leaves complete rows and
// --resume can carry on from them.
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>

#include <QFile>
#include <QString>

#include "app/sweep/Experiment.h"

namespace keldor::sweep {

// run, the varied option names, seed, then the per-tick CSV's columns.
std::string ResultsHeader(const Experiment& experiment);
// The row of a run whose last tick gave `lastTickRow` (a per-tick CSV row).
std::string ResultsRow(const RunPlan& run, const std::string& lastTickRow);

class ResultsFile {
 public:
  // Starts the table. A file that already holds text is refused unless
  // `resume` is set; then its header must be `header`, a half-written last
  // line is dropped, and the runs of its rows count as done.
  std::optional<std::string> Open(const QString& path, const std::string& header, bool resume);
  const std::set<int64_t>& DoneRuns() const { return done_; }
  // Writes one row and flushes it; false when that failed.
  bool Append(const std::string& row);

 private:
  std::optional<std::string> ReadDoneRuns(const std::string& header);

  QFile file_;
  std::set<int64_t> done_;
};

}  // namespace keldor::sweep
