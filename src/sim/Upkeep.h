// Ant upkeep: feeding from the load, metabolism, death, and the removal of
// decayed bodies and of nests whose queen was their last ant.
#pragma once

namespace keldor {

struct World;

void AntUpkeep(World& world);

}  // namespace keldor
