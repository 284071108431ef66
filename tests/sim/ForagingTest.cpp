// The default world forages: workers bring food home and the nest breeds.
#include <gtest/gtest.h>

#include <cstdio>

#include "SimTestSupport.h"

namespace keldor::testing {
namespace {

struct ForagingFigures {
  int Births = 0;
  double Delivered = 0;  // food that reached the store (a lower bound: eating at the nest hides some)
};

// Ants that died in this tick: one metabolism step took them to or below 0.
int DiedThisTick(const World& world) {
  int died = 0;
  for (int n = 0; n < world.NestCount; ++n) {
    const Nest& nest = world.Nests[static_cast<size_t>(n)];
    for (const Ant& ant : nest.Ants) died += (ant.Energy <= 0 && ant.Energy > -nest.AntUnit / 100) ? 1 : 0;
  }
  return died;
}

ForagingFigures RunDefaultWorld(uint64_t seed, int ticks) {
  TickRig rig(seed);
  World& world = rig.world();
  world.Running = true;
  ForagingFigures figures;
  for (int t = 0; t < ticks && world.NestCount == 1; ++t) {
    const int population = world.Settings.Population;
    const double store = world.Nests[0].FoodStore;
    const double unit = world.Nests[0].AntUnit;
    rig.Tick();
    if (world.NestCount != 1) break;
    const int births = world.Settings.Population - population + DiedThisTick(world);
    figures.Births += births;
    const double inflow = world.Nests[0].FoodStore - store + births * unit;
    if (inflow > 0) figures.Delivered += inflow;
  }
  return figures;
}

TEST(Foraging, DefaultWorldDeliversFoodAndBreeds) {
  for (uint64_t seed : {1u, 2u, 3u, 4u, 5u}) {
    const ForagingFigures figures = RunDefaultWorld(seed, 3000);
    std::printf("seed %llu: delivered %.1f, births %d\n", static_cast<unsigned long long>(seed), figures.Delivered,
                figures.Births);
    EXPECT_GT(figures.Delivered, 0) << "seed " << seed;
    EXPECT_GT(figures.Births, 50) << "seed " << seed;
  }
}

}  // namespace
}  // namespace keldor::testing
