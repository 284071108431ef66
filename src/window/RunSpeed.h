// The run speeds of the Run menu: multiples of the 75 ms tick, and Fastest,
// which runs ticks back to back and shows about 30 of them a second.
#pragma once

#include <string_view>

#include "engine/TickPeriod.h"

namespace keldor {

enum class RunSpeed { Quarter, Half, Normal, Double, Quadruple, Octuple, Fastest };

inline constexpr RunSpeed AllRunSpeeds[] = {RunSpeed::Quarter,   RunSpeed::Half,    RunSpeed::Normal, RunSpeed::Double,
                                            RunSpeed::Quadruple, RunSpeed::Octuple, RunSpeed::Fastest};

// "0.25x" .. "8x", "Fastest".
std::string_view SpeedLabel(RunSpeed speed);

// The tick period at a speed, rounded to whole milliseconds (the timer's
// resolution); 0 for Fastest.
int TimerIntervalMs(RunSpeed speed);

// The next speed up or down the list, staying at its ends.
RunSpeed Faster(RunSpeed speed);
RunSpeed Slower(RunSpeed speed);

}  // namespace keldor
