// Ticks per second as the status line shows them: the ticks run over about
// half a second of steady time, the figure replaced when each period ends.
#pragma once

#include <cstdint>

namespace keldor {

class TickRate {
 public:
  static constexpr double PeriodSeconds = 0.5;

  // `now` is seconds on a steady clock, `ticks` the ticks run so far.
  void Update(double now, int64_t ticks) {
    const double elapsed = now - periodStart_;
    if (elapsed < PeriodSeconds) return;
    perSecond_ = static_cast<double>(ticks - ticksAtStart_) / elapsed;
    periodStart_ = now;
    ticksAtStart_ = ticks;
  }
  double PerSecond() const { return perSecond_; }

 private:
  double periodStart_ = 0;
  int64_t ticksAtStart_ = 0;
  double perSecond_ = 0;
};

}  // namespace keldor
