// The food-pile pass: editing under a held pointer, pickup by ants, growth,
// spreading to a neighbouring cell, removal of empty piles and scent emission.
#pragma once

namespace keldor {

struct World;
class RandomSource;

void FoodPileUpdate(World& world, RandomSource& random);

}  // namespace keldor
