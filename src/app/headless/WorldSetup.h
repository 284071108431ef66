// Builds the world a batch run starts from, as a user of the desktop program
// would: start-up, the window sized to the requested view, the options dialog's
// settings, New, the scenario, the zoom and display buttons, then Play unless
// the run is to stay paused; or from a world state file.
#pragma once

#include <optional>
#include <string>

#include "app/headless/HeadlessOptions.h"

namespace keldor {
struct World;
struct WindowState;
class RandomSource;
}  // namespace keldor

namespace keldor::headless {

// Returns the message naming the argument when the options do not fit the
// world (an ant longer than the nest radius, a scenario cell outside it...).
std::optional<std::string> BuildWorld(World& world, WindowState& window, RandomSource& random,
                                      const HeadlessOptions& options);

// Takes over a loaded world instead: the terrain view resized when its size
// differs, the scenario, the zoom, odor and ants as asked, and Pause when the
// run is to stay paused, Play when it is to play; otherwise the world plays or
// stays paused as saved.
std::optional<std::string> ContinueWorld(World& world, WindowState& window, World&& loaded, WindowState&& loadedWindow,
                                         RandomSource& random, const HeadlessOptions& options);

}  // namespace keldor::headless
