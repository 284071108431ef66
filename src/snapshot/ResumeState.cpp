#include "snapshot/ResumeState.h"

namespace keldor {

ResumeState CaptureResumeState(RandomSource& random, int64_t tick) {
  ResumeState resume;
  resume.Tick = tick;
  resume.Random = random.State();
  if (const auto* clock = dynamic_cast<const VirtualClock*>(&random.TheClock())) resume.ClockTime = clock->Now();
  return resume;
}

void RestoreResumeState(RandomSource& random, const ResumeState& resume) {
  random.SetState(resume.Random);
  auto* clock = dynamic_cast<VirtualClock*>(&random.TheClock());
  if (clock != nullptr && resume.ClockTime) clock->SetNow(*resume.ClockTime);
}

}  // namespace keldor
