// Totals of a world at one moment, one row per tick: the batch runner's CSV
// and the desktop program's charts and CSV export. Numbers are written in
// their shortest exact decimal form.
#pragma once

#include <cstdint>
#include <ostream>

namespace keldor {

struct World;

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

inline constexpr const char* TickCsvHeader = "tick,Population,NestCount,FoodPileCount,FoodOnMap,FoodStored,Carrying,ScentedCells";

// Writes the CSV row of tick number `tick`, with its line end.
void WriteTickCsvRow(std::ostream& out, int64_t tick, const TickTotals& totals);

}  // namespace keldor
