// The scenario of a batch run: nests, plaster bricks and food piles put on a
// freshly built world, in command-line order, before the first tick.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/headless/HeadlessOptions.h"

namespace keldor {
struct World;
struct WindowState;
class RandomSource;
}  // namespace keldor

namespace keldor::headless {

// Applies the steps in order, as the editing tools would on a press:
//   nest: a nest on the cell (CreateNest on it as the cursor cell);
//   wall: a plaster brick, unless the cell already holds one;
//   food: a pile of SpreadFoodAmount, unless the cell already holds food; the
//         cell's Food is set to the pile's amount.
// Returns the message of the first step that cannot be applied (a cell
// outside the world, a full list or population), naming its argument.
std::optional<std::string> ApplyScenario(World& world, WindowState& window, RandomSource& random,
                                         const std::vector<ScenarioStep>& steps);

}  // namespace keldor::headless
