// The tick loop of a batch run: the run's ticks back to back, each with the
// window's tick input, drawing only where asked.
#pragma once

#include <cstdint>
#include <functional>

namespace keldor {
struct WindowState;
class Simulation;
class TickPainter;
}  // namespace keldor

namespace keldor::headless {

// Runs ticks first..last (numbered on from where the run started). Tick n
// draws on painterFor(n); afterTick(n) sees the world after tick n and
// returns false to stop the run there. Returns the number of the last tick run.
int64_t RunTicks(Simulation& simulation, const WindowState& window, int64_t first, int64_t last,
                 const std::function<TickPainter&(int64_t)>& painterFor,
                 const std::function<bool(int64_t)>& afterTick);

}  // namespace keldor::headless
