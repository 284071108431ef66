// The clock the desktop program's random source is reseeded from. At 1x it is
// the time of day. At the other speeds, and in a world made with a seed, it is
// a stepped clock that moves on 75 ms of simulated time after every tick in
// which the world ran, so that fast ticks never share a reseed and a seeded
// world replays the batch runner's ticks (keldor-headless --seed) exactly.
//
// A paused tick reads the clock once and draws nothing, so the stepped clock
// is put back where it was after it: how long a world stood paused does not
// change what it does once it runs.
#pragma once

#include <cstdint>
#include <optional>

#include "model/Random.h"

namespace keldor {

class RunClock : public Clock {
 public:
  explicit RunClock(Clock& timeOfDay);

  double SecondsSinceMidnight() override;

  // The time of day itself.
  void FollowTimeOfDay();
  // A stepped clock starting at the time of day now.
  void StepFromTimeOfDay();
  // A stepped clock starting where keldor-headless --seed starts.
  void StepFromSeed(uint64_t seed);

  // The seed of the stepped clock, if it was started from one.
  std::optional<uint64_t> Seed() const { return seed_; }

  // The virtual clock read now: the stepped one, else the time of day when it
  // is virtual itself; null on the real time of day.
  VirtualClock* VirtualInUse();
  // Bracket every tick; `ran` tells whether the world ran in it.
  void BeginTick();
  void EndTick(bool ran);

 private:
  Clock& timeOfDay_;
  std::optional<VirtualClock> stepped_;
  std::optional<VirtualClock> atTickStart_;
  std::optional<uint64_t> seed_;
};

}  // namespace keldor
