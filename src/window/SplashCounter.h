// The splash screen's timer count: it hands over to the main window on the
// 51st tick of its 20 ms timer, or earlier at the first click or key.
#pragma once

namespace keldor {

inline constexpr int SplashTimerIntervalMs = 20;

class SplashCounter {
 public:
  // One timer tick; true when the splash should hand over now.
  bool Tick() {
    count_ += 1;
    return count_ > 50;
  }

 private:
  float count_ = 0;
};

}  // namespace keldor
