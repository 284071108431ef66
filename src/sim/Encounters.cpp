#include "sim/Encounters.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "model/Numeric.h"
#include "model/Queries.h"
#include "model/World.h"
#include "sim/AntIndex.h"

namespace keldor {
namespace {

// Queens are broader: their reach counts an eighth of their length.
double ReachShare(const Ant& ant, int index) { return ant.Length / (index == 0 ? 8 : 5); }

// Bites the victim unless the biter carries food; either way they touched.
bool Touch(World& world, Cell& cell, const Nest& nest, int antIndex, Ant& victim, int victimIndex) {
  const Ant& biter = nest.Ants[antIndex];
  const double d = PointToSegmentDistance(biter, victim) * world.Settings.ScaleX;
  const double reach = (ReachShare(biter, antIndex) + ReachShare(victim, victimIndex)) / 2;
  if (!(d <= reach && victim.Energy > 0)) return false;
  if (biter.Load == 0) {
    cell.Scent = Max(1, Min(cell.Scent + 1, world.Settings.FoodTraceSetting));
    victim.Colour = Rgb(255, 0, 0);
    victim.Energy = Max(1, victim.Energy - nest.AntUnit);
  }
  return true;
}

// The largest body length and head-to-rear span of the living ants: together
// they bound how far from a biter's head a touched ant's head can be.
struct ReachBound {
  double Length = 0;
  double Span = 0;
};

ReachBound LargestReach(const World& world) {
  ReachBound bound;
  for (int n = 0; n < world.NestCount; ++n) {
    for (const Ant& ant : world.Nests[static_cast<size_t>(n)].Ants) {
      if (!(ant.Energy > 0)) continue;
      bound.Length = std::max(bound.Length, ant.Length);
      bound.Span = std::max(bound.Span, std::hypot(ant.HeadX - ant.RearX, ant.HeadY - ant.RearY));
    }
  }
  return bound;
}

void ResolveNearbyEncounter(World& world, AntIndex& index, const ReachBound& bound, Cell& cell, int nestIndex,
                            int antIndex) {
  if (cell.AntCount < 3) return;
  const Nest& nest = world.Nests[static_cast<size_t>(nestIndex)];
  const Ant& biter = nest.Ants[antIndex];
  const double reach = (ReachShare(biter, antIndex) + bound.Length / 5) / 2 / world.Settings.ScaleX + bound.Span;
  const std::vector<AntRef>& near = index.Near(biter.HeadX, biter.HeadY, reach, nestIndex);
  size_t next = 0;
  for (int m = 0; m < world.NestCount; ++m) {
    Nest& other = world.Nests[static_cast<size_t>(m)];
    while (next < near.size() && near[next].Nest < m) ++next;
    if (other.Signature == nest.Signature) continue;
    for (size_t r = next; r < near.size() && near[r].Nest == m; ++r) {
      if (Touch(world, cell, nest, antIndex, other.Ants[near[r].Ant], near[r].Ant)) break;
    }
  }
}

}  // namespace

void ResolveEncounter(World& world, Cell& cell, int nestIndex, int antIndex) {
  if (cell.AntCount < 3) return;
  const Nest& nest = world.Nests[static_cast<size_t>(nestIndex)];
  for (int m = 0; m < world.NestCount; ++m) {
    Nest& other = world.Nests[static_cast<size_t>(m)];
    if (other.Signature == nest.Signature) continue;
    for (int k = 0; k < other.AntCount(); ++k) {
      if (Touch(world, cell, nest, antIndex, other.Ants[k], k)) break;
    }
  }
}

void ResolveEncounters(World& world, AntIndex* index) {
  if (!world.Running) return;
  const ReachBound bound = index != nullptr ? LargestReach(world) : ReachBound{};
  const int nestCount = world.NestCount;
  for (int n = 0; n < nestCount; ++n) {
    Nest& nest = world.Nests[static_cast<size_t>(n)];
    for (int i = 0; i < nest.AntCount(); ++i) {
      const Ant& ant = nest.Ants[i];
      if (!(ant.Energy > 0)) continue;
      Cell& cell = world.Cells(ant.CellX, ant.CellY);
      if (index != nullptr) {
        ResolveNearbyEncounter(world, *index, bound, cell, n, i);
      } else {
        ResolveEncounter(world, cell, n, i);
      }
    }
  }
}

}  // namespace keldor
