// One run of a sweep, in the calling thread. Every run has its own engine
// (world, random source, clock), so runs on several threads share nothing.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "app/headless/HeadlessOptions.h"

namespace keldor::sweep {

struct RunOutcome {
  std::string LastRow;   // the keldor-headless --csv row of the last tick, with its line end
  std::string Series;    // a --csv table with a row every `every` ticks; empty when every is 0
  std::string Messages;  // what the run's message boxes said, one per line
  std::optional<std::string> Error;  // why the world could not be built
};

// Builds the world the options describe (they must name a seed) and runs it.
RunOutcome RunOne(const headless::HeadlessOptions& options, int64_t every);

// Builds the world only: the message naming the argument that does not fit it.
std::optional<std::string> CheckWorld(const headless::HeadlessOptions& options);

}  // namespace keldor::sweep
