#include "window/ResumeCapture.h"

#include "window/RunClock.h"

namespace keldor {

namespace {

// The virtual clock a random source reads, seen through the desktop
// program's run clock; null on the real time of day.
VirtualClock* VirtualClockOf(Clock& clock) {
  if (auto* run = dynamic_cast<RunClock*>(&clock)) return run->VirtualInUse();
  return dynamic_cast<VirtualClock*>(&clock);
}

}  // namespace

ResumeState CaptureResumeState(RandomSource& random, int64_t tick) {
  ResumeState resume;
  resume.Tick = tick;
  resume.Random = random.State();
  if (const VirtualClock* clock = VirtualClockOf(random.TheClock())) resume.ClockTime = clock->Now();
  return resume;
}

void RestoreResumeState(RandomSource& random, const ResumeState& resume) {
  random.SetState(resume.Random);
  VirtualClock* clock = VirtualClockOf(random.TheClock());
  if (clock != nullptr && resume.ClockTime) clock->SetNow(*resume.ClockTime);
}

}  // namespace keldor
