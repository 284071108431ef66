#include "app/headless/TickLoop.h"

#include "engine/Simulation.h"
#include "window/WindowState.h"

namespace keldor::headless {

int64_t RunTicks(Simulation& simulation, const WindowState& window, int64_t first, int64_t last,
                 const std::function<TickPainter&(int64_t)>& painterFor,
                 const std::function<bool(int64_t)>& afterTick) {
  for (int64_t tick = first; tick <= last; ++tick) {
    simulation.Tick(painterFor(tick), TickInputOf(window, simulation.TheWorld()));
    if (!afterTick(tick)) return tick;
  }
  return last;
}

}  // namespace keldor::headless
