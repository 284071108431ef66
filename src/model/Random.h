// The process's single uniform random source and the clock it is reseeded from.
//
// The world reseeds "from the time of day" at every tick, at New, at every
// nest creation and in signature blending. The clock is injected: the desktop
// program passes the real time of day, tests and batch runs a VirtualClock,
// so that the same seed gives the same world draw for draw.
#pragma once

#include <array>
#include <cmath>
#include <cstdint>

namespace keldor {

inline constexpr double SecondsPerDay = 86400.0;

class Clock {
 public:
  virtual ~Clock() = default;
  // Seconds since midnight, with a fractional part.
  virtual double SecondsSinceMidnight() = 0;
};

// A reproducible clock. It starts at a time of day derived from the seed (or
// a given one) and advances by one microsecond on every read (so reseeds
// inside one tick still differ, as they do on a real clock); the batch runner
// and the window's stepped runs advance it by the tick period between ticks.
class VirtualClock : public Clock {
 public:
  explicit VirtualClock(uint64_t seed);
  static VirtualClock StartingAt(double secondsSinceMidnight);
  double SecondsSinceMidnight() override;
  void Advance(double seconds);
  // The time of day the next read returns; setting it resumes a saved clock.
  double Now() const { return now_; }
  void SetNow(double secondsSinceMidnight) { now_ = secondsSinceMidnight; }

 private:
  VirtualClock() = default;
  double now_ = 0;
};

// Takes the place of the generator: hands out chosen draws and hears of every
// reseed, so that a test can check a routine draw by draw.
class DrawScript {
 public:
  virtual ~DrawScript() = default;
  virtual double NextDraw() = 0;
  virtual void Reseeded() = 0;
};

// The four words of the generator: saving and restoring them resumes the
// sequence exactly.
using RandomState = std::array<uint64_t, 4>;

// Uniform draws in [0, 1) from xoshiro256**, seeded through splitmix64.
class RandomSource {
 public:
  explicit RandomSource(Clock& clock);

  // Rnd: the next uniform draw in [0, 1). Inline: every ant step draws.
  double Rnd() {
    if (script_ != nullptr) [[unlikely]]
      return script_->NextDraw();
    return static_cast<double>(Next() >> 11) * 0x1.0p-53;
  }
  // Int(2 * Rnd()), 0 or 1, from one draw: the generator's draw is below
  // one half exactly when the top bit of its word is clear.
  int Coin() {
    if (script_ != nullptr) [[unlikely]]
      return static_cast<int>(std::floor(2 * script_->NextDraw()));
    return static_cast<int>(Next() >> 63);
  }
  // -1 or +1 from one draw: (-1)^(Int(2 Rnd()) + 1).
  double Sign() { return 2.0 * Coin() - 1.0; }
  // Restart the generator from the clock's current time of day.
  void ReseedFromClock();
  // Draws come from the script from now on; nullptr returns to the generator.
  void UseScript(DrawScript* script) { script_ = script; }
  // Restart the generator from a given time of day (same time, same sequence).
  void Seed(double secondsSinceMidnight);

  Clock& TheClock() { return clock_; }
  const RandomState& State() const { return state_; }
  void SetState(const RandomState& state) { state_ = state; }

 private:
  static uint64_t Rotl(uint64_t x, int k) { return (x << k) | (x >> (64 - k)); }

  // xoshiro256**
  uint64_t Next() {
    const uint64_t result = Rotl(state_[1] * 5, 7) * 9;
    const uint64_t t = state_[1] << 17;
    state_[2] ^= state_[0];
    state_[3] ^= state_[1];
    state_[1] ^= state_[2];
    state_[0] ^= state_[3];
    state_[2] ^= t;
    state_[3] = Rotl(state_[3], 45);
    return result;
  }

  Clock& clock_;
  DrawScript* script_ = nullptr;
  RandomState state_{};
};

}  // namespace keldor
