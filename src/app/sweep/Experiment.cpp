#include "app/sweep/Experiment.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
#include <set>

#include "app/sweep/OptionJson.h"

namespace keldor::sweep {

namespace {

// One run's options, read value by value through keldor-headless's option
// table, with the names given for the checks of options together.
class OptionsBuilder {
 public:
  OptionsBuilder() : table_(headless::HeadlessOptionTable(options_, help_, version_)) {}
  OptionsBuilder(const OptionsBuilder&) = delete;
  OptionsBuilder& operator=(const OptionsBuilder&) = delete;

  // Stores an option an experiment may set; returns what is wrong, if anything.
  std::string Store(const std::string& name, const Json& value) {
    const headless::OptionRow* row = headless::FindOption(table_, name);
    if (row == nullptr) return "unknown option \"" + name + "\"";
    if (!row->InExperiments) {
      return "\"" + name + "\" is not set here (seed and ticks are top-level keys; the sweep writes its own files)";
    }
    return StoreSpec(*row, value);
  }

  // The top-level "ticks", checked as --ticks is.
  std::string StoreTicks(const Json& value) { return StoreSpec(*headless::FindOption(table_, "ticks"), value); }

  const headless::HeadlessOptions& Options() const { return options_; }
  std::optional<std::string> CheckCombinations() const { return headless::CheckCombinations(options_, given_); }

 private:
  std::string StoreSpec(const headless::OptionRow& row, const Json& value) {
    const JsonOptionRead read = StoreJsonOption(row, value);
    if (read.Given) given_.insert(row.Name);
    return read.Error;
  }

  headless::HeadlessOptions options_;
  bool help_ = false;
  bool version_ = false;
  headless::OptionTable table_;
  std::set<std::string> given_;
};

// A whole number within lo..hi, or nothing.
std::optional<int64_t> WholeNumber(const Json& v, double lo, double hi) {
  if (!v.is_number()) return std::nullopt;
  const double number = v.get<double>();
  if (!(number >= lo && number <= hi) || std::floor(number) != number) return std::nullopt;
  return static_cast<int64_t>(number);
}

class ExperimentReader {
 public:
  bool Failed() const { return !error_.empty(); }
  const std::string& Error() const { return error_; }

  void Fail(const std::string& message) {
    if (error_.empty()) error_ = message;
  }

  // Each shared option is read into one run's options, as every run reads them.
  Json Options(const Json& options) {
    if (!options.is_object()) {
      Fail("\"options\" must be an object");
      return Json::object();
    }
    OptionsBuilder run;
    for (const auto& item : options.items()) {
      if (const std::string problem = run.Store(item.key(), item.value()); !problem.empty()) Fail("options: " + problem);
    }
    if (const auto problem = run.CheckCombinations()) Fail("options: " + *problem);
    return options;
  }

  std::vector<VariedValue> Range(const std::string& where, const Json& range) {
    for (const auto& item : range.items()) {
      const std::string& key = item.key();
      if (key != "first" && key != "step" && key != "last") Fail(where + ": unknown key \"" + key + "\"");
    }
    for (const char* key : {"first", "step", "last"}) {
      if (!range.contains(key) || !range[key].is_number()) {
        Fail(where + ": a range needs the numbers \"first\", \"step\" and \"last\"");
        return {};
      }
    }
    const double first = range["first"].get<double>();
    const double step = range["step"].get<double>();
    const double last = range["last"].get<double>();
    const double steps = std::floor((last - first) / step + 1e-9);
    if (step == 0 || !(steps >= 0) || steps + 1 > static_cast<double>(MaxValues)) {
      Fail(where + ": a step of " + JsonText(range["step"]) + " from " + JsonText(range["first"]) +
           " does not reach " + JsonText(range["last"]) + " in at most " + std::to_string(MaxValues) + " values");
      return {};
    }
    const int firstDecimals = Decimals(first);
    const int stepDecimals = Decimals(step);
    const int decimals = firstDecimals < 0 || stepDecimals < 0 ? -1 : std::max(firstDecimals, stepDecimals);
    const auto count = static_cast<int64_t>(steps) + 1;
    std::vector<VariedValue> values;
    values.reserve(static_cast<size_t>(count));
    for (int64_t i = 0; i < count; ++i) values.push_back(RangeValue(first + static_cast<double>(i) * step, decimals));
    return values;
  }

  std::vector<VariedOption> Vary(const Json& vary) {
    std::vector<VariedOption> varied;
    if (!vary.is_object()) {
      Fail("\"vary\" must be an object");
      return varied;
    }
    for (const auto& item : vary.items()) {
      const std::string& name = item.key();
      const Json& values = item.value();
      const std::string where = "vary \"" + name + "\"";
      if (values.is_object()) {
        varied.push_back({name, Range(where, values)});
      } else if (values.is_array() && !values.empty()) {
        varied.push_back({name, {}});
        for (const Json& value : values) varied.back().Values.push_back({value, JsonText(value)});
      } else {
        Fail(where + ": give a list of values or {\"first\", \"step\", \"last\"}");
        continue;
      }
      // Each value on its own; how they combine with the rest is checked run by run.
      OptionsBuilder run;
      for (const VariedValue& value : varied.back().Values) {
        if (const std::string problem = run.Store(name, value.Value); !problem.empty()) Fail(where + ": " + problem);
        if (Failed()) break;
      }
    }
    return varied;
  }

 private:
  // Digits after the decimal point in a number's shortest exact form written
  // without an exponent (1e-05: 5); -1 when that is more than a double holds.
  static int Decimals(double v) {
    char buf[400];
    const auto written = std::to_chars(buf, buf + sizeof buf, v, std::chars_format::fixed);
    const std::string text(buf, written.ptr);
    const size_t point = text.find('.');
    const size_t decimals = point == std::string::npos ? 0 : text.size() - point - 1;
    return decimals > 17 ? -1 : static_cast<int>(decimals);
  }

  // A range's value with as many decimals as its first value and step have,
  // so that 0.1 steps give 0.3 and not 0.30000000000000004; the option gets
  // the number that text shows, a whole number when it has no decimals.
  static VariedValue RangeValue(double v, int decimals) {
    char buf[400];
    const auto written = decimals < 0 ? std::to_chars(buf, buf + sizeof buf, v)
                                      : std::to_chars(buf, buf + sizeof buf, v, std::chars_format::fixed, decimals);
    std::string text(buf, written.ptr);
    double shown = v;
    std::from_chars(text.data(), text.data() + text.size(), shown);
    constexpr double Limit = 9223372036854775808.0;  // 2^63
    const bool whole = decimals == 0 && shown >= -Limit && shown < Limit;
    return {whole ? Json(static_cast<int64_t>(shown)) : Json(shown), std::move(text)};
  }

  std::string error_;
};

}  // namespace

int64_t Experiment::CombinationCount() const {
  int64_t count = 1;
  for (const VariedOption& v : Vary) count *= static_cast<int64_t>(v.Values.size());
  return count;
}

RunPlan Experiment::Run(int64_t run) const {
  RunPlan plan;
  plan.Run = run;
  plan.Seed = Seed + static_cast<uint64_t>(run % Repetitions);
  std::vector<size_t> chosen(Vary.size());
  int64_t combination = run / Repetitions;
  for (size_t i = Vary.size(); i-- > 0;) {
    const auto size = static_cast<int64_t>(Vary[i].Values.size());
    chosen[i] = static_cast<size_t>(combination % size);
    combination /= size;
  }
  OptionsBuilder options;
  for (const auto& item : Options.items()) {
    if (std::string problem = options.Store(item.key(), item.value()); plan.Error.empty()) plan.Error = problem;
  }
  for (size_t i = 0; i < Vary.size(); ++i) {
    const VariedValue& value = Vary[i].Values[chosen[i]];
    if (std::string problem = options.Store(Vary[i].Name, value.Value); plan.Error.empty()) plan.Error = problem;
    plan.VariedValues.push_back(value.Text);
  }
  if (const auto problem = options.CheckCombinations(); plan.Error.empty() && problem) plan.Error = *problem;
  plan.Options = options.Options();
  plan.Options.Seed = plan.Seed;
  plan.Options.Ticks = Ticks;
  return plan;
}

ExperimentParse ParseExperiment(std::string_view text) {
  ExperimentParse parsed;
  const JsonParse json = ParseJson(text);
  if (!json.Error.empty()) {
    parsed.Error = json.Error;
    return parsed;
  }
  const Json& root = json.Value;
  if (!root.is_object()) {
    parsed.Error = "an experiment is a JSON object";
    return parsed;
  }
  ExperimentReader read;
  Experiment& e = parsed.Result;
  for (const auto& item : root.items()) {
    const std::string& key = item.key();
    const Json& value = item.value();
    if (key == "options") {
      e.Options = read.Options(value);
    } else if (key == "vary") {
      e.Vary = read.Vary(value);
    } else if (key == "repetitions") {
      const auto n = WholeNumber(value, 1, static_cast<double>(MaxRuns));
      if (!n) read.Fail("\"repetitions\": " + JsonText(value) + " is not a whole number from 1 to " + std::to_string(MaxRuns));
      e.Repetitions = n.value_or(1);
    } else if (key == "seed") {
      const auto n = WholeNumber(value, 0, MaxSeed);
      if (!n) read.Fail("\"seed\": " + JsonText(value) + " is not a whole number from 0 to 2^53");
      e.Seed = static_cast<uint64_t>(n.value_or(0));
    } else if (key == "ticks") {
      if (!value.is_number()) read.Fail("\"ticks\" must be a number");
      OptionsBuilder run;
      if (const std::string problem = run.StoreTicks(value); !problem.empty()) read.Fail("\"ticks\": " + problem);
      e.Ticks = run.Options().Ticks;
    } else if (key == "every") {
      const auto n = WholeNumber(value, 1, static_cast<double>(INT32_MAX));
      if (!n) read.Fail("\"every\": " + JsonText(value) + " is not a whole number of ticks from 1");
      e.Every = n.value_or(0);
    } else {
      read.Fail("unknown key \"" + key + "\"");
    }
  }
  if (!root.contains("ticks")) read.Fail("\"ticks\" is missing");
  for (const VariedOption& v : e.Vary) {
    if (e.Options.contains(v.Name)) read.Fail("\"" + v.Name + "\" is both in \"options\" and in \"vary\"");
  }
  if (!read.Failed()) {
    double runs = static_cast<double>(e.Repetitions);
    for (const VariedOption& v : e.Vary) runs *= static_cast<double>(v.Values.size());
    if (runs > static_cast<double>(MaxRuns)) read.Fail("the experiment has more than " + std::to_string(MaxRuns) + " runs");
  }
  parsed.Error = read.Error();
  return parsed;
}

}  // namespace keldor::sweep
