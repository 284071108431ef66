#include "app/sweep/ExperimentCheck.h"

#include "app/sweep/SweepRun.h"

namespace keldor::sweep {

std::optional<std::string> CheckExperiment(const Experiment& experiment) {
  for (int64_t combination = 0; combination < experiment.CombinationCount(); ++combination) {
    const RunPlan run = experiment.Run(combination * experiment.Repetitions);
    std::optional<std::string> problem;
    if (!run.Error.empty()) problem = run.Error;
    if (!problem) problem = CheckWorld(run.Options);
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
