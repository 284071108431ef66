#include "engine/SystemTimeOfDay.h"

#include <chrono>
#include <ctime>

namespace keldor {

double SystemTimeOfDay::SecondsSinceMidnight() {
  using namespace std::chrono;
  const auto now = system_clock::now();
  const std::time_t seconds = system_clock::to_time_t(now);
  std::tm local{};
  localtime_r(&seconds, &local);
  const auto millis = duration_cast<milliseconds>(now.time_since_epoch()).count() % 1000;
  return local.tm_hour * 3600.0 + local.tm_min * 60.0 + local.tm_sec + static_cast<double>(millis) / 1000.0;
}

}  // namespace keldor
