// The command line of keldor-sweep.
#pragma once

#include <cstdint>

#include <QString>
#include <QStringList>

namespace keldor::sweep {

inline constexpr int MaxJobs = 1024;

struct SweepOptions {
  QString ExperimentPath;
  QString OutPath = "results.csv";
  int Jobs = 1;
  int64_t ShardIndex = 1;  // this shard, from 1
  int64_t ShardCount = 1;
  bool Resume = false;
};

struct ParsedSweepArguments {
  enum class Outcome { Run, Help, Error };
  Outcome Result = Outcome::Error;
  SweepOptions Options;
  QString Message;  // the help text, or the error naming the bad argument
};

// Parses the full argument list (program name first). --jobs defaults to
// `cores`.
ParsedSweepArguments ParseSweepArguments(const QStringList& arguments, int cores);

}  // namespace keldor::sweep
