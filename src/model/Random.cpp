#include "model/Random.h"

#include <cmath>
#include <cstring>

namespace keldor {

namespace {

uint64_t SplitMix64(uint64_t& x) {
  uint64_t z = (x += 0x9E3779B97F4A7C15ULL);
  z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
  z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
  return z ^ (z >> 31);
}

}  // namespace

VirtualClock::VirtualClock(uint64_t seed) {
  uint64_t mix = seed;
  const uint64_t h = SplitMix64(mix);
  // A time of day with microsecond resolution, different for every seed.
  now_ = static_cast<double>(h % 86400000000ULL) / 1e6;
}

VirtualClock VirtualClock::StartingAt(double secondsSinceMidnight) {
  VirtualClock clock;
  clock.Advance(secondsSinceMidnight);
  return clock;
}

double VirtualClock::SecondsSinceMidnight() {
  const double t = now_;
  Advance(1e-6);
  return t;
}

void VirtualClock::Advance(double seconds) {
  const double later = now_ + seconds;
  // Past midnight by less than a day, the subtraction is exact and equals fmod.
  if (later >= 0 && later < SecondsPerDay) {
    now_ = later;
  } else if (later >= SecondsPerDay && later < 2 * SecondsPerDay) {
    now_ = later - SecondsPerDay;
  } else {
    now_ = std::fmod(later, SecondsPerDay);
  }
}

RandomSource::RandomSource(Clock& clock) : clock_(clock) { Seed(0.0); }

void RandomSource::Seed(double secondsSinceMidnight) {
  uint64_t bits = 0;
  std::memcpy(&bits, &secondsSinceMidnight, sizeof bits);
  for (auto& word : state_) word = SplitMix64(bits);
}

void RandomSource::ReseedFromClock() {
  if (script_ != nullptr) script_->Reseeded();
  Seed(clock_.SecondsSinceMidnight());
}

}  // namespace keldor
