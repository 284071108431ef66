#include "sim/Encounters.h"

#include "model/Numeric.h"
#include "model/Queries.h"
#include "model/World.h"

namespace keldor {
namespace {

// Queens are broader: their reach counts an eighth of their length.
double ReachShare(const Ant& ant, int index) { return ant.Length / (index == 0 ? 8 : 5); }

}  // namespace

void ResolveEncounter(World& world, Cell& cell, int nestIndex, int antIndex) {
  if (cell.AntCount < 3) return;
  const Nest& nest = world.Nests[static_cast<size_t>(nestIndex)];
  const Ant& biter = nest.Ants[antIndex];
  for (int m = 0; m < world.NestCount; ++m) {
    Nest& other = world.Nests[static_cast<size_t>(m)];
    if (other.Signature == nest.Signature) continue;
    for (int k = 0; k < other.AntCount(); ++k) {
      Ant& victim = other.Ants[k];
      const double d = PointToSegmentDistance(biter, victim) * world.Settings.ScaleX;
      const double reach = (ReachShare(biter, antIndex) + ReachShare(victim, k)) / 2;
      if (!(d <= reach && victim.Energy > 0)) continue;
      if (biter.Load == 0) {
        cell.Scent = Max(1, Min(cell.Scent + 1, world.Settings.FoodTraceSetting));
        victim.Colour = Rgb(255, 0, 0);
        victim.Energy = Max(1, victim.Energy - nest.AntUnit);
      }
      break;
    }
  }
}

void ResolveEncounters(World& world) {
  if (!world.Running) return;
  const int nestCount = world.NestCount;
  for (int n = 0; n < nestCount; ++n) {
    Nest& nest = world.Nests[static_cast<size_t>(n)];
    for (int i = 0; i < nest.AntCount(); ++i) {
      const Ant& ant = nest.Ants[i];
      if (ant.Energy > 0) ResolveEncounter(world, world.Cells(ant.CellX, ant.CellY), n, i);
    }
  }
}

}  // namespace keldor
