// An experiment: the keldor-headless options every run shares, the options
// it varies with their values, how often each combination repeats, the seed,
// the tick count and how often a run's series gets a row. Option values are
// read from the file's JSON values through keldor-headless's option table.
//
// Runs are numbered from 0. Combinations are counted with the varied keys in
// file order, the last key varying fastest; run r is repetition
// r % repetitions of combination r / repetitions and gets seed seed + r % repetitions.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "app/headless/HeadlessOptions.h"
#include "app/sweep/ExperimentJson.h"

namespace keldor::sweep {

// A sweep refuses to plan more runs than this, or more values of one option.
inline constexpr int64_t MaxRuns = 10'000'000;
inline constexpr int64_t MaxValues = 100'000;
// The largest seed a JSON number holds exactly.
inline constexpr double MaxSeed = 9007199254740992.0;  // 2^53

struct VariedValue {
  Json Value;        // as "options" takes it
  std::string Text;  // as the results table shows it
};

struct VariedOption {
  std::string Name;
  std::vector<VariedValue> Values;
};

// What one run is given.
struct RunPlan {
  int64_t Run = 0;
  uint64_t Seed = 0;
  std::vector<std::string> VariedValues;  // the varied options' values as text, in key order
  headless::HeadlessOptions Options;
  std::string Error;  // how the options do not combine; empty when they do
};

struct Experiment {
  Json Options = Json::object();  // the shared options, in file order
  std::vector<VariedOption> Vary;  // in file order
  int64_t Repetitions = 1;
  uint64_t Seed = 0;
  int64_t Ticks = 0;
  int64_t Every = 0;  // 0: no series files

  int64_t CombinationCount() const;
  int64_t RunCount() const { return CombinationCount() * Repetitions; }
  RunPlan Run(int64_t run) const;
};

struct ExperimentParse {
  Experiment Result;
  std::string Error;  // empty when the file was read; else names the key or value
};

// Reads an experiment file's text: its shape (known keys, value types,
// ranges given as {"first","step","last"}) and every option value on its own.
// The worlds of the combinations are checked by CheckExperiment.
ExperimentParse ParseExperiment(std::string_view text);

}  // namespace keldor::sweep
