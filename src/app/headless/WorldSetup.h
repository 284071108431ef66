// Builds the world a batch run starts from on the run's engine: start-up, the
// terrain view sized to the requested view, the world settings the options
// dialog would set, New on the run's clock, the scenario, the zoom and
// display, then playing unless the run is to stay paused; or continues a
// world loaded from a world file.
#pragma once

#include <optional>
#include <string>

#include "app/headless/HeadlessOptions.h"

namespace keldor {
struct WindowState;
class Simulation;
}  // namespace keldor

namespace keldor::headless {

// Returns the message naming the argument when the options do not fit the
// world (an ant longer than the nest radius, a scenario cell outside it...).
std::optional<std::string> BuildWorld(Simulation& simulation, WindowState& window, const HeadlessOptions& options);

// Continues the world the run has loaded (with its window fields in
// `window`): the terrain view resized when its size differs, the clock
// restarted from --seed, the scenario, the zoom, odor and ants as asked, and
// paused or played as asked; otherwise the world plays or stays paused as saved.
std::optional<std::string> ContinueWorld(Simulation& simulation, WindowState& window, const HeadlessOptions& options);

}  // namespace keldor::headless
