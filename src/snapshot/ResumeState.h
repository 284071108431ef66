// What a saved world needs beyond the World itself to continue exactly as it
// would have: the tick it was saved after, the random source's words and the
// virtual clock's time of day (none when the real clock drives the session).
#pragma once

#include <cstdint>
#include <optional>

#include "model/Random.h"

namespace keldor {

struct ResumeState {
  int64_t Tick = 0;
  RandomState Random{};
  std::optional<double> ClockTime;
};

// The state of a session's random source and clock after tick `tick`.
ResumeState CaptureResumeState(RandomSource& random, int64_t tick);

// Puts the random source's words back, and the clock's time when the session
// runs on a virtual clock and the state holds one.
void RestoreResumeState(RandomSource& random, const ResumeState& resume);

}  // namespace keldor
