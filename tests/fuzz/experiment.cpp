// The experiment file reader on any text; an accepted experiment's first and
// last runs get command lines that keldor-headless's parser reads.
#include <cstdint>
#include <string_view>

#include "app/sweep/Experiment.h"
#include "app/sweep/ExperimentCheck.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const auto parsed = keldor::sweep::ParseExperiment(std::string_view(reinterpret_cast<const char*>(data), size));
  if (!parsed.Error.empty()) return 0;
  const keldor::sweep::Experiment& e = parsed.Result;
  if (e.RunCount() < 1 || e.RunCount() > keldor::sweep::MaxRuns) __builtin_trap();
  keldor::headless::HeadlessOptions options;
  for (const int64_t run : {int64_t{0}, e.RunCount() - 1}) {
    keldor::sweep::ParseRunArguments(e.Run(run).Arguments, options);
  }
  return 0;
}
