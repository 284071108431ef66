#include "SimTestSupport.h"

namespace keldor::testing {

int LivingAnts(const World& world) {
  int living = 0;
  for (int n = 0; n < world.NestCount; ++n) {
    for (const Ant& ant : world.Nests[static_cast<size_t>(n)].Ants) living += ant.Energy > 0 ? 1 : 0;
  }
  return living;
}

}  // namespace keldor::testing
