// Which experiment a results table belongs to: the checked experiment as one
// line of JSON, kept beside the table in TABLE.experiment (the table itself
// stays a plain CSV file). The record is itself an experiment file, with
// every varied value listed. --resume and merge compare it key by key and
// name the keys that differ.
#pragma once

#include <optional>
#include <string>

#include "app/sweep/Experiment.h"

namespace keldor::sweep {

// The record of an experiment: its shared options, varied values,
// repetitions, seed, ticks and series interval.
Json ExperimentRecord(const Experiment& experiment);

// The file beside a table that holds its experiment's record.
std::string ExperimentRecordPath(const std::string& tablePath);

// The keys in which two records differ ("ticks, options.grid"); nothing
// when they are the same experiment.
std::optional<std::string> ChangedKeys(const Json& was, const Json& now);

}  // namespace keldor::sweep
