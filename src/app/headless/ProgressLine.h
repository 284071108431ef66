// The progress of a long batch run on a terminal: after the first couple of
// seconds, one line rewritten in place twice a second with the tick, the
// share done and an estimate of the time left; cleared at the end.
#pragma once

#include <chrono>
#include <cstdint>
#include <ostream>

namespace keldor::headless {

class ProgressLine {
 public:
  // Shows nothing unless `enabled` (standard error is a terminal).
  ProgressLine(std::ostream& out, bool enabled, int64_t first, int64_t last);
  ~ProgressLine();
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;

  void TickDone(int64_t tick);

 private:
  using Clock = std::chrono::steady_clock;

  std::ostream& out_;
  bool enabled_;
  int64_t first_;
  int64_t last_;
  Clock::time_point start_;
  Clock::time_point nextShow_;
  bool shown_ = false;
};

}  // namespace keldor::headless
