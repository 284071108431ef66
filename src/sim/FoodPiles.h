// The food-pile pass: editing under a held pointer, pickup by ants, growth,
// spreading to a neighbouring cell, removal of empty piles and scent emission.
#pragma once

#include "sim/TickInput.h"

namespace keldor {

struct World;
class RandomSource;
class AntIndex;

// With an index, each pile tests only the ants near it, in the same order.
void FoodPileUpdate(World& world, RandomSource& random, AntIndex* index, const TickInput& input);

}  // namespace keldor
