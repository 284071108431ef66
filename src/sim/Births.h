// Population: the birth pass and the population limit check.
#pragma once

namespace keldor {

struct World;
class RandomSource;

// Each nest with a living queen turns its store into newborns, one AntUnit each.
void BreedNests(World& world, RandomSource& random);

// The limit check: true at exactly 2000 living ants. The tick then reports
// the limit, and the window shows its message and pauses the world.
bool PopulationAtLimit(const World& world);

}  // namespace keldor
