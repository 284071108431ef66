#include "sim/Upkeep.h"

#include "model/Numeric.h"
#include "model/Queries.h"
#include "model/World.h"
#include "model/WorldCreation.h"

namespace keldor {

void AntUpkeep(World& world) {
  if (!world.Running) return;
  WorldSettings& s = world.Settings;
  for (int n = 0; n <= world.NestCount - 1; ++n) {
    Nest& nest = world.Nests[static_cast<size_t>(n)];
    const double maxEnergy = 5 * nest.AntUnit;
    int count = nest.AntCount();
    for (int i = 0; i <= count - 1; ++i) {
      Ant& ant = nest.Ants[i];
      if (ant.Energy > 0 && ant.Energy <= maxEnergy) {
        const double eat = Min(ant.Load, maxEnergy - ant.Energy);
        ant.Energy += eat;
        ant.Load -= eat;
      }
      const double before = ant.Energy;
      if (!(ant.LifeFactor == 1.0 && ant.Energy > 1.0)) ant.Energy -= (nest.AntUnit + nest.AntUnit) / 200;
      if (before > 0 && ant.Energy <= 0) {
        Cell& cell = world.Cells(ant.CellX, ant.CellY);
        --cell.AntCount;
        --s.Population;
        cell.Food = Min(cell.Food + ant.Load, s.CellFoodCapacity());
      }
      if (-nest.AntUnit / 4 >= ant.Energy) {
        if (i == 0 && nest.AntCount() == 1) {
          RemoveNestRecord(world, n);
          --n;
          break;
        }
        if (i != 0) {
          nest.Ants.Remove(i);
          --count;
          --i;
        }
      }
    }
  }
}

}  // namespace keldor
