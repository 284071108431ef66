#include "sim/TickTotals.h"

#include "model/ShortestText.h"
#include "model/World.h"

namespace keldor {

TickTotals MeasureTotals(const World& world) {
  TickTotals t;
  t.Population = world.Settings.Population;
  t.NestCount = world.NestCount;
  t.FoodPileCount = world.FoodPileCount();
  if (world.HasWorld()) {
    for (int x = 1; x <= world.Settings.GridX; ++x) {
      for (int y = 1; y <= world.Settings.GridY; ++y) {
        const Cell& c = world.Cells(x, y);
        t.FoodOnMap += c.Food;
        if (c.Scent != 0) ++t.ScentedCells;
      }
    }
  }
  for (int i = 0; i < world.NestCount; ++i) {
    const Nest& n = world.Nests[static_cast<size_t>(i)];
    t.FoodStored += n.FoodStore;
    for (const Ant& a : n.Ants) {
      if (a.Energy > 0) t.Carrying += a.Load;
    }
  }
  return t;
}

void WriteTickCsvRow(std::ostream& out, int64_t tick, const TickTotals& t) {
  char buf[ShortestTextCapacity];
  out << tick << ',' << t.Population << ',' << t.NestCount << ',' << t.FoodPileCount << ',';
  out << ShortestText(t.FoodOnMap, buf) << ',';
  out << ShortestText(t.FoodStored, buf) << ',';
  out << ShortestText(t.Carrying, buf) << ',' << t.ScentedCells << '\n';
}

}  // namespace keldor
