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

// Runs ticks 1..count. Every tick draws on `painter` but the last, which draws
// on `lastPainter`; afterTick(n) sees the world after tick n.
void RunTicks(const TickLoop& loop, int64_t count, TickPainter& painter, TickPainter& lastPainter,
              const std::function<void(int64_t)>& afterTick);

}  // namespace keldor::headless
