// The command line of keldor-sweep, described as keldor-headless's is.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace keldor::sweep {

inline constexpr int MaxJobs = 1024;

struct SweepOptions {
  std::string ExperimentPath;
  std::string OutPath = "results.csv";
  int Jobs = 1;
  int64_t ShardIndex = 1;  // this shard, from 1
  int64_t ShardCount = 1;
  bool Resume = false;
};

struct ParsedSweepArguments {
  enum class Outcome { Run, Help, Version, Error };
  Outcome Result = Outcome::Error;
  SweepOptions Options;
  std::string Message;  // the help text, the version line, or the error naming the bad argument
};

// Parses the full argument list (program name first). --jobs defaults to
// `cores`.
ParsedSweepArguments ParseSweepArguments(const std::vector<std::string>& arguments, int cores);

}  // namespace keldor::sweep
