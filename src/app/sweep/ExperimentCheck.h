// Checks every value of an experiment before any run starts, with the same
// parsing and world building keldor-headless uses.
#pragma once

#include <optional>
#include <string>

#include "app/headless/HeadlessOptions.h"
#include "app/sweep/Experiment.h"

namespace keldor::sweep {

// Parses a run's command line; the message names the bad argument.
std::optional<std::string> ParseRunArguments(const QStringList& arguments, headless::HeadlessOptions& options);

// The shared options, then each varied value on its own, then the world of
// every combination. Returns the first fault, naming where it is.
std::optional<std::string> CheckExperiment(const Experiment& experiment);

}  // namespace keldor::sweep
