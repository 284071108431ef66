// The colony's rules one by one: births, upkeep and death, removal of bodies
// and nests, bites between rival colonies, and a nest taken by the nest tool.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <tuple>

#include "RuleWorld.h"
#include "sim/Births.h"
#include "sim/Encounters.h"
#include "sim/NeighbourSearch.h"
#include "sim/Upkeep.h"
#include "support/ScriptedDraws.h"

namespace keldor::testing {
namespace {

TEST(Births, EveryWholeUnitInTheStoreOfALivingQueenBearsOneAntFromFourDraws) {
  const struct { double store, queenEnergy; int births; double left; } cases[] = {
      {99, 1, 0, 99}, {100, 1, 1, 0},  // a birth takes a whole unit of 100
      {350, 1, 3, 50},                 // 3.5 units: three births, half a unit left
      {350, 0, 0, 350}};               // a dead queen breeds no more
  for (const auto& c : cases) {
    RuleWorld rule;
    Nest& nest = rule.nest(0);
    nest.AntUnit = 100;
    nest.FoodStore = c.store;
    nest.LifeSpan = 50;  // no part of a newborn's energy
    nest.Ants[0].Energy = c.queenEnergy;
    ScriptedDraws script({0.5, 0.75, 0.6, 0.25, 0.5, 0.75, 0.6, 0.25, 0.5, 0.75, 0.6, 0.25});
    rule.random.UseScript(&script);
    BreedNests(rule.world, rule.random);
    EXPECT_EQ(nest.AntCount(), 30 + c.births) << c.store;
    EXPECT_TRUE(rule.world.Settings.Population == 30 + c.births && rule.world.Cells(10, 10).AntCount == 30 + c.births);
    EXPECT_EQ(nest.FoodStore, c.left);
    EXPECT_EQ(script.Log, std::string(4 * static_cast<size_t>(c.births), 'd'));
    if (c.births == 0) continue;
    const Ant& newborn = nest.Ants[29 + c.births];
    EXPECT_EQ(newborn.Energy, 86353);  // Int(3.1415926 * (3 * 56.7)^2 * (0.9 + 0.1 * 0.5)) = Int(86353.93)
    EXPECT_TRUE(newborn.RearX == 950 && newborn.RearY == 950 && newborn.CellX == 10 && newborn.CellY == 10);
    // Sign +1 (0.75) and 0.6 of the reach 17.01 across; sign -1 (0.25), so 0.8 of it up.
    EXPECT_NEAR(newborn.HeadX, 960.206, 1e-9);
    EXPECT_NEAR(newborn.HeadY, 936.392, 1e-9);
  }
}

TEST(Upkeep, FeedingFromTheLoadMetabolismAndDeath) {
  // AntUnit 100: MaxEnergy 500, metabolism (100 + 100) / 200 = 1 per tick.
  const struct { double energy, load, lifeFactor, food, energyAfter, loadAfter, foodAfter; } cases[] = {
      {490, 30, 0.5, 0, 499, 20, 0},  // eats 10 up to 500, then spends 1
      {500, 30, 0.5, 0, 499, 30, 0},  // at MaxEnergy it eats nothing
      {501, 30, 0.5, 0, 500, 30, 0},  // above MaxEnergy the load stays untouched
      {100, 0, 1.0, 0, 100, 0, 0},    // life factor 1.0 and energy above 1: no metabolism
      {1.0, 0, 1.0, 7, 0, 0, 7},      // energy 1.0 is not above 1: it spends 1 and dies at 0
      {0.5, 0, 0.5, 785448.15, -0.5, 0, CellCapacity},  // dies; its cell's food is held to capacity
      {-23, 0, 0.5, 0, -24, 0, 0}};   // a body is not counted out again
  RuleWorld rule;
  Nest& nest = rule.nest(0);
  nest.AntUnit = 100;
  for (int16_t slot = 1; const auto& c : cases) {
    Ant& ant = nest.Ants[slot];
    rule.PlaceAnt(ant, 2, slot);
    std::tie(ant.Energy, ant.Load, ant.LifeFactor) = std::tuple(c.energy, c.load, c.lifeFactor);
    rule.world.Cells(2, slot++).Food = c.food;
  }
  AntUpkeep(rule.world);
  for (int16_t slot = 1; const auto& c : cases) {
    const Ant& ant = nest.Ants[slot];
    const Cell& cell = rule.world.Cells(2, slot++);
    EXPECT_EQ(std::tuple(ant.Energy, ant.Load), std::tuple(c.energyAfter, c.loadAfter)) << c.energy;
    EXPECT_NEAR(cell.Food, c.foodAfter, 1e-6) << c.energy;
    EXPECT_EQ(cell.AntCount, c.energy > 0 && c.energyAfter <= 0 ? 0 : 1) << c.energy;
  }
  EXPECT_EQ(rule.world.Settings.Population, 28);  // two of 30 died
}

TEST(Upkeep, BodiesGoAtAQuarterUnitBelowZeroAndEveryMovedRecordIsVisited) {
  RuleWorld rule(1);
  rule.AddNest(5, 5, 30);
  // AntUnit 100: each body loses 1 this tick; -24 reaches -100/4 and goes, -23.5 stays.
  // Nest 0's queen is its last ant: she takes the nest, and nest 1 moves in.
  // Nest 1's queen stays while her ants live; its ant 29, moved into slot 1, must go too.
  for (const int n : {0, 1}) rule.nest(n).AntUnit = 100;
  for (const auto& [n, a, energy] :
       {std::tuple(0, 0, -24.0), {1, 0, -24.0}, {1, 1, -24.0}, {1, 2, -23.5}, {1, 29, -24.0}}) {
    std::tie(rule.nest(n).Ants[a].Energy, rule.nest(n).Ants[a].LifeFactor) = std::tuple(energy, 0.5);
  }
  AntUpkeep(rule.world);
  ASSERT_EQ(rule.world.NestCount, 1);
  const Nest& nest = rule.nest(0);
  EXPECT_TRUE(nest.CellX == 5 && nest.AntCount() == 28);
  EXPECT_EQ(nest.Ants[0].Energy, -25);
  EXPECT_GT(nest.Ants[1].Energy, 0) << "ant 28 now fills slot 1";
  EXPECT_EQ(nest.Ants[2].Energy, -24.5);
  EXPECT_EQ(rule.world.Settings.Population, 31) << "bodies were counted out at death";
}

// Nest 0's ant 1, on (4, 4), has its head inside the bodies of nest 1's
// ants 2 to 4 and nest 2's ant 1; nest 1's ant 1 stands on the next cell.
// The victims carry food, so they touch but never bite back.
struct BiteScene : RuleWorld {
  BiteScene() : RuleWorld(2) {
    AddNest(12, 10, 5);
    AddNest(14, 10, 2);
    nest(0).AntUnit = 100;  // the biter's nest sets the bite, not the victims' 5681
    PlaceAnt(nest(0).Ants[1], 4, 4);
    PlaceAnt(nest(1).Ants[1], 5, 4);
    // Nest 1's ant 2 is dead: it is not touched.
    for (const auto& [n, a, energy] : {std::tuple(1, 2, 0.0), {1, 3, 500.0}, {1, 4, 500.0}, {2, 1, 50.0}}) {
      PlaceAnt(nest(n).Ants[a], 4, 4, 0.5);
      std::tie(nest(n).Ants[a].Energy, nest(n).Ants[a].Load) = std::tuple(energy, 1.0);
    }
  }
};

TEST(Encounters, AnUnloadedAntInACrowdBitesTheFirstLivingAntOfEachRivalColony) {
  const struct { double scent; int16_t trace, crowd; bool allied, carrying, paused; double scentAfter; } cases[] = {
      {4, 10, 3, false, false, false, 6},    // two bites, each Max(1, Min(Scent + 1, 10))
      {20, 10, 3, false, false, false, 10},  // held to the food-trace setting
      {-40, 10, 3, false, false, false, 2},  // Max(1, -39) = 1, then Min(2, 10) = 2
      {-40, 0, 3, false, false, false, 1},   // with the setting 0 every mark is 1
      {4, 10, 3, true, false, false, 5},     // nest 2 shares nest 0's signature: one bite
      {4, 10, 2, false, false, false, 4},    // two ants are no crowd
      {4, 10, 3, false, true, false, 4},     // a carrying ant does not bite
      {4, 10, 3, false, false, true, 4}};    // nor does any ant while paused
  for (const bool indexed : {false, true}) {
    for (const auto& c : cases) {
      BiteScene scene;
      World& world = scene.world;
      world.Cells(4, 4).Scent = c.scent;
      world.Cells(4, 4).AntCount = c.crowd;
      world.Settings.FoodTraceSetting = c.trace;
      world.Running = !c.paused;
      if (c.allied) scene.nest(2).Signature = scene.nest(0).Signature;
      scene.nest(0).Ants[1].Load = c.carrying ? 1 : 0;
      NeighbourSearch search;
      search.Index.Rebuild(world);
      ResolveEncounters(world, indexed ? &search : nullptr);
      const bool bites = c.crowd >= 3 && !c.carrying && !c.paused;
      const Nest& rival = scene.nest(1);
      EXPECT_EQ(world.Cells(4, 4).Scent, c.scentAfter) << c.scent << " " << c.trace << " " << indexed;
      EXPECT_TRUE(rival.Ants[1].Colour == rival.Colour && rival.Ants[2].Energy == 0) << "out of reach; dead";
      EXPECT_EQ(rival.Ants[3].Energy, bites ? 400 : 500) << "500 less the biter's unit of 100";
      EXPECT_EQ(rival.Ants[3].Colour, bites ? Colour(255, 0, 0) : rival.Colour);
      EXPECT_EQ(rival.Ants[4].Energy, 500) << "one bite per colony";
      EXPECT_EQ(scene.nest(2).Ants[1].Energy, bites && !c.allied ? 1 : 50) << "a bite never kills";
    }
  }
}

// Biters of nests 0 and 1 in neighbouring crowded cells, nest 1's in the
// lower column, both with their heads on the body of nest 2's ant 1, which
// carries food and so bites nobody. Nest 2's ant 2 lies under nest 1's biter.
struct CrossBiteScene : RuleWorld {
  CrossBiteScene() : RuleWorld(2) {
    AddNest(12, 10, 2);
    AddNest(14, 10, 3);
    PlaceAnt(nest(0).Ants[1], 5, 4);
    PlaceAnt(nest(1).Ants[1], 4, 4);
    Ant& victim = nest(2).Ants[1];
    PlaceAnt(victim, 5, 4);
    victim.RearX = 350;  // from nest 1's biter's head to nest 0's
    PlaceAnt(nest(2).Ants[2], 4, 4);
    for (int a : {1, 2}) nest(2).Ants[a].Load = 1;
    world.Cells(4, 4).AntCount = world.Cells(5, 4).AntCount = 3;
  }
};

TEST(Encounters, BitesAreMadeInTheOrderOfTheNestsWhateverCellTheBitersStandIn) {
  for (const bool indexed : {false, true}) {
    {
      // Above 2^53 doubles lie 2 apart. Nest 0 bites first: 2^53 + 2 - 1
      // rounds to 2^53 (ties to even), less 3 is 2^53 - 3. Nest 1 first
      // would give 2^53 - 1 - 1 = 2^53 - 2.
      CrossBiteScene scene;
      scene.nest(0).AntUnit = 1;
      scene.nest(1).AntUnit = 3;
      scene.nest(2).Ants[1].Energy = 9007199254740994.0;
      NeighbourSearch search;
      search.Index.Rebuild(scene.world);
      ResolveEncounters(scene.world, indexed ? &search : nullptr);
      EXPECT_EQ(scene.nest(2).Ants[1].Energy, 9007199254740989.0) << indexed;
    }
    {
      // An endless unit against endless energy leaves no number: the victim
      // is dead when nest 1's biter comes, which bites the next ant instead.
      CrossBiteScene scene;
      const double endless = std::numeric_limits<double>::infinity();
      scene.nest(0).AntUnit = endless;
      scene.nest(1).AntUnit = 3;
      scene.nest(2).Ants[1].Energy = endless;
      scene.nest(2).Ants[2].Energy = 10;
      NeighbourSearch search;
      search.Index.Rebuild(scene.world);
      ResolveEncounters(scene.world, indexed ? &search : nullptr);
      EXPECT_TRUE(std::isnan(scene.nest(2).Ants[1].Energy)) << indexed;
      EXPECT_EQ(scene.nest(2).Ants[2].Energy, 7) << indexed;
    }
  }
}

TEST(NestTool, ARemovedNestLeavesItsStoreAndLoadsOnItsCellUpToCapacity) {
  const struct { double store, load, pileAfter, foodAfter; } cases[] = {
      {800000, 0, CellCapacity, CellCapacity},  // more than a cell holds
      {300, 40, 300, 340}};  // the pile takes the store; the living ant's load follows on the cell
  for (const auto& c : cases) {
    RuleWorld rule;
    World& world = rule.world;
    world.Nests[0].FoodStore = c.store;
    world.Nests[0].Ants[1].Load = c.load;
    std::tie(world.Nests[0].Ants[2].Energy, world.Nests[0].Ants[2].Load) = std::tuple(0, 60);  // dead, with a load
    --world.Cells(10, 10).AntCount;
    --world.Settings.Population;
    ASSERT_NE(AppendFoodPile(world, rule.random, 10, 4, 77), nullptr);  // same column, another cell
    RemoveNestAt(world, rule.random, 10, 10);
    EXPECT_TRUE(world.NestCount == 0 && world.Settings.Population == 0 && world.Cells(10, 10).AntCount == 0);
    ASSERT_EQ(world.FoodPileCount(), 2);
    EXPECT_EQ(world.FoodPiles[0].Amount, 77) << "a pile elsewhere keeps its food";
    EXPECT_NEAR(world.FoodPiles[1].Amount, c.pileAfter, 1e-6) << c.store;
    EXPECT_NEAR(world.Cells(10, 10).Food, c.foodAfter, 1e-6) << c.store;
  }
}

}  // namespace
}  // namespace keldor::testing
