// A one-line progress bar for a terminal: runs done, the total and the time
// left at the rate so far, redrawn in place at most a few times a second.
#pragma once

#include <chrono>
#include <cstdint>
#include <ostream>

namespace keldor::sweep {

class ProgressBar {
 public:
  // Draws nothing unless `enabled` (the stream is a terminal).
  ProgressBar(std::ostream& out, int64_t total, bool enabled);
  void Update(int64_t done);
  // Clears the line, so that a message can be written on it.
  void Clear();

 private:
  using Clock = std::chrono::steady_clock;
  std::ostream& out_;
  int64_t total_;
  bool enabled_;
  Clock::time_point start_ = Clock::now();
  Clock::time_point lastDrawn_{};
};

}  // namespace keldor::sweep
