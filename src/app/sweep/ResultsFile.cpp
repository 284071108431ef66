#include "app/sweep/ResultsFile.h"

#include <charconv>

#include "app/headless/TickCsv.h"
#include "sim/TickTotals.h"

namespace keldor::sweep {

namespace {

// A CSV field, quoted when it holds a separator, quote or line end.
std::string CsvField(const std::string& text) {
  if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
  std::string quoted = "\"";
  for (const char c : text) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
  return quoted + "\"";
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

std::optional<std::string> ResultsFile::Open(const QString& path, const std::string& header, bool resume) {
  file_.setFileName(path);
  const std::string name = "'" + path.toStdString() + "'";
  if (!resume && file_.exists() && file_.size() > 0) {
    return "--out: " + name + " already holds a table; pass --resume to complete it, or choose another file";
  }
  if (!file_.open(QIODevice::ReadWrite)) return "--out: cannot write " + name + ": " + file_.errorString().toStdString();
  if (file_.size() == 0) return Append(header) ? std::nullopt : std::optional<std::string>("--out: writing " + name + " failed");
  if (auto problem = ReadDoneRuns(header)) return "--resume: " + name + " " + *problem;
  return std::nullopt;
}

std::optional<std::string> ResultsFile::ReadDoneRuns(const std::string& header) {
  const QByteArray text = file_.readAll();
  if (!text.startsWith(QByteArray::fromStdString(header))) return "holds another experiment's table (its header differs)";
  // Everything after the last line end is a row cut short: it goes.
  const qsizetype complete = text.lastIndexOf('\n') + 1;
  if (!file_.resize(complete) || !file_.seek(complete)) return "cannot be cut to its complete rows";
  int line = 1;
  for (qsizetype start = header.size(); start < complete; ++line) {
    const qsizetype end = text.indexOf('\n', start);
    int64_t run = -1;
    const auto parsed = std::from_chars(text.data() + start, text.data() + end, run);
    if (parsed.ec != std::errc() || *parsed.ptr != ',' || run < 0) {
      return "line " + std::to_string(line + 1) + " does not start with a run number";
    }
    done_.insert(run);
    start = end + 1;
  }
  return std::nullopt;
}

bool ResultsFile::Append(const std::string& row) {
  return file_.write(row.data(), static_cast<qint64>(row.size())) == static_cast<qint64>(row.size()) && file_.flush();
}

}  // namespace keldor::sweep
