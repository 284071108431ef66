#include "engine/RunClock.h"

#include "engine/TickPeriod.h"

namespace keldor {

RunClock::RunClock(Clock& timeOfDay) : timeOfDay_(timeOfDay) {}

double RunClock::SecondsSinceMidnight() {
  return stepped_ ? stepped_->SecondsSinceMidnight() : timeOfDay_.SecondsSinceMidnight();
}

void RunClock::FollowTimeOfDay() {
  stepped_.reset();
  seed_.reset();
  pinned_ = false;
}

void RunClock::StepFromTimeOfDay() {
  stepped_ = VirtualClock::StartingAt(timeOfDay_.SecondsSinceMidnight());
  seed_.reset();
  pinned_ = false;
}

void RunClock::StepFromSeed(uint64_t seed) {
  stepped_ = VirtualClock(seed);
  seed_ = seed;
  pinned_ = true;
}

void RunClock::StepFrom(double secondsSinceMidnight, std::optional<uint64_t> seed) {
  stepped_ = VirtualClock::StartingAt(0);
  stepped_->SetNow(secondsSinceMidnight);
  seed_ = seed;
  pinned_ = true;
}

std::optional<double> RunClock::SteppedTime() const {
  if (!stepped_) return std::nullopt;
  return stepped_->Now();
}

void RunClock::BeginTick() { atTickStart_ = stepped_; }

void RunClock::EndTick(bool ran) {
  if (!stepped_ || !atTickStart_) return;
  if (ran) {
    stepped_->Advance(TickPeriodSeconds);
  } else {
    stepped_ = atTickStart_;
  }
}

}  // namespace keldor
