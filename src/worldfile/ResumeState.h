// What a saved world needs beyond the World itself to continue exactly as it
// would have: the ticks it had run, the random source's words, the stepped
// clock's time of day (none when the real time of day drives the run) and
// the seed that clock started from (none when it did not start from a seed).
#pragma once

#include <cstdint>
#include <optional>

#include "model/Random.h"

namespace keldor {

struct ResumeState {
  int64_t Tick = 0;
  RandomState Random{};
  std::optional<double> ClockTime;
  std::optional<uint64_t> Seed;
};

}  // namespace keldor
