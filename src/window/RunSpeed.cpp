#include "window/RunSpeed.h"

#include <cmath>

namespace keldor {

namespace {

constexpr int SpeedCount = static_cast<int>(std::size(AllRunSpeeds));

// Ticks per 75 ms at each speed but Fastest.
constexpr double Factors[] = {0.25, 0.5, 1, 2, 4, 8};

}  // namespace

std::string_view SpeedLabel(RunSpeed speed) {
  constexpr std::string_view labels[] = {"0.25x", "0.5x", "1x", "2x", "4x", "8x", "Fastest"};
  return labels[static_cast<int>(speed)];
}

int TimerIntervalMs(RunSpeed speed) {
  if (speed == RunSpeed::Fastest) return 0;
  return static_cast<int>(std::lround(TickPeriodMs / Factors[static_cast<int>(speed)]));
}

RunSpeed Faster(RunSpeed speed) {
  const int next = static_cast<int>(speed) + 1;
  return next < SpeedCount ? static_cast<RunSpeed>(next) : speed;
}

RunSpeed Slower(RunSpeed speed) {
  const int next = static_cast<int>(speed) - 1;
  return next >= 0 ? static_cast<RunSpeed>(next) : speed;
}

}  // namespace keldor
