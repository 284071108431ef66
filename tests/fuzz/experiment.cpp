// The experiment file reader on any text; an accepted experiment's first and
// last runs get options within keldor-headless's ranges.
#include <cstdint>
#include <string_view>

#include "app/sweep/Experiment.h"
#include "model/WorldCreation.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const auto parsed = keldor::sweep::ParseExperiment(std::string_view(reinterpret_cast<const char*>(data), size));
  if (!parsed.Error.empty()) return 0;
  const keldor::sweep::Experiment& e = parsed.Result;
  if (e.RunCount() < 1 || e.RunCount() > keldor::sweep::MaxRuns) __builtin_trap();
  for (const int64_t run : {int64_t{0}, e.RunCount() - 1}) {
    const keldor::sweep::RunPlan plan = e.Run(run);
    const auto& o = plan.Options;
    if (o.Ticks < 0 || !o.LoadPath.empty() || !o.JsonPath.empty() || o.Seed != plan.Seed) __builtin_trap();
    if (o.World.Grid && (*o.World.Grid < keldor::MinGridSize || *o.World.Grid > keldor::MaxGridSize)) __builtin_trap();
  }
  return 0;
}
