#include "app/sweep/ResultsFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <cstring>
#include <fstream>
#include <sstream>

#include "app/headless/HeadlessRun.h"
#include "worldfile/ReplacingFile.h"
#include "app/headless/TickCsv.h"
#include "app/sweep/ExperimentRecord.h"
#include "sim/TickTotals.h"

namespace keldor::sweep {

using headless::ExitBadArguments;
using headless::ExitWriteFailed;

namespace {

std::string SystemError() { return std::strerror(errno); }

// A CSV field, quoted when it holds a separator, quote or line end.
std::string CsvField(const std::string& text) {
  if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
  std::string quoted = "\"";
  for (const char c : text) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
  return quoted + "\"";
}

// The fields of one CSV line, quotes kept.
std::vector<std::string_view> CsvFields(std::string_view line) {
  std::vector<std::string_view> fields;
  size_t start = 0;
  bool quoted = false;
  for (size_t i = 0; i <= line.size(); ++i) {
    if (i < line.size() && line[i] == '"') quoted = !quoted;
    if (i == line.size() || (line[i] == ',' && !quoted)) {
      fields.push_back(line.substr(start, i - start));
      start = i + 1;
    }
  }
  return fields;
}

template <class Number>
std::optional<Number> WholeNumber(std::string_view text) {
  Number n{};
  const auto parsed = std::from_chars(text.data(), text.data() + text.size(), n);
  if (parsed.ec != std::errc() || parsed.ptr != text.data() + text.size()) return std::nullopt;
  return n;
}

bool WriteAll(int fd, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t n = ::write(fd, bytes.data(), bytes.size());
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    bytes.remove_prefix(static_cast<size_t>(n));
  }
  return true;
}

std::optional<std::string> ReadText(const std::string& path, std::string& text) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream read;
  if (!file || !(read << file.rdbuf())) return SystemError();
  text = read.str();
  return std::nullopt;
}

}  // namespace

std::string ResultsHeader(const Experiment& experiment) {
  std::string header = "run";
  for (const VariedOption& v : experiment.Vary) header += "," + CsvField(v.Name);
  return header + ",seed," + TickCsvHeader + "\n";
}

std::string ResultsRow(const RunPlan& run, const std::string& lastTickRow) {
  std::string row = std::to_string(run.Run);
  for (const std::string& value : run.VariedValues) row += "," + CsvField(value);
  return row + "," + std::to_string(run.Seed) + "," + lastTickRow;
}

CheckedRow CheckRow(std::string_view row, const Experiment& experiment) {
  const std::string header = ResultsHeader(experiment);
  const size_t expected = CsvFields(std::string_view(header).substr(0, header.size() - 1)).size();
  const std::vector<std::string_view> fields = CsvFields(row);
  if (fields.size() != expected) {
    return {-1, "has " + std::to_string(fields.size()) + " fields where the header has " + std::to_string(expected)};
  }
  const auto run = WholeNumber<int64_t>(fields[0]);
  if (!run || *run < 0 || *run >= experiment.RunCount()) {
    return {-1, "does not start with a run number from 0 to " + std::to_string(experiment.RunCount() - 1)};
  }
  const uint64_t seed = experiment.Run(*run).Seed;
  if (WholeNumber<uint64_t>(fields[experiment.Vary.size() + 1]) != seed) {
    return {-1, "gives run " + std::to_string(*run) + " another seed than " + std::to_string(seed)};
  }
  return {*run, ""};
}

ResultsFile::~ResultsFile() {
  if (fd_ >= 0) ::close(fd_);
}

std::optional<TableRefusal> ResultsFile::Open(const std::string& path, const Experiment& experiment, RunSet runs,
                                              bool resume) {
  path_ = path;
  const std::string name = "'" + path + "'";
  if (auto problem = NotARegularFile(path)) return TableRefusal{"--out: " + name + ": " + *problem, ExitBadArguments};
  fd_ = ::open(path.c_str(), O_RDWR | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
  if (fd_ < 0) return TableRefusal{"--out: cannot write " + name + ": " + SystemError(), ExitBadArguments};
  if (::flock(fd_, LOCK_EX | LOCK_NB) != 0) {
    return TableRefusal{"--out: " + name + " is being written by another sweep", ExitBadArguments};
  }
  struct stat status {};
  if (::fstat(fd_, &status) != 0) return TableRefusal{"--out: cannot read " + name + ": " + SystemError(), ExitBadArguments};
  if (status.st_size == 0) {
    ReplacingFile record;
    std::optional<std::string> problem = record.Open(ExperimentRecordPath(path));
    if (!problem) {
      record.Write(ExperimentRecord(experiment).dump() + "\n");
      problem = record.Commit();
    }
    if (problem) return TableRefusal{"--out: cannot write '" + ExperimentRecordPath(path) + "': " + *problem, ExitWriteFailed};
    if (auto failed = Append(ResultsHeader(experiment))) return TableRefusal{"--out: cannot write " + name + ": " + *failed, ExitWriteFailed};
    return std::nullopt;
  }
  if (!resume) {
    return TableRefusal{"--out: " + name + " already holds a table; pass --resume to complete it, or choose another file",
                        ExitBadArguments};
  }
  if (auto problem = ReadDoneRuns(experiment, runs)) return TableRefusal{"--resume: " + name + " " + *problem, ExitBadArguments};
  return std::nullopt;
}

std::optional<std::string> ResultsFile::ReadDoneRuns(const Experiment& experiment, RunSet runs) {
  std::string recordText;
  if (auto problem = ReadText(ExperimentRecordPath(path_), recordText)) {
    return "has no readable record of its experiment ('" + ExperimentRecordPath(path_) + "': " + *problem + ")";
  }
  const JsonParse record = ParseJson(recordText);
  if (!record.Error.empty()) return "has a damaged record of its experiment: " + record.Error;
  if (auto changed = ChangedKeys(record.Value, ExperimentRecord(experiment))) {
    return "belongs to another experiment (changed: " + *changed + ")";
  }
  std::string text;
  if (auto problem = ReadText(path_, text)) return "cannot be read: " + *problem;
  const std::string header = ResultsHeader(experiment);
  if (text.rfind(header, 0) != 0) return "holds another experiment's table (its header differs)";
  // Everything after the last line end is a row cut short: it goes.
  const size_t complete = text.rfind('\n') + 1;
  if (::ftruncate(fd_, static_cast<off_t>(complete)) != 0) return "cannot be cut to its complete rows: " + SystemError();
  int line = 2;
  for (size_t start = header.size(); start < complete; ++line) {
    const size_t end = text.find('\n', start);
    const CheckedRow row = CheckRow(std::string_view(text).substr(start, end - start), experiment);
    const std::string where = "line " + std::to_string(line);
    if (!row.Problem.empty()) return where + " " + row.Problem;
    if (!runs.Holds(row.Run)) return where + " holds run " + std::to_string(row.Run) + ", which is not of this shard";
    if (!done_.insert(row.Run).second) return where + " holds run " + std::to_string(row.Run) + " a second time";
    start = end + 1;
  }
  return std::nullopt;
}

std::optional<std::string> ResultsFile::Append(std::string_view row) {
  if (!WriteAll(fd_, row)) return SystemError();
  return std::nullopt;
}

std::optional<std::string> ResultsFile::Finish() {
  if (::fsync(fd_) != 0) return SystemError();
  return std::nullopt;
}

}  // namespace keldor::sweep
