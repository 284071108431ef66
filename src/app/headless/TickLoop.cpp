#include "app/headless/TickLoop.h"

#include "model/Random.h"
#include "sim/Tick.h"
#include "window/Commands.h"
#include "window/WindowState.h"

namespace keldor::headless {

int64_t RunTicks(const TickLoop& loop, int64_t first, int64_t last,
                 const std::function<TickPainter&(int64_t)>& painterFor,
                 const std::function<bool(int64_t)>& afterTick) {
  TickContext context{loop.world, loop.random, loop.events};
  for (int64_t tick = first; tick <= last; ++tick) {
    RunTick(context, painterFor(tick), TickInputOf(loop.window, loop.world));
    ShowPopulation(loop.world, loop.window);
    if (loop.clock != nullptr) loop.clock->Advance(TickPeriodSeconds);
    if (!afterTick(tick)) return tick;
  }
  return last;
}

}  // namespace keldor::headless
