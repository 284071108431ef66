// The time of day on this computer's clock, local time: what the random
// source is reseeded from when no stepped clock is in use.
#pragma once

#include "model/Random.h"

namespace keldor {

class SystemTimeOfDay : public Clock {
 public:
  // Seconds since local midnight, to the millisecond.
  double SecondsSinceMidnight() override;
};

}  // namespace keldor
