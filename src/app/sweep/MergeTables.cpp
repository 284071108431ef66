#include "app/sweep/MergeTables.h"

#include <fstream>
#include <map>
#include <optional>
#include <sstream>

#include "app/headless/FailureReport.h"
#include "app/headless/HeadlessRun.h"
#include "worldfile/ReplacingFile.h"
#include "app/sweep/ExperimentRecord.h"
#include "app/sweep/ResultsFile.h"

namespace keldor::sweep {

using headless::ExitBadArguments;
using headless::ExitOk;
using headless::ExitWriteFailed;

namespace {

// Runs named in a message: the first few, then how many in all.
constexpr size_t NamedRuns = 20;

int Fail(std::ostream& err, const std::string& message, int status) {
  return headless::ReportFailure(err, "keldor-sweep merge", message, status);
}

std::optional<std::string> ReadText(const std::string& path, std::string& text) {
  if (auto problem = NotARegularFile(path)) return "cannot read '" + path + "': " + *problem;
  std::ifstream file(path, std::ios::binary);
  std::ostringstream read;
  if (!file || !(read << file.rdbuf())) return "cannot read '" + path + "'";
  text = read.str();
  return std::nullopt;
}

std::string RunList(const std::vector<int64_t>& runs) {
  std::string list;
  for (size_t i = 0; i < runs.size() && i < NamedRuns; ++i) list += (i == 0 ? "" : ", ") + std::to_string(runs[i]);
  if (runs.size() > NamedRuns) list += ", ... (" + std::to_string(runs.size()) + " in all)";
  return list;
}

}  // namespace

int MergeTables(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
  if (arguments.size() < 2) return Fail(err, "usage: keldor-sweep merge OUT TABLE...", ExitBadArguments);
  const std::string& outPath = arguments[0];
  std::optional<Json> record;
  Experiment experiment;
  std::map<int64_t, std::string> rows;  // by run, with its line end
  for (size_t t = 1; t < arguments.size(); ++t) {
    const std::string& table = arguments[t];
    std::string recordText, text;
    if (auto problem = ReadText(ExperimentRecordPath(table), recordText)) return Fail(err, *problem, ExitBadArguments);
    const JsonParse parsed = ParseJson(recordText);
    if (!parsed.Error.empty()) return Fail(err, "'" + ExperimentRecordPath(table) + "': " + parsed.Error, ExitBadArguments);
    if (!record) {
      const ExperimentParse read = ParseExperiment(recordText);
      if (!read.Error.empty()) return Fail(err, "'" + ExperimentRecordPath(table) + "': " + read.Error, ExitBadArguments);
      record = parsed.Value;
      experiment = read.Result;
    } else if (auto changed = ChangedKeys(*record, parsed.Value)) {
      return Fail(err, "'" + table + "' belongs to another experiment than '" + arguments[1] + "' (changed: " + *changed + ")",
                  ExitBadArguments);
    }
    if (auto problem = ReadText(table, text)) return Fail(err, *problem, ExitBadArguments);
    const std::string header = ResultsHeader(experiment);
    if (text.rfind(header, 0) != 0) return Fail(err, "'" + table + "': its header is not the experiment's", ExitBadArguments);
    if (!text.empty() && text.back() != '\n') return Fail(err, "'" + table + "' ends in a row cut short", ExitBadArguments);
    int line = 2;
    for (size_t start = header.size(); start < text.size(); ++line) {
      const size_t end = text.find('\n', start);
      const CheckedRow row = CheckRow(std::string_view(text).substr(start, end - start), experiment);
      const std::string where = "'" + table + "' line " + std::to_string(line);
      if (!row.Problem.empty()) return Fail(err, where + " " + row.Problem, ExitBadArguments);
      if (!rows.emplace(row.Run, text.substr(start, end + 1 - start)).second) {
        return Fail(err, where + " holds run " + std::to_string(row.Run) + ", which an earlier row holds", ExitBadArguments);
      }
      start = end + 1;
    }
  }
  std::vector<int64_t> missing;
  for (int64_t run = 0; run < experiment.RunCount(); ++run) {
    if (!rows.contains(run)) missing.push_back(run);
  }
  if (!missing.empty()) {
    return Fail(err, std::to_string(missing.size()) + " of " + std::to_string(experiment.RunCount()) +
                         " runs are missing: " + RunList(missing),
                ExitBadArguments);
  }
  std::string merged = ResultsHeader(experiment);
  for (const auto& [run, row] : rows) merged += row;
  for (const auto& [path, text] : {std::pair{ExperimentRecordPath(outPath), record->dump() + "\n"}, std::pair{outPath, merged}}) {
    ReplacingFile file;
    std::optional<std::string> problem = file.Open(path);
    if (!problem) {
      file.Write(text);
      problem = file.Commit();
    }
    if (problem) return Fail(err, "cannot write '" + path + "': " + *problem, ExitWriteFailed);
  }
  out << "keldor-sweep merge: " << rows.size() << " runs from " << arguments.size() - 1 << " tables in '" << outPath
      << "'" << std::endl;
  return ExitOk;
}

}  // namespace keldor::sweep
