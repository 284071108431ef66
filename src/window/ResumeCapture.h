// A session's random source and clock saved into a world file's ResumeState
// and put back from one.
#pragma once

#include <cstdint>

#include "model/Random.h"
#include "worldfile/ResumeState.h"

namespace keldor {

// The state of a session's random source and clock after tick `tick`.
ResumeState CaptureResumeState(RandomSource& random, int64_t tick);

// Puts the random source's words back, and the clock's time when the session
// runs on a virtual clock and the state holds one.
void RestoreResumeState(RandomSource& random, const ResumeState& resume);

}  // namespace keldor
