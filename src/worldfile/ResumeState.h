// What a saved world needs beyond the World itself to continue exactly as it
// would have: the tick it was saved after, the random source's words, the
// virtual clock's time of day (none when the real clock drives the session)
// and the seed that clock started from (none when unknown).
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
