#include "app/sweep/ExperimentCheck.h"

#include "app/sweep/SweepRun.h"

namespace keldor::sweep {

std::optional<std::string> ParseRunArguments(const QStringList& arguments, headless::HeadlessOptions& options) {
  const headless::ParsedArguments parsed = headless::ParseHeadlessArguments(arguments);
  if (parsed.Result == headless::ParsedArguments::Outcome::Help) return "an experiment cannot ask for help";
  if (parsed.Result == headless::ParsedArguments::Outcome::Error) return parsed.Message.toStdString();
  options = parsed.Options;
  return std::nullopt;
}

std::optional<std::string> CheckExperiment(const Experiment& experiment) {
  headless::HeadlessOptions options;
  if (auto problem = ParseRunArguments(experiment.BaseArguments(), options)) return "options: " + *problem;
  for (const VariedOption& varied : experiment.Vary) {
    for (const JsonValue& value : varied.Values) {
      if (auto problem = ParseRunArguments(experiment.ArgumentsWith(varied, value), options)) {
        return "vary \"" + varied.Name + "\": " + *problem;
      }
    }
  }
  for (int64_t combination = 0; combination < experiment.CombinationCount(); ++combination) {
    const RunPlan run = experiment.Run(combination * experiment.Repetitions);
    auto problem = ParseRunArguments(run.Arguments, options);
    if (!problem) problem = CheckWorld(options);
    if (problem) {
      std::string values;
      for (size_t i = 0; i < run.VariedValues.size(); ++i) {
        values += (i == 0 ? " (" : ", ") + experiment.Vary[i].Name + " " + run.VariedValues[i];
      }
      return "run " + std::to_string(run.Run) + values + (values.empty() ? ": " : "): ") + *problem;
    }
  }
  return std::nullopt;
}

}  // namespace keldor::sweep
