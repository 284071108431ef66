#include "app/sweep/Experiment.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

#include "app/headless/HeadlessOptions.h"

namespace keldor::sweep {

using headless::OptionForm;

namespace {

// Options a run's command line does not take from the experiment: the seed
// and tick count are top-level keys, the sweep writes every file itself, and
// every run starts from New.
bool SetByTheSweep(const std::string& name) {
  return name == "seed" || name == "ticks" || name == "json" || name == "csv" || name == "png" || name == "frames" ||
         name == "every" || name == "load";
}

bool IsScalar(const JsonValue& v) { return v.Type == JsonValue::Kind::Number || v.Type == JsonValue::Kind::String; }

void AppendOption(QStringList& arguments, const std::string& name, const JsonValue& value) {
  const QString option = "--" + QString::fromStdString(name);
  if (value.Type == JsonValue::Kind::Bool) {
    if (value.Bool) arguments << option;
  } else if (value.Type == JsonValue::Kind::Array) {
    for (const JsonValue& item : value.Items) arguments << option + "=" + QString::fromStdString(item.Text);
  } else {
    arguments << option + "=" + QString::fromStdString(value.Text);
  }
}

// A whole number within lo..hi, or nothing.
std::optional<int64_t> WholeNumber(const JsonValue& v, double lo, double hi) {
  if (v.Type != JsonValue::Kind::Number || !(v.Number >= lo && v.Number <= hi) || std::floor(v.Number) != v.Number) {
    return std::nullopt;
  }
  return static_cast<int64_t>(v.Number);
}

class ExperimentReader {
 public:
  bool Failed() const { return !error_.empty(); }
  const std::string& Error() const { return error_; }

  void Fail(const std::string& message) {
    if (error_.empty()) error_ = message;
  }

  // Checks that a value fits the option's form: a flag takes true or false, a
  // valued option a number or string, a repeatable one also a list of them.
  void CheckValue(const std::string& where, const std::string& name, const JsonValue& value) {
    const auto form = headless::FindOptionForm(QString::fromStdString(name));
    if (!form) return Fail(where + ": unknown option \"" + name + "\"");
    if (SetByTheSweep(name)) {
      return Fail(where + ": \"" + name +
                  "\" is not set here (seed and ticks are top-level keys; the sweep writes its own files)");
    }
    const bool fits =
        *form == OptionForm::Flag ? value.Type == JsonValue::Kind::Bool
        : IsScalar(value) ? true
        : *form == OptionForm::Repeatable && value.Type == JsonValue::Kind::Array &&
              std::all_of(value.Items.begin(), value.Items.end(), IsScalar);
    if (!fits) {
      Fail(where + ": \"" + name + "\" takes " +
           (*form == OptionForm::Flag         ? "true or false"
            : *form == OptionForm::Repeatable ? "a value or a list of values"
                                              : "a number or a string"));
    }
  }

  std::vector<JsonMember> Options(const JsonValue& options) {
    if (options.Type != JsonValue::Kind::Object) Fail("\"options\" must be an object");
    for (const auto& [name, value] : options.Members) CheckValue("options", name, value);
    return options.Members;
  }

  std::vector<JsonValue> Range(const std::string& where, const JsonValue& range) {
    for (const auto& [key, value] : range.Members) {
      if (key != "first" && key != "step" && key != "last") Fail(where + ": unknown key \"" + key + "\"");
    }
    const JsonValue* first = range.Find("first");
    const JsonValue* step = range.Find("step");
    const JsonValue* last = range.Find("last");
    for (const JsonValue* v : {first, step, last}) {
      if (v == nullptr || v->Type != JsonValue::Kind::Number || !std::isfinite(v->Number)) {
        Fail(where + ": a range needs the numbers \"first\", \"step\" and \"last\"");
        return {};
      }
    }
    const double steps = (last->Number - first->Number) / step->Number;
    if (step->Number == 0 || !(steps > -1e-9) || steps >= static_cast<double>(MaxValues)) {
      Fail(where + ": a step of " + step->Text + " from " + first->Text + " does not reach " + last->Text +
           " in at most " + std::to_string(MaxValues) + " values");
      return {};
    }
    const int decimals = std::max(Decimals(first->Text), Decimals(step->Text));
    const auto count = static_cast<int64_t>(std::floor(steps + 1e-9)) + 1;
    std::vector<JsonValue> values(static_cast<size_t>(count));
    for (int64_t i = 0; i < count; ++i) {
      JsonValue& v = values[static_cast<size_t>(i)];
      v.Type = JsonValue::Kind::Number;
      v.Number = first->Number + static_cast<double>(i) * step->Number;
      v.Text = NumberText(v.Number, decimals);
    }
    return values;
  }

  std::vector<VariedOption> Vary(const JsonValue& vary) {
    std::vector<VariedOption> varied;
    if (vary.Type != JsonValue::Kind::Object) Fail("\"vary\" must be an object");
    for (const auto& [name, values] : vary.Members) {
      const std::string where = "vary \"" + name + "\"";
      if (values.Type == JsonValue::Kind::Object) {
        varied.push_back({name, Range(where, values)});
      } else if (values.Type == JsonValue::Kind::Array && !values.Items.empty()) {
        varied.push_back({name, values.Items});
      } else {
        Fail(where + ": give a list of values or {\"first\", \"step\", \"last\"}");
        continue;
      }
      for (const JsonValue& value : varied.back().Values) CheckValue(where, name, value);
    }
    return varied;
  }

 private:
  // Digits after the decimal point in a number as written; -1 (the shortest
  // exact form) with an exponent or more digits than a double holds.
  static int Decimals(const std::string& text) {
    if (text.find_first_of("eE") != std::string::npos) return -1;
    const size_t point = text.find('.');
    const size_t decimals = point == std::string::npos ? 0 : text.size() - point - 1;
    return decimals > 17 ? -1 : static_cast<int>(decimals);
  }

  // A range's value with as many decimals as its first value and step have,
  // so that 0.1 steps read 0.3 and not 0.30000000000000004.
  static std::string NumberText(double v, int decimals) {
    char buf[400];
    const auto result = decimals < 0 ? std::to_chars(buf, buf + sizeof buf, v)
                                     : std::to_chars(buf, buf + sizeof buf, v, std::chars_format::fixed, decimals);
    return std::string(buf, result.ptr);
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
  plan.Arguments << "keldor-sweep";
  for (const auto& [name, value] : Options) AppendOption(plan.Arguments, name, value);
  for (size_t i = 0; i < Vary.size(); ++i) {
    const JsonValue& value = Vary[i].Values[chosen[i]];
    AppendOption(plan.Arguments, Vary[i].Name, value);
    plan.VariedValues.push_back(ValueText(value));
  }
  plan.Arguments << QString("--seed=%1").arg(plan.Seed) << "--ticks=" + QString::fromStdString(Ticks);
  return plan;
}

QStringList Experiment::BaseArguments() const {
  QStringList arguments{"keldor-sweep"};
  for (const auto& [name, option] : Options) AppendOption(arguments, name, option);
  return arguments << QString("--seed=%1").arg(Seed) << "--ticks=" + QString::fromStdString(Ticks);
}

QStringList Experiment::ArgumentsWith(const VariedOption& varied, const JsonValue& value) const {
  QStringList arguments = BaseArguments();
  AppendOption(arguments, varied.Name, value);
  return arguments;
}

std::string ValueText(const JsonValue& value) {
  if (value.Type == JsonValue::Kind::Bool) return value.Bool ? "true" : "false";
  if (value.Type != JsonValue::Kind::Array) return value.Text;
  std::string text;
  for (const JsonValue& item : value.Items) text += (text.empty() ? "" : " ") + item.Text;
  return text;
}

ExperimentParse ParseExperiment(std::string_view text) {
  ExperimentParse parsed;
  const JsonParse json = ParseJson(text);
  if (!json.Value) {
    parsed.Error = json.Error;
    return parsed;
  }
  const JsonValue& root = *json.Value;
  if (root.Type != JsonValue::Kind::Object) {
    parsed.Error = "an experiment is a JSON object";
    return parsed;
  }
  ExperimentReader read;
  Experiment& e = parsed.Result;
  for (const auto& [key, value] : root.Members) {
    if (key == "options") {
      e.Options = read.Options(value);
    } else if (key == "vary") {
      e.Vary = read.Vary(value);
    } else if (key == "repetitions") {
      const auto n = WholeNumber(value, 1, static_cast<double>(MaxRuns));
      if (!n) read.Fail("\"repetitions\": " + value.Text + " is not a whole number from 1 to " + std::to_string(MaxRuns));
      e.Repetitions = n.value_or(1);
    } else if (key == "seed") {
      const auto n = WholeNumber(value, 0, MaxSeed);
      if (!n) read.Fail("\"seed\": " + value.Text + " is not a whole number from 0 to 2^53");
      e.Seed = static_cast<uint64_t>(n.value_or(0));
    } else if (key == "ticks") {
      if (value.Type != JsonValue::Kind::Number) read.Fail("\"ticks\" must be a number");
      e.Ticks = value.Text;
    } else if (key == "every") {
      const auto n = WholeNumber(value, 1, static_cast<double>(INT32_MAX));
      if (!n) read.Fail("\"every\": " + value.Text + " is not a whole number of ticks from 1");
      e.Every = n.value_or(0);
    } else {
      read.Fail("unknown key \"" + key + "\"");
    }
  }
  if (root.Find("ticks") == nullptr) read.Fail("\"ticks\" is missing");
  for (const VariedOption& v : e.Vary) {
    if (std::any_of(e.Options.begin(), e.Options.end(), [&](const auto& o) { return o.Name == v.Name; })) {
      read.Fail("\"" + v.Name + "\" is both in \"options\" and in \"vary\"");
    }
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
