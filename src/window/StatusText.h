// The main window's status line: tick number, seed, speed, measured ticks per
// second and, while a new world waits paused, how to start it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "window/RunSpeed.h"

namespace keldor {

struct RunStatus {
  bool HasWorld = false;
  bool Running = false;
  int64_t Tick = 0;  // ticks the world has run since New
  std::optional<uint64_t> Seed;
  RunSpeed Speed = RunSpeed::Normal;
  double TicksPerSecond = 0;
};

std::string StatusText(const RunStatus& status);

}  // namespace keldor
