// Population: the birth pass and the population limit check.
#pragma once

namespace keldor {

struct World;
class RandomSource;
class MessageBox;

// Each nest with a living queen turns its store into newborns, one AntUnit each.
void BreedNests(World& world, RandomSource& random);

// At exactly 2000 living ants: the message, then the pause button is pressed.
void CheckPopulationLimit(World& world, MessageBox& messages);

}  // namespace keldor
