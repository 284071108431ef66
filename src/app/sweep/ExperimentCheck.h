// Checks an experiment before any run starts: every combination's options
// together, and its world built as keldor-headless builds it.
#pragma once

#include <optional>
#include <string>

#include "app/sweep/Experiment.h"

namespace keldor::sweep {

// Returns the first fault, naming the run and its varied values.
std::optional<std::string> CheckExperiment(const Experiment& experiment);

}  // namespace keldor::sweep
