// What the tick runs while paused, the scent pass, the
// population limit, births, bites and the removal rules of its loops.
#include <gtest/gtest.h>

#include <cmath>

#include "SimTestSupport.h"
#include "sim/Births.h"
#include "sim/Editing.h"
#include "sim/Encounters.h"
#include "sim/OdorField.h"
#include "sim/Upkeep.h"

namespace keldor::testing {
namespace {

TEST(Tick, PausedWorldKeepsScentFoodAndAntsButClampsAndEmits) {
  TickRig rig(4);
  World& world = rig.world();
  world.Running = true;
  for (int i = 0; i < 50; ++i) rig.Tick();
  world.Running = false;
  Cell& over = world.Cells(2, 2);
  over.Scent = world.Settings.FoodScentMax + 40;
  const FoodPile pile = world.FoodPiles[0];
  world.Cells(world.FoodPiles[1].X, world.FoodPiles[1].Y).Food = 0;  // emptied by the food tool
  const int16_t piles = world.FoodPileCount();
  const std::vector<Ant> ants(world.Nests[0].Ants.begin(), world.Nests[0].Ants.end());
  const double nestScent = world.Cells(world.Nests[0].CellX, world.Nests[0].CellY).Scent;
  rig.Tick();
  EXPECT_EQ(over.Scent, world.Settings.FoodScentMax);
  EXPECT_EQ(world.FoodPileCount(), piles - 1);
  EXPECT_EQ(world.FoodPiles[0].Amount, pile.Amount);
  EXPECT_EQ(std::vector<Ant>(world.Nests[0].Ants.begin(), world.Nests[0].Ants.end()), ants);
  EXPECT_EQ(world.Cells(world.Nests[0].CellX, world.Nests[0].CellY).Scent, nestScent);
  const FoodPile& first = world.FoodPiles[0];
  const double emission = Int(world.Settings.FoodScentMax * first.Amount / world.Settings.CellFoodCapacity());
  EXPECT_GE(std::abs(world.Cells(first.X, first.Y).Scent), emission);
}

TEST(Tick, ScentPassClampsDecaysAndClearsWalls) {
  TickRig rig;
  World& world = rig.world();
  world.Running = true;
  ASSERT_TRUE(AddWallAt(world, 5, 5));
  world.Cells(5, 5).Scent = -120;
  world.Cells(5, 5).Signature = Signature(std::string_view("1010101010101010"));
  world.Cells(3, 3).Scent = world.Settings.FoodScentMax + 5;
  CellUpdate(world, rig.nullPainter);
  EXPECT_EQ(world.Cells(3, 3).Scent, world.Settings.FoodScentMax - 1) << "clamped, then one step of decay";
  EXPECT_EQ(world.Cells(5, 5).Scent, 0) << "a wall cell ends the pass unscented";
  EXPECT_EQ(world.Cells(5, 5).Signature, Signature::Unmarked());
}

TEST(Tick, ScentColourSpansItsRanges) {
  const struct {
    double scent;
    double colour;
  } cases[] = {{500, Rgb(116, 168, 116)},  {100, Rgb(171, 194, 139)}, {0, Rgb(200, 172, 145)},
               {-50, Rgb(188, 163, 137)}, {-250, Rgb(139, 129, 103)}};
  for (const auto& c : cases) EXPECT_EQ(ScentColour(c.scent, 500, 250), c.colour) << c.scent;
}

TEST(Population, LimitOnlyAtExactly2000PausesBeforeBirthsAndStartsNoNestedTick) {
  TickRig rig;
  World& world = rig.world();
  world.Settings.Population = 1999;
  EXPECT_FALSE(PopulationAtLimit(world));
  world.Settings.Population = 2000;
  EXPECT_TRUE(PopulationAtLimit(world));

  // Reached inside a whole tick: the pause stops that tick's births too.
  rig.events.Reenter = &rig.context;
  world.Running = true;
  Nest& nest = world.Nests[0];
  nest.FoodStore = 3 * nest.AntUnit;
  const int16_t before = nest.AntCount();
  rig.Tick();
  EXPECT_EQ(rig.events.LimitsReached, 1);
  EXPECT_FALSE(rig.events.NestedTickStarted);
  EXPECT_FALSE(world.Running);
  EXPECT_EQ(world.Nests[0].AntCount(), before);
  rig.Tick();
  EXPECT_EQ(rig.events.LimitsReached, 2) << "reported again while it stays at 2000";
  EXPECT_TRUE(world.Running) << "the pause button is pressed again";
}

TEST(Population, ThreeBirthsFromThreeAndAHalfUnits) {
  TickRig rig;
  World& world = rig.world();
  world.Running = true;
  Nest& nest = world.Nests[0];
  nest.FoodStore = 3.5 * nest.AntUnit;
  const int16_t ants = nest.AntCount();
  const int16_t population = world.Settings.Population;
  const int16_t cellAnts = world.Cells(nest.CellX, nest.CellY).AntCount;
  BreedNests(world, rig.test.random);
  EXPECT_EQ(nest.AntCount(), ants + 3);
  EXPECT_EQ(world.Settings.Population, population + 3);
  EXPECT_EQ(world.Cells(nest.CellX, nest.CellY).AntCount, cellAnts + 3);
  EXPECT_NEAR(nest.FoodStore, 0.5 * nest.AntUnit, 1e-9);
  const Ant& newborn = nest.Ants[nest.AntCount() - 1];
  EXPECT_NEAR(std::hypot(newborn.HeadX - nest.X, newborn.HeadY - nest.Y), newborn.Length / world.Settings.ScaleX, 1e-9);
  nest.Ants[0].Energy = 0;
  nest.FoodStore = 5 * nest.AntUnit;
  BreedNests(world, rig.test.random);
  EXPECT_EQ(nest.AntCount(), ants + 3) << "a dead queen breeds no more";
}

TEST(Encounters, BiteNeverKillsAndNeedsACrowd) {
  TickRig rig;
  World& world = rig.world();
  world.Running = true;
  rig.AddNestAt(10, 10);
  Ant& biter = world.Nests[0].Ants[1];
  Ant& victim = world.Nests[1].Ants[1];
  victim.RearX = biter.HeadX - 1;
  victim.RearY = victim.HeadY = biter.HeadY;
  victim.HeadX = biter.HeadX + 1;
  victim.Energy = 0.4;
  biter.Load = 0;
  Cell& cell = world.Cells(biter.CellX, biter.CellY);
  cell.AntCount = 2;
  ResolveEncounter(world, cell, 0, 1);
  EXPECT_EQ(victim.Energy, 0.4) << "two ants never fight";
  cell.AntCount = 3;
  cell.Scent = -40;
  ResolveEncounter(world, cell, 0, 1);
  EXPECT_EQ(victim.Energy, 1);
  EXPECT_EQ(victim.Colour, Rgb(255, 0, 0));
  EXPECT_EQ(cell.Scent, 1) << "with the food-scent slider at 0 the mark is 1";
  victim.Energy = 5;
  biter.Load = 1;
  ResolveEncounter(world, cell, 0, 1);
  EXPECT_EQ(victim.Energy, 5) << "a carrying ant does not bite";
}

TEST(Upkeep, RemovalVisitsTheMovedAntAndTheMovedNest) {
  TickRig rig;
  World& world = rig.world();
  world.Running = true;
  Nest& nest = world.Nests[0];
  const int16_t count = nest.AntCount();
  const double corpse = -nest.AntUnit / 4;
  nest.Ants[1].Energy = corpse;         // removed; the last ant moves into slot 1
  nest.Ants[count - 1].Energy = corpse;  // the moved ant must be removed too
  nest.Ants[count - 1].LifeFactor = 0.5;
  const int16_t population = world.Settings.Population;
  AntUpkeep(world);
  EXPECT_EQ(nest.AntCount(), count - 2);
  EXPECT_EQ(world.Settings.Population, population) << "bodies were counted out at death";
  for (const Ant& ant : nest.Ants) EXPECT_GT(ant.Energy, corpse);

  // A queen that is her nest's last ant takes the nest; the nest moved into
  // its slot is processed in the same pass.
  rig.AddNestAt(5, 5);
  Nest& first = world.Nests[0];
  first.Ants.Reset(1);
  first.Ants[0].Energy = -first.AntUnit;
  first.Ants[0].CellX = first.CellX;
  first.Ants[0].CellY = first.CellY;
  Nest& second = world.Nests[1];
  second.Ants[2].Energy = -second.AntUnit;
  const int16_t secondCount = second.AntCount();
  const double secondX = second.X;
  AntUpkeep(world);
  ASSERT_EQ(world.NestCount, 1);
  EXPECT_EQ(world.Nests[0].X, secondX);
  EXPECT_EQ(world.Nests[0].AntCount(), secondCount - 1);
}

}  // namespace
}  // namespace keldor::testing
