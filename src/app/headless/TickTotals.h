// Totals of a world at one moment, as the batch runner reports them per tick.
#pragma once

#include <cstdint>

namespace keldor {
struct World;
}

namespace keldor::headless {

struct TickTotals {
  int16_t Population = 0;
  int16_t NestCount = 0;
  int16_t FoodPileCount = 0;
  double FoodOnMap = 0;    // food lying on the world's cells
  double FoodStored = 0;   // food in the nests' stores
  double Carrying = 0;     // food carried by living ants
  int32_t ScentedCells = 0;  // world cells with any scent
};

TickTotals MeasureTotals(const World& world);

}  // namespace keldor::headless
