#include "window/ChartTicks.h"

#include <algorithm>
#include <cmath>

namespace keldor {

AxisTicks RoundTicks(double dataMax, int maxTicks, double minInterval) {
  const double top = std::max(dataMax, minInterval);
  const double rough = top / std::max(maxTicks, 1);
  const double power = std::pow(10.0, std::floor(std::log10(rough)));
  double interval = power;
  // The smallest of 1, 2, 5, 10 times the power that fits maxTicks intervals.
  for (const double step : {1.0, 2.0, 5.0, 10.0}) {
    interval = step * power;
    if (interval * maxTicks >= top) break;
  }
  interval = std::max(interval, minInterval);
  return {interval, std::ceil(top / interval) * interval};
}

}  // namespace keldor
