#include "window/StatusText.h"

#include <cstdio>

namespace keldor {

std::string StatusText(const RunStatus& status) {
  if (!status.HasWorld) return "No world: File > New makes one";
  const std::string seed = status.Seed ? std::to_string(*status.Seed) : "time of day";
  char rate[32];
  std::snprintf(rate, sizeof rate, "%.0f", status.TicksPerSecond);
  std::string text = "Tick " + std::to_string(status.Tick) + "   Seed " + seed + "   Speed " +
                     std::string(SpeedLabel(status.Speed)) + "   " + rate + " ticks/s";
  if (!status.Running) text += "   Paused: press Space to play";
  return text;
}

}  // namespace keldor
