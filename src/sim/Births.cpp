#include "sim/Births.h"

#include <cmath>

#include "model/Numeric.h"
#include "model/Queries.h"
#include "model/Random.h"
#include "model/World.h"
#include "model/WorldCreation.h"

namespace keldor {
namespace {

// Fills the fields a birth writes; the rest of the slot keeps what it held.
void BearAnt(World& world, RandomSource& random, Nest& nest, Ant& ant) {
  const WorldSettings& s = world.Settings;
  ant.RearX = nest.X;
  ant.RearY = nest.Y;
  ant.Length = nest.AntLength;
  ant.Energy = Int(Pi * (ant.Length * ant.Length) * (0.9 + 0.1 * random.Rnd()));
  const WorldPoint head = PointOnCircle(random, {ant.RearX, ant.RearY}, ant.Length, s.ScaleX);
  ant.HeadX = head.X;
  ant.HeadY = head.Y;
  ant.Angle = 0;
  ant.CellX = CellOfCoordinate(ant.HeadX, s.CellSize);
  ant.CellY = CellOfCoordinate(ant.HeadY, s.CellSize);
  ant.Load = 0;
  ant.Colour = nest.Colour;
  ant.Serial = world.NextSerial();
}

}  // namespace

void BreedNests(World& world, RandomSource& random) {
  if (!world.Running) return;
  for (int n = 0; n < world.NestCount; ++n) {
    Nest& nest = world.Nests[static_cast<size_t>(n)];
    if (!(nest.Ants[0].Energy > 0)) continue;
    while (nest.FoodStore >= nest.AntUnit) {
      // At 32767 ants (in the nest, its cell or the world) births stop and
      // the store keeps the food until there is room again.
      Cell& nestCell = world.Cells(nest.CellX, nest.CellY);
      if (!nest.Ants.CanAppend() || world.Settings.Population == Int16Max || nestCell.AntCount == Int16Max) break;
      Ant& newborn = nest.Ants.Append();
      ++world.Settings.Population;
      ++nestCell.AntCount;
      BearAnt(world, random, nest, newborn);
      nest.FoodStore -= nest.AntUnit;
    }
  }
}

bool PopulationAtLimit(const World& world) { return world.Settings.Population == 2000; }

}  // namespace keldor
