#include "app/headless/TickLoop.h"

#include "model/Random.h"
#include "sim/Tick.h"
#include "window/Commands.h"
#include "window/WindowState.h"

namespace keldor::headless {

void RunTicks(const TickLoop& loop, int64_t count, TickPainter& painter, TickPainter& lastPainter,
              const std::function<void(int64_t)>& afterTick) {
  for (int64_t tick = 1; tick <= count; ++tick) {
    TickContext context{loop.world, loop.random, tick == count ? lastPainter : painter, loop.events};
    RunTick(context, TickInputOf(loop.window, loop.world));
    ShowPopulation(loop.world, loop.window);
    if (loop.clock != nullptr) loop.clock->Advance(TickPeriodSeconds);
    afterTick(tick);
  }
}

}  // namespace keldor::headless
