// The clock a run's random source is reseeded from. Either the time of day,
// or a stepped clock that moves on one tick period of simulated time after
// every tick in which the world ran, started from the time of day, from a
// seed (where keldor-headless --seed starts) or from a saved world's time.
// Fast ticks then never share a reseed, and a seeded world replays the batch
// runner's ticks exactly.
//
// A tick in which the world did not run reads the clock and draws nothing
// that lasts, so the stepped clock is put back where it was after it: how
// long a world stood paused does not change what it does once it runs.
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
  // A stepped clock at a saved time, remembering the seed it started from.
  void StepFrom(double secondsSinceMidnight, std::optional<uint64_t> seed);

  // The seed of the stepped clock, if it was started from one.
  std::optional<uint64_t> Seed() const { return seed_; }
  bool Steps() const { return stepped_.has_value(); }
  // The stepped clock started from a seed or a saved time, not from the time of day.
  bool Pinned() const { return pinned_; }
  // The stepped clock's next read; none on the time of day.
  std::optional<double> SteppedTime() const;

  // Bracket every tick; `ran` tells whether the world ran in it.
  void BeginTick();
  void EndTick(bool ran);

 private:
  Clock& timeOfDay_;
  std::optional<VirtualClock> stepped_;
  std::optional<VirtualClock> atTickStart_;
  std::optional<uint64_t> seed_;
  bool pinned_ = false;
};

}  // namespace keldor
