#include "app/sweep/SweepOptions.h"

#include <algorithm>
#include <charconv>

#include "Version.h"
#include "app/headless/OptionTable.h"
#include "app/sweep/Experiment.h"

namespace keldor::sweep {

namespace {

using headless::OptionValue;

constexpr const char* Usage = "keldor-sweep [options] EXPERIMENT";
constexpr const char* Description =
    "Runs every combination of an experiment's varied keldor-headless options, each\n"
    "repeated with seeds seed, seed + 1, ..., and writes one row of last-tick totals per run.\n"
    "EXPERIMENT is a JSON file. The table's experiment is kept beside it in TABLE.experiment.\n"
    "keldor-sweep merge OUT TABLE... joins the tables of a sharded sweep into OUT, checking\n"
    "that they come from one experiment and hold every run exactly once.";

// "I/N" with 1 <= I <= N <= MaxRuns.
bool ReadShard(const std::string& text, SweepOptions& o) {
  const size_t slash = text.find('/');
  if (slash == std::string::npos) return false;
  const char* end = text.data() + text.size();
  const auto index = std::from_chars(text.data(), text.data() + slash, o.ShardIndex);
  const auto count = std::from_chars(text.data() + slash + 1, end, o.ShardCount);
  return index.ec == std::errc() && index.ptr == text.data() + slash && count.ec == std::errc() && count.ptr == end &&
         o.ShardCount >= 1 && o.ShardCount <= MaxRuns && o.ShardIndex >= 1 && o.ShardIndex <= o.ShardCount;
}

}  // namespace

ParsedSweepArguments ParseSweepArguments(const std::vector<std::string>& arguments, int cores) {
  ParsedSweepArguments parsed;
  SweepOptions& o = parsed.Options;
  o.Jobs = std::clamp(cores, 1, MaxJobs);
  bool help = false;
  bool version = false;
  std::string shard;
  using enum headless::ValueType;
  const headless::OptionTable table = {
      {"out", Path, "FILE", 0, 0, false, false, "Write the results table to FILE (default results.csv).",
       [&](const OptionValue& v) { o.OutPath = std::get<std::string>(v); }},
      {"jobs", Whole, "N", 1, MaxJobs, false, false, "Run N runs at a time (default: every core).",
       [&](const OptionValue& v) { o.Jobs = static_cast<int>(std::get<int64_t>(v)); }},
      {"shard", Text, "I/N", 0, 0, false, false, "Run only the runs whose number modulo N is I - 1 (1 <= I <= N).",
       [&](const OptionValue& v) { shard = std::get<std::string>(v); }},
      {"resume", Flag, "", 0, 0, false, false,
       "Keep the rows already in the results table and run only the missing runs.",
       [&](const OptionValue&) { o.Resume = true; }},
      {"version", Flag, "", 0, 0, false, false, "Print the version and stop.",
       [&](const OptionValue&) { version = true; }},
      {"help", Flag, "", 0, 0, false, false, "Print this help and stop.", [&](const OptionValue&) { help = true; }},
  };
  const headless::CommandLineRead read = headless::ReadCommandLine(table, arguments);
  if (help) {
    parsed.Result = ParsedSweepArguments::Outcome::Help;
    parsed.Message = headless::HelpText(Usage, Description, table);
  } else if (version) {
    parsed.Result = ParsedSweepArguments::Outcome::Version;
    parsed.Message = std::string("keldor-sweep ") + KeldorVersion + "\n";
  } else if (!read.Error.empty()) {
    parsed.Message = read.Error;
  } else if (read.Positional.size() != 1) {
    parsed.Message = read.Positional.empty() ? "no experiment file given"
                                             : "unexpected argument '" + read.Positional[1] + "'";
  } else if (std::find(read.Given.begin(), read.Given.end(), "shard") != read.Given.end() && !ReadShard(shard, o)) {
    parsed.Message = "--shard: '" + shard + "' is not I/N with 1 <= I <= N";
  } else {
    o.ExperimentPath = read.Positional[0];
    parsed.Result = ParsedSweepArguments::Outcome::Run;
  }
  return parsed;
}

}  // namespace keldor::sweep
