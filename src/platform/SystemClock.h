// The real time of day, for the desktop program and for unseeded batch runs:
// the random source is reseeded from it as the world asks.
#pragma once

#include "model/Random.h"

namespace keldor {

class SystemClock : public Clock {
 public:
  // Seconds since local midnight, with sub-second resolution.
  double SecondsSinceMidnight() override;
};

}  // namespace keldor
