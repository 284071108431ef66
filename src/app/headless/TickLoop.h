// The tick loop of a batch run: the tick fired back to back, the virtual clock
// (when there is one) moved on by the timer's period after each tick.
#pragma once

#include <cstdint>
#include <functional>

namespace keldor {
struct World;
struct WindowState;
class RandomSource;
class VirtualClock;
class TickEvents;
class TickPainter;
}  // namespace keldor

namespace keldor::headless {

// The tick timer's interval, in seconds.
inline constexpr double TickPeriodSeconds = 0.075;

struct TickLoop {
  World& world;
  WindowState& window;
  RandomSource& random;
  TickEvents& events;
  VirtualClock* clock = nullptr;  // null when the real time of day drives the random source
};

// Runs ticks first..last (numbered as the world counts them). Tick n draws on
// painterFor(n); afterTick(n) sees the world after tick n and returns false to
// stop the run there. Returns the number of the last tick run.
int64_t RunTicks(const TickLoop& loop, int64_t first, int64_t last,
                 const std::function<TickPainter&(int64_t)>& painterFor,
                 const std::function<bool(int64_t)>& afterTick);

}  // namespace keldor::headless
