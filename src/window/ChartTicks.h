// Round tick steps for a chart axis: 1, 2 or 5 times a power of ten, so that
// the labels read 0, 20,000, 40,000... instead of 44563 and 89127.
#pragma once

namespace keldor {

struct AxisTicks {
  double Interval = 1;  // between two labelled ticks
  double Max = 1;       // the axis end: the first tick at or above the data
};

// Ticks for an axis from 0 to at least `dataMax` with at most `maxTicks`
// intervals (maxTicks >= 1); no interval below `minInterval` (1 for counts).
AxisTicks RoundTicks(double dataMax, int maxTicks, double minInterval = 1);

}  // namespace keldor
