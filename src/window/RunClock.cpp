#include "window/RunClock.h"

#include "window/RunSpeed.h"

namespace keldor {

RunClock::RunClock(Clock& timeOfDay) : timeOfDay_(timeOfDay) {}

double RunClock::SecondsSinceMidnight() {
  return stepped_ ? stepped_->SecondsSinceMidnight() : timeOfDay_.SecondsSinceMidnight();
}

void RunClock::FollowTimeOfDay() {
  stepped_.reset();
  seed_.reset();
}

void RunClock::StepFromTimeOfDay() {
  stepped_ = VirtualClock::StartingAt(timeOfDay_.SecondsSinceMidnight());
  seed_.reset();
}

void RunClock::StepFromSeed(uint64_t seed) {
  stepped_ = VirtualClock(seed);
  seed_ = seed;
}

VirtualClock* RunClock::VirtualInUse() {
  if (stepped_) return &*stepped_;
  return dynamic_cast<VirtualClock*>(&timeOfDay_);
}

void RunClock::BeginTick() { atTickStart_ = stepped_; }

void RunClock::EndTick(bool ran) {
  if (!stepped_ || !atTickStart_) return;
  if (ran) {
    stepped_->Advance(TickPeriodMs / 1000.0);
  } else {
    stepped_ = atTickStart_;
  }
}

}  // namespace keldor
